#include <gtest/gtest.h>

#include "support/Values.h"

// Documents by category. A rejected one has a "^" before the byte of the error; an accepted one is
// followed by " -> " and its canonical form, where that differs.

namespace orvanta::testing {
namespace {

using namespace std::string_literals;  // for strings with a NUL

constexpr std::string_view kEnd = "the text ends where a value should stand";
constexpr std::string_view kValue = "expected a value";
constexpr std::string_view kTrailing = "text after the value";
constexpr std::string_view kUTF8 = "text that is not UTF-8";
constexpr std::string_view kDepth = "more than 512 nested containers";

/// Parses from a block of exactly the document's size, so that sanitizers see reads past its end.
Value read(std::string_view text, JSONError* error = nullptr) {
  const std::vector<char> block(text.begin(), text.end());
  return parseJSON({block.data(), block.size()}, error);
}

void readsPrefixes(std::string_view text) {
  for (std::size_t size = 0; size < text.size() && size < 64; ++size) {
    JSONError error;
    static_cast<void>(read(text.substr(0, size), &error));
    EXPECT_LE(error.offset, size);
  }
}

void rejects(std::string_view reason, std::string text) {
  SCOPED_TRACE(text.substr(0, 100));
  const std::size_t offset = text.find('^');
  text.erase(offset, 1);
  JSONError error;
  EXPECT_TRUE(read(text, &error).isNil());
  EXPECT_EQ(error.reason, reason);
  EXPECT_EQ(error.offset, offset);
  EXPECT_TRUE(parseJSON(text).isNil());
  readsPrefixes(text);
}

void accepts(Kind kind, const std::string& row) {
  SCOPED_TRACE(row.substr(0, 100));
  const auto arrow = row.find(" -> ");
  const std::string text = row.substr(0, arrow);
  const std::string canonical = arrow == std::string::npos ? text : row.substr(arrow + 4);
  JSONError error{"untouched", 7};
  const Value value = read(text, &error);
  EXPECT_EQ(value.kind(), kind);
  EXPECT_EQ(toJSON(value, {.escapeSlashes = false}), canonical);
  EXPECT_EQ(read(canonical), value);
  EXPECT_EQ(error.reason, "untouched");
  readsPrefixes(text);
  if (text.starts_with("\xEF") || !isValidJSONObject(Array({value}))) return;  // or too deep
  EXPECT_EQ(read("[0," + text + " ,1]"), Value(Array({0, value, 1})));
  EXPECT_EQ(read("\n{\"k\":" + text + "}"), Value(Dictionary({{"k", value}})));
}

using Texts = std::vector<std::string>;
void rejectAll(const std::vector<std::pair<std::string_view, Texts>>& groups) {
  for (const auto& [reason, texts] : groups) {
    for (const std::string& text : texts) rejects(reason, text);
  }
}
void acceptAll(Kind kind, const Texts& texts) {
  for (const std::string& text : texts) accepts(kind, text);
}

// ---- Structure --------------------------------------------------------------

TEST(JSONConformance, AcceptsStructure) {
  acceptAll(Kind::array,
            {"[]", " [ ] -> []", "[[]]", "[[],[]]", "[{}]", "[[1],[[2]],3]",
             " \t\r\n[ 1 , false,null , \"a\" ]\n -> [1,false,null,\"a\"]", "[\r\n1\r\n] -> [1]",
             R"([true,[false],{"x":null}])", R"(["{","\"}",":,"])", "[1,[2,[3,[4]]],[],5]"});
  acceptAll(Kind::dictionary,
            {"{}", "\t{\n}\r -> {}", R"({"a":[]})", R"({"[":"]","{":"}",":":","})",
             R"({"a" : {"b":[{"c":1}]},"d":2} -> {"a":{"b":[{"c":1}]},"d":2})",
             R"({"b":1,"a":2,"B":3})", R"({"a key of more than fourteen bytes":2})"});
  acceptAll(Kind::boolean, {" true\n -> true", "false"});
  acceptAll(Kind::null, {"null"});
}

TEST(JSONConformance, RejectsStructure) {
  rejectAll(
      {{kEnd, {"^", " ^", "\n\t^", "[^", "[1,^", "[[],^", "{\"a\":^"}},
       {"the text ends inside a container", {"[1^", "[[1]^", "{\"a\":1^", "{\"a\":{}^", "[{}  ^"}},
       {kValue, {"^]",      "^}",    "^,",        "^:",         "[^,",         "[^,1]",
                 "[1,^,2]", "[1,^]", "[^}",       "{\"a\":^}",  "{\"a\":^:1}", "^nul",
                 "[^fals]", "^True", "^NULL",     "^undefined", "^/**/[1]",    "^#c\n1",
                 "^\f[]",   "^\v[]", "^\u2028[]", "^\\u005b]",  "\r\n [1, ^?]"}},
       {kValue, {"[^\0]"s}},
       {kTrailing, {"[1]^\0"s, "1^\0"s}},
       {"expected ',' or ']'", {"[1 ^2]", "[1^}", "[1^:2]", "[1^;2]", "[1^/*c*/]", "[1^\u00a0]"}},
       {"expected ',' or '}'", {"{\"a\":1^]", R"({"a":1 ^"b":2})", "{\"a\":1^:2}", "{\"a\":1^;}"}},
       {"expected a key in quotes",
        {"{^", "{\"a\":1,^", "{^]", "{^,}", "{^{}}", "{^[]:1}", "{^1:2}", "{^null:1}", "{^a:1}",
         "{^'a':1}", "{\"a\":1,^}", R"({"a":1,^,"b":2})"}},
       {"expected ':' after a key",
        {"{\"a\"^", "{\"a\"^}", "{\"a\"^,1}", "{\"a\"^=1}", "{\"a\" ^1}", R"({"a":1,"b"^})"}},
       {kTrailing,
        {"[1]^[2]", "{}^{}", "[]^]", "1 ^2", "null ^null", R"("a"^"b")", "true^,", "null^l",
         "true^false", "[1]^//c", "{}^x"}}});
}

TEST(JSONConformance, ReportsLineAndColumnOfAnError) {
  const struct {
    std::string_view text;
    TextPosition position;
  } rows[] = {{"[1 2]", {1, 4}},
              {"[\"a\nb\"]", {1, 4}},
              {"\r\n\r\n  [1,\r\n   ?]", {4, 4}},
              {"\xEF\xBB\xBF?", {1, 1}},
              // Columns count characters; preceding keys and containers do not matter.
              {"{\n  \"\u00e9\U0001F600\": [1, {\"long enough to be carved\": [tru]}]}", {2, 43}}};
  for (const auto& row : rows) {
    JSONError error;
    read(row.text, &error);
    const TextPosition position = TextPosition::of(error.offset, row.text);
    EXPECT_EQ(position.line, row.position.line) << row.text;
    EXPECT_EQ(position.column, row.position.column) << row.text;
  }
}

// ---- Numbers ----------------------------------------------------------------

TEST(JSONConformance, AcceptsNumbersAndKeepsTheirKind) {
  acceptAll(Kind::integer, {"0", "1", "-1", "10", "9007199254740993", "9223372036854775806",
                            "9223372036854775807", "-9223372036854775808"});
  acceptAll(Kind::unsignedInteger, {"9223372036854775808", "18446744073709551615"});
  acceptAll(Kind::real,
            {"1.0 -> 1", "65.0 -> 65", "0.5", "-0.5", "0.0 -> 0", "-0.0", "0e0 -> 0", "0.1",
             "1e2 -> 100", "1E2 -> 100", "1e+2 -> 100", "1e-0 -> 1", "1.5e3 -> 1500", "5e-324"});
  acceptAll(Kind::real, {"-0E-5 -> -0.0", "25E-2 -> 0.25", "1e00002 -> 100", "1e22 -> 1e+22",
                         "1e23 -> 1e+23", "0.30000000000000004", "123.456e-2 -> 1.23456"});
  acceptAll(Kind::real,
            {"0e999999999999999999999 -> 0", "2.2250738585072014e-308",
             "1.7976931348623157e308 -> 1.7976931348623157e+308", "2.225073858507201e-308",
             "1.7976931348623158e308 -> 1.7976931348623157e+308", "2.4703282292062327e-324 -> 0",
             "2.4703282292062328e-324 -> 5e-324", "1.00000000000000011102230246251565404 -> 1",
             "1.00000000000000011102230246251565405 -> 1.0000000000000002"});
  const std::string zeros(400, '0');
  acceptAll(Kind::real, {"0." + zeros + "1e401 -> 1", "1" + zeros + "e-400 -> 1",
                         "1." + zeros + zeros + "1 -> 1", "0." + std::string(5000, '9') + " -> 1",
                         "4." + zeros + "5e1 -> 40"});
}

TEST(JSONConformance, RejectsNumbers) {
  rejectAll(
      {{kValue, {"^+1", "^.5", "^$1", "^Infinity", "^NaN", "[^inf]", "^\u0663", "^\uff11"}},
       {"expected a digit",
        {"-^",  "-^-1", "-^+1", "-^ 1",  "-^a",    "-^.5",  "1.^",        "1.^e2", "1.^-2", "[1.^]",
         "1e^", "1e+^", "1e-^", "1e^ 5", "1e+^-5", "1e^.5", "-^Infinity", "-^NaN", "0.^",   "0e^"}},
       {"a number with a leading zero", {"^01", "^-01", "[^00]", "^012.5", "^-00", "[0,^-007]"}},
       {kTrailing,
        {"1e1^.5", "1.2^.3", "1e5^e5", "0^x10", "0^b1", "1^_000", "1^,000", "1 ^000", "1^f", "1^%",
         "1^\u0663", "0^-1"}}});
}

// ---- Strings ----------------------------------------------------------------

TEST(JSONConformance, AcceptsStrings) {
  acceptAll(Kind::string,
            {R"("")", R"(" ")", R"("\"")", R"("\\")", R"("/")", R"("'")", R"("\\n")", R"("\\\"")",
             R"("\u001f")", R"("\\u0041")", R"("\b\f\n\r\t")", R"("/*c*/ //c")"});
  acceptAll(Kind::string, {R"("\/" -> "/")", R"("\u0041" -> "A")", R"("\u00410041" -> "A0041")",
                           R"("\u00e9\u00E9\u20ac" -> "éé€")", R"("\u0022\u005C\u002f" -> "\"\\/")",
                           R"("\uaBcD" -> "ꯍ")", R"("\ud83d\ude00" -> "😀")", R"("fourteen bytes")",
                           R"("fifteen bytes!!")"});
  const std::string x(40, 'x');
  acceptAll(Kind::string, {"\"\\u007F\\u0080\\u07ff\\u0800\" -> \"\x7F\u0080\u07ff\u0800\"",
                           "\"\\uD800\\uDC00\\udbff\\udfff\" -> \"\U00010000\U0010FFFF\"",
                           "\"\\ud7ff\\ue000\" -> \"\ud7ff\ue000\"",
                           '"' + x + "\\n" + x + R"(\u00e9" -> ")" + x + "\\n" + x + "\u00e9\""});
}

TEST(JSONConformance, RejectsStrings) {
  rejectAll(
      {{"a string without its closing quote", {"^\"", "^\"abc", "[^\"a", R"(^"a\")", R"({^"a:1})"}},
       {"the text ends inside an escape", {R"("^\)", R"("abcdefgh^\)"}},
       {"an unknown escape",
        {R"("^\x41")", R"("^\a")", R"("^\v")", R"("^\0")", R"("^\'")", R"("^\N")", R"("^\U0041")",
         "\"^\\\n\"", "\"^\\\u00e9\""}},
       {"an unknown escape", {"\"^\\\0\""s}},
       {"expected four hex digits after \\u",
        {R"("^\u)", R"("^\u")", R"("^\u12)", R"("^\u12")", R"("^\u12g4")", R"("^\u+123")",
         R"("^\u-123")", R"("^\u 123")", R"("^\u0x41")", R"("^\u{41}")", R"("ab^\u004")"}},
       {kValue, {"^'a'", "^`a`", "^a", "^\u201ca\u201d"}}});
  for (char control = 0; control < ' '; ++control) {
    rejects("a control character in a string", std::string("[\"a^").append(1, control) + "\"]");
  }
}

TEST(JSONConformance, FindsSpecialCharactersAtEveryOffset) {
  for (std::size_t before = 0; before < 20; ++before) {
    for (std::size_t after = 0; after < 12; ++after) {
      const auto plain = [&](std::string_view middle) {
        return std::string(before, 'h').append(middle).append(after, 't');
      };
      const auto quoted = [&](std::string_view middle) { return '"' + plain(middle) + '"'; };
      EXPECT_EQ(read(quoted("\\n")), Value(plain("\n")));
      EXPECT_EQ(read(quoted("\u00e9")), Value(plain("\u00e9")));
      EXPECT_EQ(read(quoted(" !#[]~\x7F")), Value(plain(" !#[]~\x7F")));
      for (const char bad : {'\0', '\n', '\x1F', '\x80', '\xFF'}) {
        JSONError error;
        EXPECT_TRUE(read(quoted({&bad, 1}), &error).isNil());
        EXPECT_EQ(error.offset, before + 1);
      }
    }
  }
}

// ---- UTF-8 ------------------------------------------------------------------

TEST(JSONConformance, AcceptsUTF8) {
  for (const char* text : {"\x7F", "\u0080", "\u07ff", "\u0800", "\ud7ff", "\ue000", "\uffff",
                           "\U00010000", "\U0003FFFF", "\U00040000", "\U000FFFFF", "\U0010FFFF",
                           "a\u00e9b\u20acc\U0001F600d", "e\u0301", "\u200f\u202e\u202c"}) {
    const std::string quoted = '"' + std::string(text) + '"';
    EXPECT_EQ(read(quoted), Value(text));
    accepts(Kind::string, quoted);
    accepts(Kind::dictionary, "{" + quoted + ":1}");
  }
}

TEST(JSONConformance, RejectsInvalidUTF8) {
  for (const std::string bytes :
       {// Invalid lead bytes, overlong forms, surrogates, beyond the last character
        "\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x80\x80\x80",
        "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF", "\xED\xA0\xBD\xED\xB8\x80",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xFC\x84\x80\x80\x80\x80",
        "\xFE", "\xFF",
        // Truncated sequences
        "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xC3(", "\xE2(\xA1", "\xE2\x82(", "\xF0(\x8C\xBC",
        "\xF0\x90(\xBC", "\xF0\x9F\x98(", "\xC3\xC3\xA9", "\xE9t\xE9"}) {
    rejects(kUTF8, "\"^" + bytes + "\"");
    rejects(kUTF8, "\"^" + bytes);
    rejects(kUTF8, "{\"\\n^" + bytes + "\":1}");
    rejects(kValue, "[^" + bytes + "]");
  }
}

// ---- Depth and size ---------------------------------------------------------

TEST(JSONConformance, AcceptsUpTo512NestedContainers) {
  for (const std::string open : {"[", R"({"a":)", "[0,", R"([{"a":0,"b":)"}) {
    const bool isPair = open.size() > 5;
    const std::string close = isPair ? "}]" : open[0] == '[' ? "]" : "}";
    const std::size_t most = isPair ? 256 : 512;
    accepts(open[0] == '[' ? Kind::array : Kind::dictionary, nested(most, open, close, "1"));
    for (const std::string core : {"^[]", "^{}", "^[1]", "^["}) {
      rejects(kDepth, nested(most, open, close, core));
    }
    rejects(kDepth, nested(most, open, "") + "^" + nested(100'000, open, ""));
  }
  accepts(Kind::array, nested(512, "[", "]"));
  rejects(kEnd, nested(512, "[", "") + "^");
  rejects(kTrailing, nested(512, "[", "]") + "^]");
  accepts(Kind::array,
          "[" + nested(2000, "[],", "", "[]") + "]");  // many containers, not deep ones
}

TEST(JSONConformance, AcceptsEverySizeOfContainer) {
  for (const int size : {1, 2, 15, 16, 17, 31, 32, 33, 63, 64, 65, 1000}) {
    for (const char* name : {"", "a key of more than fourteen bytes "}) {
      Array array;
      Dictionary dictionary;
      for (int i = 0; i < size; ++i) {
        array.append(name + std::to_string(i));
        dictionary.set(name + std::to_string(i), i);
      }
      EXPECT_EQ(read(toJSON(array)), Value(array));
      const Value again = read(toJSON(dictionary));
      EXPECT_EQ(again, Value(dictionary));
      EXPECT_EQ((*again.dictionary())[name + std::to_string(size - 1)], Value(size - 1));
      std::string twice = toJSON(dictionary);
      twice.back() = ',';
      EXPECT_EQ(read(twice + toJSON(dictionary).substr(1)), again);
    }
  }
}

// ---- What the grammar leaves open -------------------------------------------

TEST(JSONConformance, HasARuleForWhatTheGrammarLeavesOpen) {
  const struct {
    std::string_view rule;
    Kind kind;
    Texts texts;
  } accepted[] = {
      {"a byte-order mark is skipped", Kind::array, {"\xEF\xBB\xBF[1] -> [1]"}},
      {"the last value of a key at the first place",
       Kind::dictionary,
       {R"({"a":1,"b":2,"a":3} -> {"a":3,"b":2})", R"({"a":{"a":1},"b":{"a":1}})",
        R"({"a":1,"\u0061":{"x":1,"x":2},"a":[1]} -> {"a":[1]})",
        R"({"fifteen letters":1,"b":2,"fifteen\u0020letters":3} -> {"fifteen letters":3,"b":2})"}},
      {"keys are any text, in the text's order",
       Kind::dictionary,
       {R"({"z":1,"a":2,"10":3,"9":4})", R"({"":1})", R"({"\u0000":1,"":2})",
        "{\"\u00e9\":1,\"e\u0301\":2}"}},
      {"-0 is a fraction", Kind::real, {"-0 -> -0.0"}},
      {"beyond 64 bits the nearest double",
       Kind::real,
       {"18446744073709551616", "9007199254740993.0 -> 9007199254740992",
        "-9223372036854775809 -> -9223372036854775808", "100000000000000000000 -> 1e+20"}},
      {"too small is zero", Kind::real, {"1e-400 -> 0", "-1e-99999999999999999999 -> -0.0"}},
      {"every character is kept",
       Kind::string,
       {R"("a\u0000b")", "\"\\uffff\\ufdd0\" -> \"\uffff\ufdd0\"", "\"\x7F\u2028\u0085\""}}};
  for (const auto& [rule, kind, texts] : accepted) {
    SCOPED_TRACE(rule);
    acceptAll(kind, texts);
  }
  // A second mark, UTF-16, numbers beyond a double, half of a pair
  rejectAll({{kValue,
              {"\xEF\xBB\xBF^\xEF\xBB\xBF[1]", " ^\xEF\xBB\xBF[1]", "^\xFF\xFE[\0]\0"s,
               "^\xFE\xFF\0[\0]"s, "[^\0]\0"s, "^\0[\0]"s}},
             {"a number beyond the range of a double",
              {"^1e400", "[0, ^-1e400]", "^1.7976931348623159e308", "^1e99999999999999999999",
               "^1" + std::string(400, '0')}},
             {"half of a surrogate pair",
              {R"("^\ud800")", R"("^\udc00")", R"("a^\ud800\u0041")", R"("^\ud800\ue000")",
               R"("^\ud800\ud800\udc00")", R"("^\udc00\ud800")", R"("^\ud83d)", R"("^\ud83d\)",
               R"("^\ud83d\n")", R"("^\ud83d\ude)", R"("^\ud83d\ude0g")"}}});
}

}  // namespace
}  // namespace orvanta::testing
