#include <gtest/gtest.h>

#include "orvanta/Model/Push/OrvantaPushCarouselObject.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "support/ModelHelpers.h"
#include "support/RecordingPlatform.h"

// Every key of a push payload and of its nested models, with every kind of value. The outcome
// follows from the type code of the property and the conversions of the value.

namespace orvanta::testing {
namespace {

constexpr std::uint64_t kTwo63 = std::uint64_t{1} << 63U;
const std::string kInvalidURL = R"("no URL")";
const std::string kModel = R"({"klazz":"OrvantaReviewAction"})";
const std::string kInvalidModel =
    R"({"klazz":"OrvantaWidgetAction","uri":5})";  // the model rejects it

/// A value and its conversions, where it has any.
const struct Cell {
  std::string json;
  std::optional<Value> boolean{};
  std::optional<Value> real{};
  std::optional<Value> natural{};  // for unsigned 64-bit
  std::optional<std::int64_t> milliseconds{};
} kCells[] = {
    {"null"},
    {"true", true, 1.0, 1U, 1},
    {"2", true, 2.0, 2U, 2},
    {"-3", true, -3.0, 0U - std::uint64_t{3}, -3},
    {"2.75", true, 2.75, 2U, 2},
    {"9223372036854775807", true, 0x1p63, kTwo63 - 1, kUnsetInteger},
    {"9223372036854775808", true, 0x1p63, kTwo63, -kUnsetInteger - 1},
    {R"("12.5px")", true, 12.5, 12U},
    {kInvalidURL, false, 0.0, 0U},
    {R"("")", false, 0.0, 0U},
    {"[1]"},
    {R"({"x":1})"},
    {kModel},
    {kInvalidModel},
    {"[" + kInvalidModel + "]"},
};

/// The dictionary of a new object: its scalars, except a badge.
Dictionary unread(const Class& cls) {
  Dictionary entries;
  for (const auto& [key, property] : cls.keyPathPropertySelectorMapping) {
    const std::string_view encoding = cls.property(property)->encoding;
    if (encoding.size() != 1 || property == "badge") continue;
    entries.set(key, encoding == "B" ? Value(false) : Value(0));
  }
  return entries;
}

/// The value of a property and its written form, or the number of log lines of a failed update.
struct Outcome {
  Value value{};
  Value written{};
  std::optional<std::size_t> rejectedWithLines{};
};
const Outcome kRejected{.rejectedWithLines = 0};
const Outcome kRejectedWithLog{.rejectedWithLines = 1};

Outcome stored(const Value& value) {
  return {.value = value, .written = value == Value(kUnsetInteger) ? Value() : value};
}
Outcome read(const std::optional<Value>& reading) {
  return reading ? stored(*reading) : kRejectedWithLog;
}

Outcome outcome(const Cell& cell, std::string_view encoding, const Class* declared) {
  // A dictionary becomes a model of the declared class, otherwise of the class it names. A model
  // that fails is nil, which no array can contain.
  const Value value = parseJSON(cell.json);
  const bool inArray = cell.json == "[" + kInvalidModel + "]";
  if (inArray && declared == nullptr) return kRejectedWithLog;
  if (encoding == "B") return read(cell.boolean);
  if (encoding == "Q") return read(cell.natural);
  if (encoding == "d") return read(cell.real);
  if (encoding.find("NSURL") != std::string_view::npos) {
    if (!value.isString()) return kRejected;
    return cell.json == kInvalidURL ? Outcome{}
                                    : Outcome{.value = *Url::parse(value), .written = value};
  }
  if (encoding.find("NSDate") != std::string_view::npos) {
    if (value.isNull()) return stored(value);
    if (!cell.milliseconds) return kRejected;
    const auto milliseconds = static_cast<double>(*cell.milliseconds);
    return {.value = Date{milliseconds / 1000.0}, .written = *cell.milliseconds};
  }
  const Class* cls = declared;
  if (cls == nullptr && cell.json == kModel) cls = modelClassNamed("OrvantaReviewAction");
  if (cls == nullptr) return cell.json == kInvalidModel ? Outcome{} : stored(value);
  const Value model = makeModel(*cls, nullptr);
  if (inArray) return {.value = Array({model}), .written = Array({unread(*cls)})};
  return value.dictionary() ? Outcome{.value = model, .written = unread(*cls)} : stored(value);
}

TEST(PushPayloadMatrix, TypeCodeAndValueDecideEveryKey) {
  for (const Class* cls :
       {&OrvantaPushObject::classObject(), &OrvantaPushObjectAlert::classObject(),
        &OrvantaPushObjectAction::classObject(), &OrvantaPushStyle::classObject(),
        &OrvantaPushCarouselObject::classObject(), &OrvantaInAppMessageAction::classObject(),
        &OrvantaUserNotificationAction::classObject()}) {
    for (const auto& [key, property] : cls->keyPathPropertySelectorMapping) {
      const Class* declared = modelClassIn(cls->mergedClassTable()[property]);
      for (const Cell& cell : kCells) {
        SCOPED_TRACE(std::string(cls->name) + " " + std::string(key) + " = " + cell.json);
        const Outcome expected = outcome(cell, cls->property(property)->encoding, declared);
        const auto dot = key.find('.');
        Dictionary payload{{key.substr(dot + 1), parseJSON(cell.json)}};
        if (dot != std::string_view::npos) payload = {{key.substr(0, dot), payload}};
        RecordingPlatform platform;
        const Ref<OrvantaBaseModel> model = makeModel(*cls, &payload);
        EXPECT_EQ(!model, expected.rejectedWithLines.has_value());
        EXPECT_EQ(platform.log.size(), expected.rejectedWithLines.value_or(0));
        if (!model) continue;
        const Value actual = model->valueForKey(property);
        EXPECT_EQ(actual, expected.value);
        EXPECT_EQ(actual.kind(), expected.value.kind());
        EXPECT_EQ(actual.className(), expected.value.className());
        Dictionary written = unread(*cls);
        written.set(key, expected.written);
        EXPECT_EQ(Value(model->dictionaryValue()), Value(written));
      }
    }
  }
}

TEST(PushPayloadMatrix, PartsThatAreNotDictionariesAreNotRead) {
  for (const char* part : {"aps", "_ov"}) {
    for (const Cell& cell : kCells) {
      SCOPED_TRACE(part + (" = " + cell.json));
      RecordingPlatform platform;
      const Value value = parseJSON(cell.json);
      const Dictionary payload{{part, value}};
      Ref<OrvantaPushObject> push;
      const auto error = exceptionFrom([&] { push = make<OrvantaPushObject>(payload); });
      // An array is searched by element; scalars cannot be read from the resulting array.
      const bool isSearched = value.array() && (*value.array())[0].dictionary();
      const bool hasKeys = value.dictionary() || isSearched;
      EXPECT_EQ(error.starts_with("NSUnknownKeyException: "), !hasKeys);
      EXPECT_EQ(platform.log.size(), isSearched ? 1U : 0U);
      ASSERT_EQ(bool(push), value.dictionary() != nullptr);
      EXPECT_TRUE(!push || push->dictionaryValue() == unread(push->isa()));
    }
  }
}

TEST(PushPayloadMatrix, AlertAndClickActionExistForEveryValue) {
  for (const Cell& cell : kCells) {
    const Value value = parseJSON(cell.json);
    const auto push = make<OrvantaPushObject>(Dictionary{{"aps", Dictionary{{"alert", value}}}});
    ASSERT_TRUE(push && push->alert().isPresent() && push->action().isPresent()) << cell.json;
    EXPECT_EQ(push->alert().get()->body().raw(), value.isString() ? value : Value());
    Dictionary written = unread(push->isa());
    if (value.isString()) written.set("body", value);
    EXPECT_EQ(push->dictionaryValue(), written) << cell.json;

    const RecordingPlatform platform;
    const auto clicked = make<OrvantaPushObject>(Dictionary{{"_ov", Dictionary{{"act", value}}}});
    ASSERT_EQ(!clicked, outcome(cell, "@", nullptr).rejectedWithLines.has_value()) << cell.json;
    if (!clicked) continue;
    ASSERT_TRUE(clicked->alert().isPresent() && clicked->action().isPresent()) << cell.json;
    const Value uri = value.dictionary() ? (*value.dictionary())["uri"] : Value();
    EXPECT_EQ(clicked->action().get()->deeplinkURLString().raw(), uri) << cell.json;
    EXPECT_EQ(clicked->actionDictionary().raw(), clicked->defaultActionDictionary().raw());
    EXPECT_TRUE(uri.isString() || !clicked->action().get()->deeplinkURL().isPresent()) << cell.json;
  }
}

}  // namespace
}  // namespace orvanta::testing
