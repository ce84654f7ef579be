#include <gtest/gtest.h>

#include "orvanta/Model/Configuration/OrvantaAppConfig.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(OrvantaAppConfig, AnUpdateResetsTenPropertiesAndKeepsTheRest) {
  const std::string_view kDefaults =
      R"({"v":0,"badge":false,"locHist":false,"sei":180.0,"cei":9223372036854775808.0,)"
      R"("sai":false,"bte":false,"btl":0,"scv":false,"ife":false,"ipe":false,"exe":false,)"
      R"("itd":false,"ept":9223372036854775808.0,"ep":2,"oep":true})";
  const auto config = make<OrvantaAppConfig>();
  EXPECT_EQ(Value(config->dictionaryValue()), parseJSON(kDefaults));
  const Value all = parseJSON(
      R"({"v":4,"badge":true,"locHist":true,"sei":60,"cei":1,"sai":true,"url":"u","geofs":[{"a":1}],)"
      R"("htmlTemps":{},"interCats":[{"id":"a"},{"id":"b"}],"bte":true,"btl":3,"scv":true,)"
      R"("ife":true,"ipe":true,"exe":true,"itd":true,"ept":2,"appKey":"k","ep":0,"oep":false})");
  EXPECT_TRUE(config->updateWithDictionary(all.dictionary()));
  EXPECT_EQ(config->interactiveCategories().get()->size(), 2U);
  EXPECT_EQ(config->geofences().raw(), parseJSON(R"([{"a":1}])"));
  const Dictionary nothing;
  EXPECT_TRUE(config->updateWithDictionary(&nothing));
  Dictionary left = config->dictionaryValue();
  for (const Dictionary::Entry& row : dictionaryFromJSON(kDefaults)) {
    const bool isKept = row.key() == "bte" || row.key() == "btl" || row.key() == "ife" ||
                        row.key() == "ipe" || row.key() == "exe" || row.key() == "itd";
    EXPECT_EQ(left[row.key()], isKept ? (*all.dictionary())[row.key()] : row.value) << row.key();
  }
  EXPECT_EQ(left["url"], Value("u"));
}

}  // namespace
}  // namespace orvanta::testing
