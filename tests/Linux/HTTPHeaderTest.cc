#include <gtest/gtest.h>

#include "orvanta/Linux/HTTPHeader.h"

namespace orvanta::testing {
namespace {

TEST(MimeTypeOfHeader, IsATypeAndSubtypeInLowerCase) {
  const std::string longest(127, 'a');
  const struct {
    std::string header;
    std::optional<std::string> type;
  } rows[] = {
      {"image/png", "image/png"},
      {"IMAGE/Svg+XML", "image/svg+xml"},
      {" image/gif ; charset=\"a;b\"", "image/gif"},
      {"a!#$&^_.+-'*`|~%/0", "a!#$&^_.+-'*`|~%/0"},
      {longest + "/" + longest, longest + "/" + longest},
      {longest + "a/b", std::nullopt},
      {"a/" + std::string(100'000, 'b'), std::nullopt},
      {"", std::nullopt},
      {";charset=utf-8", std::nullopt},
      {"image", std::nullopt},
      {"image/", std::nullopt},
      {"/png", std::nullopt},
      {"image/png/x", std::nullopt},
      {"image /png", std::nullopt},
      {"image/png, text/html", std::nullopt},
      {"../../etc/passwd", std::nullopt},
      {"image/p\xC3\xA9", std::nullopt},
      {"image/p\xFF", std::nullopt},
      {"image/p\x1B[0m", std::nullopt},
      {"\"image/png\"", std::nullopt},
  };
  for (const auto& row : rows) EXPECT_EQ(mimeTypeOfHeader(row.header), row.type) << row.header;
}

}  // namespace
}  // namespace orvanta::testing
