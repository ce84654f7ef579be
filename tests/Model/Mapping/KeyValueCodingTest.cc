#include <gtest/gtest.h>

#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"

namespace orvanta::testing {
namespace {

TEST(KeyValueCoding, IgnoresTheAccessOfProperties) {
  const auto model = make<ObjectModel>();
  model->setValueForKey("not a date", "date");  // publicly read-only
  EXPECT_EQ(model->date().raw(), Value("not a date"));
  const auto ran = std::make_shared<int>(0);
  model->setBlock([ran] { ++*ran; });
  const Value block = model->valueForKey("block");
  model->setValueForKey(Value(), "block");
  EXPECT_FALSE(model->block().isPresent());
  model->setValueForKey(block, "block");
  (*model->block().get())();
  EXPECT_EQ(*ran, 1);
}

TEST(KeyValueCoding, ThrowsForUnknownKeysAndValuesThatAreNotScalars) {
  const auto model = make<ScalarModel>();
  const std::string complaint = "this class is not key value coding-compliant for the key x.";
  EXPECT_EQ(exceptionFrom([&] { model->valueForKey("x"); }),
            "NSUnknownKeyException: [<ScalarModel> valueForUndefinedKey:]: " + complaint);
  EXPECT_EQ(exceptionFrom([&] { model->setValueForKey(1, "x"); }),
            "NSUnknownKeyException: [<ScalarModel> setValue:forUndefinedKey:]: " + complaint);
  for (const auto& value : {Value(), Value::null(), Value(Array()), Value(Date{1})}) {
    for (const Property& property : ScalarModel::classObject().properties) {
      EXPECT_TRUE(exceptionFrom([&] {
                    model->setValueForKey(value, property.name);
                  }).starts_with("NSInvalidArgumentException: "))
          << property.name << describe(value);
    }
  }
  EXPECT_EQ(exceptionFrom([] { make<ComputedModel>()->setValueForKey(1, "twice"); }),
            "NSUnknownKeyException: [<ComputedModel> setValue:forUndefinedKey:]: this class is not "
            "key value coding-compliant for the key twice.");
}

TEST(Validation, ConvertsByTheTypeCodeAndLeavesTheErrorNil) {
  const auto model = make<ObjectModel>();
  const auto scalars = make<ScalarModel>();
  const struct {
    const OrvantaBaseModel* model;
    std::string_view property;
    Value value;
    Value converted;  // nil: invalid
  } rows[] = {
      {model.get(), "url", "a", *Url::parse("a")},
      {model.get(), "url", *Url::parse("a"), "a"},
      {model.get(), "date", 1500, Date{1.5}},
      {model.get(), "date", Date{1.5}, 1500},
      {model.get(), "date", Value::null(), Value::null()},
      {model.get(), "date", "1500", Value()},
      {model.get(), "missing", "a", "a"},
      {scalars.get(), "flag", " +2", true},
  };
  for (const auto& row : rows) {
    for (const bool byPath : {false, true}) {
      Value value = row.value;
      Value error;
      const bool valid = byPath ? row.model->validateValueForKeyPath(value, row.property, &error)
                                : row.model->validateValue(value, row.property, &error);
      EXPECT_EQ(valid, !row.converted.isNil()) << row.property << describe(row.value);
      EXPECT_EQ(value, valid ? row.converted : row.value) << row.property;
      EXPECT_EQ(value.kind(), valid ? row.converted.kind() : row.value.kind()) << row.property;
      EXPECT_TRUE(error.isNil());
    }
  }
  Value null = Value::null();
  EXPECT_EQ(exceptionFrom([&] { scalars->validateValue(null, "flag"); }),
            "NSInvalidArgumentException: -[NSNull boolValue]: "
            "unrecognized selector sent to instance");
}

}  // namespace
}  // namespace orvanta::testing
