#include <gtest/gtest.h>

#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

TEST(RequestCommand, PrintsTheCallOfARequest) {
  const ToolRun run = runTool({"request", "OrvantaFetchCouponRequest"}, R"({"page":2})");
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(
      toJSON(parseJSON(run.out), {.escapeSlashes = false}),
      R"({"baseURL":null,"path":"/coupon/fetch","HTTPMethod":"POST","HTTPHeaders":{},)"
      R"("HTTPBody":{"page":2,"max":0},"timeoutInterval":20,"queuePriority":0,"priority":1})");
  EXPECT_NE(runTool({"request", "OrvantaFetchCouponRequest", "--text"}, "{}")
                .out.find("Path : /coupon/fetch\n"),
            std::string::npos);
  EXPECT_EQ(runTool({"request", "OrvantaUser"}, "{}").exit, ExitCode::usage);
  EXPECT_EQ(runTool({"request", "OrvantaFetchCouponRequest"}, R"({"ids":{"iid":1},"max":[]})").exit,
            ExitCode::rejected);
}

}  // namespace
}  // namespace orvanta::testing
