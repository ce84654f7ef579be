#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "support/Values.h"

// Checks of every model class that the library declares.

namespace orvanta::testing {
namespace {

TEST(ModelRegistry, EveryClassCreatesItsOwnInstances) {
  for (const Class* cls : modelClasses()) {
    const auto model = makeModel(*cls, nullptr);
    ASSERT_TRUE(model) << cls->name;
    EXPECT_EQ(&model->isa(), cls);
    EXPECT_EQ(dynamic_cast<void*>(model.get()), model.get());  // its fields are found by offset
    EXPECT_EQ(model->dictionaryValueWithClassInfo()["klazz"], Value(cls->name));
  }
}

/// A dictionary's value for a property, valid for its declared model where it has one.
Value sampleFor(const Class& cls, const Property& property) {
  const bool hasModel = cls.mergedClassTable()[property.name].classObject() != nullptr;
  if (property.encoding == "@\"NSURL\"") return "https://shop.example.com/a";
  if (property.encoding == "@\"NSDate\"") return 1500;
  if (property.encoding == "B") return true;
  if (property.encoding.ends_with("Array\"")) return hasModel ? Array{Dictionary()} : Array{"a"};
  if (property.encoding.ends_with("Dictionary\"") || hasModel) return Dictionary();
  return property.encoding.front() == '@' ? Value("text") : Value(7);
}

TEST(ModelRegistry, EveryKeyIsReadAndWritten) {
  for (const Class* cls : modelClasses()) {
    if (cls->name == "OrvantaErrorEvent") continue;  // its properties are weak references
    Dictionary keys = cls->mergedKeyTable();
    Dictionary dictionary;
    for (const Dictionary::Entry& row : keys) {
      const auto dot = row.key().find('.');
      const Value sample = sampleFor(*cls, *cls->property(*row.value.string()));
      if (dot == std::string_view::npos) {
        dictionary.set(row.key(), sample);
      } else {
        const std::string_view parent = row.key().substr(0, dot);
        const Dictionary* siblings = dictionary[parent].dictionary();
        Dictionary nested = siblings != nullptr ? *siblings : Dictionary();
        nested.set(row.key().substr(dot + 1), sample);
        dictionary.set(parent, nested);
      }
    }
    const auto model = makeModel(*cls, &dictionary);
    ASSERT_TRUE(model) << cls->name;
    const Dictionary result = model->dictionaryValue();
    for (const Dictionary::Entry& row : keys) {
      const Property& property = *cls->property(*row.value.string());
      const Value sample = sampleFor(*cls, property);
      const Value& written = result.valueForKey(row.keyValue);
      const bool isOverridden = property.get != nullptr;  // such as an event's code
      const bool isModel = cls->mergedClassTable()[property.name].classObject() != nullptr;
      EXPECT_TRUE(isOverridden || isModel ? !written.isNil() : written == sample)
          << cls->name << " " << row.key() << " " << ::testing::PrintToString(written);
    }
  }
}

TEST(ModelRegistry, EveryTypeCodeIsWellFormed) {
  const std::regex wellFormed(R"([BiqQfd@#]|@\?|@"[A-Z]\w+")");
  for (const Class* cls : modelClasses()) {
    std::set<std::string_view> names;
    for (const Property& property : cls->properties) {
      EXPECT_TRUE(std::regex_match(std::string(property.encoding), wellFormed))
          << cls->name << "." << property.name << " " << property.encoding;
      EXPECT_TRUE(names.insert(property.name).second) << cls->name << "." << property.name;
    }
  }
}

/// The matches of a pattern's group in a string.
std::set<std::string> matches(const std::string& text, const std::regex& pattern) {
  std::set<std::string> names;
  for (auto at = std::sregex_iterator(text.begin(), text.end(), pattern);
       at != std::sregex_iterator(); ++at) {
    names.insert((*at)[1]);
  }
  return names;
}

std::string contentsOf(const std::filesystem::path& file) {
  std::stringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

TEST(ModelRegistry, ListsExactlyTheClassesThatHeadersDeclare) {
  const std::filesystem::path models =
      std::filesystem::path(ORVANTA_SOURCE_DIR) / "OrvantaCore/OrvantaCore/Core/Model/Model";
  const std::regex declaration(
      "(?:^|\n)  ORVANTA_(?:MODEL|(?:ABSTRACT_)?EVENT|(?:UNRANKED_)?REQUEST)\\((Orvanta\\w+)");
  std::set<std::string> declared = {"OrvantaBaseModel"};  // the root uses no macro
  for (const auto& file : std::filesystem::recursive_directory_iterator(models)) {
    if (file.path().extension() == ".h")
      declared.merge(matches(contentsOf(file.path()), declaration));
  }
  const std::regex listing("(?:^|\n)ORVANTA_MODEL_CLASS\\((\\w+)\\)");
  EXPECT_EQ(matches(contentsOf(models / "Mapping/ModelClasses.def"), listing), declared);

  std::set<std::string> registered;
  for (const Class* cls : modelClasses()) registered.emplace(cls->name);
  EXPECT_EQ(registered, declared);
}

}  // namespace
}  // namespace orvanta::testing
