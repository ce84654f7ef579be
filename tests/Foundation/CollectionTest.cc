#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <map>

#include "support/Values.h"

namespace orvanta::testing {
namespace {

const std::string kLong = "a text that does not fit into the value";

/// Keys and integers in order: "a=1 b=2".
std::string listed(const Dictionary& dictionary) {
  std::string text;
  for (const Dictionary::Entry& entry : dictionary) {
    if (!text.empty()) text += ' ';
    text.append(entry.key()).append("=").append(describe(entry.value));
  }
  return text;
}

TEST(Array, RejectsNil) {
  const std::string error =
      "NSInvalidArgumentException: *** -[__NSArrayM insertObject:atIndex:]: object cannot be nil";
  Array array({1});
  EXPECT_EQ(exceptionFrom([&] { array.append(Value()); }), error);
  EXPECT_EQ(array, Array({1}));
  EXPECT_EQ(exceptionFrom([] { const Array invalid({kLong, Value()}); }), error);
}

TEST(Array, IsCopiedOnTheFirstChange) {
  const struct {
    const char* change;
    void (*make)(Array&);
    Array changed;
  } rows[] = {
      {"append", [](Array& array) { array.append(4); }, Array({kLong, 2, 3, 4})},
      {"set", [](Array& array) { array.set(0, 1); }, Array({1, 2, 3})},
      {"removeFirst", [](Array& array) { array.removeFirst(2); }, Array({3})},
      {"reserve", [](Array& array) { array.reserve(50); }, Array({kLong, 2, 3})},
      {"append itself", [](Array& array) { array.append(array); },
       Array({kLong, 2, 3, Array({kLong, 2, 3})})},
  };
  const Array built({kLong, 2, 3});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.change);
    Array first = built;
    EXPECT_EQ(first.begin(), built.begin());  // shared until now
    Array second = first;
    row.make(first);
    EXPECT_EQ(first, row.changed);
    row.make(second);
    EXPECT_EQ(second, row.changed);
    EXPECT_EQ(built, Array({kLong, 2, 3}));

    const Value text = parseJSON("[\"" + kLong + "\", 2, 3]");
    Value edited = text;
    row.make(edited.editArray());
    EXPECT_EQ(edited, Value(row.changed));
    EXPECT_EQ(text, Value(built));
  }
}

TEST(Dictionary, KeepsTheOrderOfInsertion) {
  Dictionary dictionary({{"b", 1}, {kLong, 2}, {"a", 3}});
  dictionary.set("c", 4);
  dictionary.set("b", 5);      // keeps its place
  dictionary.set(kLong, 6);    // so does a long key
  dictionary.set("none", {});  // nothing to remove
  EXPECT_EQ(listed(dictionary), "b=5 " + kLong + "=6 a=3 c=4");
  dictionary.set("a", Value());
  dictionary.remove("missing");
  dictionary.set("a", 7);
  dictionary.remove("b");
  EXPECT_EQ(listed(dictionary), kLong + "=6 c=4 a=7");
  dictionary.addEntries(Dictionary({{"x", 8}, {"c", 9}}));
  EXPECT_EQ(listed(dictionary), kLong + "=6 c=9 a=7 x=8");
  EXPECT_EQ(listed(Dictionary({{"a", 1}, {"b", 2}, {"a", 3}, {"c", Value()}})), "a=3 b=2");
}

TEST(Dictionary, IsCopiedOnTheFirstChange) {
  const struct {
    const char* change;
    void (*make)(Dictionary&);
    std::string_view changed;
  } rows[] = {
      {"new key", [](Dictionary& d) { d.set("c", 3); }, "a=1 b=2 c=3"},
      {"old key", [](Dictionary& d) { d.set("a", 3); }, "a=3 b=2"},
      {"remove", [](Dictionary& d) { d.remove("a"); }, "b=2"},
      {"reserve", [](Dictionary& d) { d.reserve(50); }, "a=1 b=2"},
      {"add",
       [](Dictionary& d) {
         d.addEntries(Dictionary({{"b", 0}}));
       },
       "a=1 b=0"},
  };
  const Dictionary built({{"a", 1}, {"b", 2}});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.change);
    Dictionary first = built;
    EXPECT_EQ(first.begin(), built.begin());
    row.make(first);
    EXPECT_EQ(listed(first), row.changed);
    EXPECT_EQ(listed(built), "a=1 b=2");

    const Value text = parseJSON(R"({"a": 1, "b": 2})");
    Value edited = text;
    row.make(edited.editDictionary());
    EXPECT_EQ(listed(*edited.dictionary()), row.changed);
    EXPECT_EQ(listed(*text.dictionary()), "a=1 b=2");
  }
}

