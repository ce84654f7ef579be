#include <gtest/gtest.h>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Foundation/Url.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

TEST(Url, KeepsEveryValidString) {
  for (const std::string_view text :
       {"", "abc", "/a/b", "https://user:pw@host:80/p;a=1/~x?q=a&b=(c)*!'$,+-_#frag/?",
        "http://[::1]/", "a[b]", "scheme%3A%2F%2Fhost", "%aF", "#", "//", "?", "a%00b"}) {
    const auto url = Url::parse(text);
    ASSERT_TRUE(url.has_value()) << text;
    EXPECT_EQ(url->absoluteString(), text);
    EXPECT_EQ(describe(*url), text);
  }
}

TEST(Url, RejectsInvalidCharactersAndEscapes) {
  for (const std::string_view text : {" ",    "a b",   "\"",   "<",    ">",
                                      "\\",   "^",     "`",    "{",    "|",
                                      "}",    "\n",    "\x7F", "a\tb", "http://x/\xC3\xA4",
                                      "\xFF", "%",     "%4",   "a%4",  "%G0",
                                      "%0g",  "a%%41", "#a#",  "##"}) {
    EXPECT_FALSE(Url::parse(text).has_value()) << text;
  }
  EXPECT_FALSE(Url::parse(std::string_view("a\0b", 3)).has_value());
  EXPECT_FALSE(Url::parse(std::string_view("%41").substr(0, 2)).has_value());
}

TEST(PercentEncoding, EncodesCharactersOutsideTheSet) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"app://host/path?x=1", "app:%2F%2Fhost%2Fpath%3Fx=1"},
      {"%20", "%2520"},
      {"\xC3\xA4", "%C3%A4"},
      {"!$&'()*+,-.:;=[]_~", "!$&'()*+,-.:;=[]_~"},
      {"/?#@\"<>\\^{|}`", "%2F%3F%23%40%22%3C%3E%5C%5E%7B%7C%7D%60"},
      {"\n\x7F\xFF", "%0A%7F%FF"},
  };
  for (const auto& [text, encoded] : rows) {
    EXPECT_EQ(percentEncoded(text, CharacterSet::urlHostAllowed()), encoded);
  }
  EXPECT_EQ(percentEncoded(std::string_view("\0a", 2), CharacterSet::alphanumerics()), "%00a");
  EXPECT_EQ(percentEncoded("a-b", CharacterSet("-").with("b")), "%61-b");
}

}  // namespace
}  // namespace orvanta::testing
