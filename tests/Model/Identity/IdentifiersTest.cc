#include <gtest/gtest.h>

#include "orvanta/Model/Identity/OrvantaIdentifierUtil.h"
#include "orvanta/Model/Identity/OrvantaIdentifiers.h"
#include "orvanta/Platform/AdSupport.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/RandomSource.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {

/// A class of an application with one more identifier.
class ShopIdentifiers : public OrvantaIdentifiers {
  ORVANTA_MODEL(ShopIdentifiers, OrvantaIdentifiers)

  ORVANTA_PROPERTY("shop", copy, String, shopId, setShopId)
};
ORVANTA_IMPLEMENTATION(ShopIdentifiers)

namespace {

TEST(OrvantaIdentifiers, RemovesPropertiesThatAreEqual) {
  constexpr std::string_view kAll =
      R"({"iid":"i","did":"d","sid":"s","uid":"u","xid":"x","pid":"p","piid":"pp","fid":"f",)"
      R"("aid":1,"oid":2,"slt":3})";
  const struct {
    std::string_view own;
    std::string_view other;  // empty: nil
    std::string_view left;
  } rows[] = {
      {kAll, kAll, "{}"},
      {kAll, "", kAll},
      {R"({"iid":"i","did":"d"})", R"({"iid":"i","did":"D"})", R"({"did":"d"})"},
      {R"({"iid":null})", R"({"iid":null})", R"({"iid":null})"},
      {R"({"slt":1})", R"({"slt":1.0})", "{}"},
      {R"({"slt":1})", R"({"slt":"1"})", R"({"slt":1})"},
  };
  for (const auto& row : rows) {
    const auto own = modelFromJSON<OrvantaIdentifiers>(row.own);
    const auto named = modelFromJSON<OrvantaIdentifiers>(row.own);
    const auto other = row.other.empty() ? nullptr : modelFromJSON<OrvantaIdentifiers>(row.other);
    own->removePropertiesSameWithIdentifiers(other.get());
    EXPECT_EQ(Value(own->dictionaryValue()), parseJSON(row.left)) << row.own;
    for (const Property& property : named->isa().properties) {
      named->removePropertiesWithKeys({&property.name, 1}, other.get());
    }
    EXPECT_EQ(Value(named), Value(own)) << row.own;
  }
}

TEST(OrvantaIdentifiers, ComparesOnlyTheElevenInASubclass) {
  const auto own = modelFromJSON<ShopIdentifiers>(R"({"shop":"s","iid":"i"})");
  own->removePropertiesSameWithIdentifiers(
      modelFromJSON<OrvantaIdentifiers>(R"({"iid":"i"})").get());
  EXPECT_EQ(toJSON(own->dictionaryValue()), R"({"shop":"s"})");
}

TEST(OrvantaIdentifiers, RemovesOnlyTheNamedProperties) {
  const auto own = modelFromJSON<OrvantaIdentifiers>(R"({"iid":"i","did":"d"})");
  const std::string_view names[] = {"deviceId"};
  own->removePropertiesWithKeys(names, own.get());
  EXPECT_EQ(toJSON(own->dictionaryValue()), R"({"iid":"i"})");
  const std::string_view unknown[] = {"iid"};
  EXPECT_NE(exceptionFrom([&] { own->removePropertiesWithKeys(unknown, own.get()); }),
            "nothing thrown");
}

struct StillClock final : Clock {
  std::int64_t wall = 0;
  std::int64_t monotonic = 0;
  std::int64_t wallNanoseconds() override { return wall; }
  std::int64_t monotonicNanoseconds() override { return monotonic; }
};
struct LoadedDice final : RandomSource {
  std::uint32_t next = 0;
  std::uint32_t bound = 0;
  std::uint32_t uniform(std::uint32_t upperBound) override {
    bound = upperBound;
    return next;
  }
};
struct Manager final : ASIdentifierManager {
  std::optional<NSUUID> advertisingIdentifier() override { return NSUUID{"6D92078A-8246"}; }
};
struct ManagerClass final : ASIdentifierManagerClass {
  std::shared_ptr<ASIdentifierManager> manager;
  std::shared_ptr<ASIdentifierManager> sharedManager() override { return manager; }
};
struct IdentityPlatform final : Platform {
  StillClock still;
  LoadedDice dice;
  ManagerClass managerClass;
  Clock* clock() override { return &still; }
  RandomSource* randomSource() override { return &dice; }
  RuntimeClass* classNamed(std::string_view name) override {
    return name == "ASIdentifierManager" ? &managerClass : nullptr;
  }
};

TEST(OrvantaIdentifierUtil, CombinesARandomNumberWithATime) {
  IdentityPlatform platform;
  const PlatformOverride override(platform);
  platform.still.wall = 1'700'000'000'123'456'789;
  platform.still.monotonic = 5'000;
  platform.dice.next = 4710;
  const auto next = [] {
    return OrvantaIdentifierUtil::generateShortIdentifierDecimalNumber().stringValue();
  };
  EXPECT_EQ(next(), "47111700000000123456789");
  EXPECT_EQ(platform.dice.bound, 65534U);
  EXPECT_EQ(OrvantaIdentifierUtil::generateShortIdentifier(), "FiNPDvMOVkwBo");
  // Afterwards the monotonic clock counts, even if the wall clock changes.
  platform.still.wall = 0;
  platform.still.monotonic += 1'000'000'001;
  platform.dice.next = 65533;
  EXPECT_EQ(next(), "655341700000001123456790");
}

TEST(OrvantaIdentifierUtil, WritesBase62InReverse) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"0", ""},
      {"1", "b"},
      {"26", "1"},
      {"35", "0"},
      {"36", "A"},
      {"61", "Z"},
      {"62", "ab"},
      {"-1", ""},
      {"1.5", ""},
      {"no number", ""},
      {"1e38", ""},
      {"1e60", ""},
      {"99999999999999999999999999999999999999", "nLWb0sl9zShYhaseY67Xrc"},
  };
  for (const auto& [number, text] : rows) {
    EXPECT_EQ(OrvantaIdentifierUtil::base62String(DecimalNumber::decimalNumberWithString(number)),
              text)
        << number;
  }
}

TEST(OrvantaIdentifierUtil, LooksUpTheAdvertisingIdentifierAtRunTime) {
  EXPECT_EQ(OrvantaIdentifierUtil::advertisingId(), std::nullopt);
  IdentityPlatform platform;
  const PlatformOverride override(platform);
  EXPECT_EQ(OrvantaIdentifierUtil::advertisingId(), std::nullopt);
  platform.managerClass.manager = std::make_shared<Manager>();
  EXPECT_EQ(OrvantaIdentifierUtil::advertisingId(), "6D92078A-8246");
}

}  // namespace
}  // namespace orvanta::testing