TEST(Dictionary, AcceptsItsOwnKeysAndEntries) {
  // In both a change moves the entries and frees the old ones.
  const std::function<Dictionary()> makers[] = {
      [] { return Dictionary(*parseJSON(R"({"a": "key", "b": 0, "c": 0})").dictionary()); },
      [] {
        Dictionary full({{"a", "key"}, {"b", 0}});
        full.set("c", 0);
        full.set("d", 0);
        full.remove("d");
        return full;
      },
  };
  for (const auto& make : makers) {
    Dictionary dictionary = make();
    dictionary.set(dictionary.begin()->keyValue, 1);
    EXPECT_EQ(listed(dictionary), "a=1 b=0 c=0");
    dictionary = make();
    dictionary.set("d", 1);
    dictionary.set(dictionary["a"], 1);
    EXPECT_EQ(listed(dictionary), "a=key b=0 c=0 d=1 key=1");
    dictionary = make();
    dictionary.set(dictionary["a"], 1);
    EXPECT_EQ(listed(dictionary), "a=key b=0 c=0 key=1");
    dictionary = make();
    dictionary.set(dictionary.begin()->keyValue, Value());
    EXPECT_EQ(listed(dictionary), "b=0 c=0");
    dictionary = make();
    dictionary.remove(dictionary.begin()->key());
    EXPECT_EQ(listed(dictionary), "b=0 c=0");
    dictionary = make();
    dictionary.set("b", Dictionary({{"b", 1}, {"x", 2}}));
    dictionary.addEntries(*dictionary["b"].dictionary());
    EXPECT_EQ(listed(dictionary), "a=key b=1 c=0 x=2");
    dictionary.addEntries(dictionary);
    EXPECT_EQ(dictionary.size(), 4U);
  }
}

/// Compares a dictionary with a map after many changes; `prefix` starts every key.
void expectLikeAMap(const std::string& prefix, std::size_t count) {
  Dictionary dictionary;
  std::map<std::string, std::size_t> model;
  const auto expectSame = [&] {
    ASSERT_EQ(dictionary.size(), model.size());
    for (const auto& [key, number] : model) {
      ASSERT_EQ(dictionary[key], Value(number)) << key;
      ASSERT_EQ(dictionary.valueForKey(key), Value(number)) << key;
    }
    for (const Dictionary::Entry& entry : dictionary) {
      ASSERT_EQ(model.count(std::string(entry.key())), 1U);
    }
    ASSERT_FALSE(dictionary.contains(prefix + "missing"));
  };
  for (std::size_t i = 0; i < count; ++i) {
    const std::string key = prefix + std::to_string(i);
    dictionary.set(key, i);
    model[key] = i;
  }
  expectSame();
  const Dictionary before = dictionary;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string key = prefix + std::to_string(i);
    if (i % 3 == 0) dictionary.remove(key), model.erase(key);
    if (i % 3 == 1) dictionary.set(key, count + i), model[key] = count + i;
  }
  expectSame();
  EXPECT_EQ(before.size(), count);
  dictionary.addEntries(before);
  for (std::size_t i = 0; i < count; ++i) model[prefix + std::to_string(i)] = i;
  expectSame();
  EXPECT_EQ(dictionary, before);
}

TEST(Dictionary, FindsAmongAnyNumberOfKeys) {
  for (const std::size_t count : {0U, 1U, 30U, 31U, 32U, 33U, 64U, 65U, 500U}) {
    SCOPED_TRACE(count);
    expectLikeAMap("k", count);
    expectLikeAMap(std::string(100, 'k'), count);
  }
}

TEST(Dictionary, FindsAKeySetAfterManyRemovals) {
  for (std::size_t left = 0; left < 33; ++left) {
    Dictionary dictionary;
    for (int i = 0; i < 33; ++i) dictionary.set("k" + std::to_string(i), i);
    while (dictionary.size() > left) dictionary.remove(dictionary.begin()->key());
    dictionary.set("new", 1);
    dictionary.set("new", 2);
    EXPECT_EQ(dictionary["new"], Value(2)) << left;
    EXPECT_EQ(dictionary.size(), left + 1);
  }
}

TEST(Dictionary, ParsesManyKeysOfOneLengthAndPrefixFast) {
  // Comparing each key with every other takes a minute, hashing a tenth of a second.
  const std::clock_t begin = std::clock();
  constexpr std::size_t kCount = 200'000;
  std::string text = "{";
  const std::string prefix(40, 'p');
  for (std::size_t i = 0; i < kCount; ++i) {
    text.append("\"").append(prefix).append(std::to_string(100'000 + i)).append("\":");
    text.append(std::to_string(i)).append(i + 1 < kCount ? "," : "}");
  }
  const Value value = parseJSON(text);
  ASSERT_NE(value.dictionary(), nullptr);
  ASSERT_EQ(value.dictionary()->size(), kCount);
  for (std::size_t i = 0; i < kCount; i += 97) {
    EXPECT_EQ((*value.dictionary())[prefix + std::to_string(100'000 + i)], Value(i));
  }
  EXPECT_LT((std::clock() - begin) / CLOCKS_PER_SEC, 15);
}

TEST(ParsedValues, OutliveTheStringAndTheTree) {
  Value string;
  Value array;
  Dictionary dictionary;
  {
    std::string text = R"({"list": [1, {"name": "a string of more than fourteen bytes"}],)"
                       R"( "and a key of more than fourteen bytes": {"short": "text"}})";
    const Value tree = parseJSON(text);
    text.assign(text.size(), '?');
    const Dictionary& root = *tree.dictionary();
    array = root["list"];
    string = valueForKeyPath((*array.array())[1], "name");
    dictionary = *root["and a key of more than fourteen bytes"].dictionary();
  }
  EXPECT_EQ(string, Value("a string of more than fourteen bytes"));
  EXPECT_EQ(array, Value(Array({1, Dictionary({{"name", string}})})));
  EXPECT_EQ(dictionary["short"], Value("text"));
  // Parts of parsed trees combine with built values.
  dictionary.set("list", array);
  array.editArray().append(string);
  string = Value();
  EXPECT_EQ(dictionary["list"].array()->size(), 2U);
  EXPECT_EQ((*array.array())[2], Value("a string of more than fourteen bytes"));
}

}  // namespace
}  // namespace orvanta::testing
