#include <gtest/gtest.h>

#include "orvanta/Simulator/RemoteNotification.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(LaunchDecision, NamesEveryConditionThatIsNotMet) {
  const std::string notMutable = "\"aps.mutable-content\" is not 1";
  const std::string noString = "\"aps.alert\" has no text to show";
  const struct {
    std::string_view payload;
    std::vector<std::string> unmet;
  } rows[] = {
      {R"({})", {notMutable, noString}},
      {R"({"mutable-content": 1, "alert": "a"})", {notMutable, noString}},
      {R"({"aps": [{"mutable-content": 1, "alert": "a"}]})", {notMutable, noString}},
      // the flag
      {R"({"aps": {"mutable-content": 1, "alert": "a"}})", {}},
      {R"({"aps": {"mutable-content": true, "alert": "a"}})", {}},  // a boolean is a number
      {R"({"aps": {"mutable-content": 1.5, "alert": "a"}})", {notMutable}},
      {R"({"aps": {"mutable-content": "1", "alert": "a"}})", {notMutable}},
      // the alert
      {R"({"aps": {"mutable-content": 1, "alert": ""}})", {noString}},
      {R"({"aps": {"mutable-content": 1, "alert": ["a"]}})", {noString}},
      {R"({"aps": {"mutable-content": 1, "alert": {"title": "", "body": 5}}})", {noString}},
      {R"({"aps": {"mutable-content": 1, "alert": {"title": "", "body": "a"}}})", {}},
      {R"({"aps": {"mutable-content": 1, "alert": {"title-loc-key": "a"}}})", {}},
      {R"({"aps": {"mutable-content": 1, "alert": {"loc-key": "a"}}})", {}},
  };
  for (const auto& row : rows) {
    const LaunchDecision decision = launchDecision(dictionaryFromJSON(row.payload));
    EXPECT_EQ(decision.unmetConditions, row.unmet) << row.payload;
    EXPECT_EQ(decision.starts(), row.unmet.empty()) << row.payload;
  }
}

/// Has a string for "GREETING", and for no other key.
class SmallBundle final : public NSBundle {
 public:
  std::string localizedStringForKey(std::string_view key) override {
    return key == "GREETING" ? "Good day, %@!" : std::string(key);
  }
};

UNNotificationContent contentOf(const Dictionary& payload) {
  SmallBundle bundle;
  return contentForPayload(payload, bundle);
}

/// Returns "title|subtitle|body" of the content for an alert; "-" is none.
std::string stringsOf(std::string_view alert) {
  const UNNotificationContent content =
      contentOf(Dictionary{{"aps", Dictionary{{"alert", parseJSON(alert)}}}});
  return content.title.value_or("-") + "|" + content.subtitle.value_or("-") + "|" +
         content.body.value_or("-");
}

TEST(ContentForPayload, TakesTheStringsOfTheAlert) {
  const struct {
    std::string_view alert;
    std::string_view strings;
  } rows[] = {
      {R"("b")", "-|-|b"},
      {R"("100% %@")", "-|-|100% %@"},
      {R"(["b"])", "-|-|-"},
      {R"({"title": "t", "subtitle": "s", "body": "b"})", "t|s|b"},
      // a localization key wins if it is a string
      {R"({"title": "t", "title-loc-key": "T", "subtitle-loc-key": "S", "loc-key": "B"})", "T|S|B"},
      {R"({"title": "t", "title-loc-key": "", "body": "b", "loc-key": 5})", "t|-|b"},
      // each with arguments of its own
      {R"({"title-loc-key": "T %@", "title-loc-args": ["1"],
           "subtitle-loc-key": "S %@", "subtitle-loc-args": ["2"],
           "loc-key": "B %@", "loc-args": ["3"]})",
       "T 1|S 2|B 3"},
      {R"({"loc-key": "%@ and %@, %@.", "loc-args": ["a", "b"]})", "-|-|a and b, ."},
      {R"({"loc-key": "%2$@ %@ %@", "loc-args": ["a", "b"]})", "-|-|b a b"},
      {R"({"title-loc-key": "GREETING", "title-loc-args": ["Ann"], "body": "GREETING"})",
       "Good day, Ann!|-|GREETING"},
      {R"({"loc-key": "%11$@%@", "loc-args": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, "k"]})", "-|-|k1"},
      {R"({"loc-key": "%@%@%@", "loc-args": ["%@", 5, 1.5]})", "-|-|%@51.5"},
      {R"({"loc-key": "%@ %@", "loc-args": [true, null]})", "-|-|1 <null>"},
      {R"({"loc-key": "100%% %%@ %", "loc-args": ["a"]})", "-|-|100% %@ %"},
      {R"({"loc-key": "%d %0$@ %x", "loc-args": ["a"]})", "-|-|%d %0$@ %x"},
      {R"({"loc-key": "<%@>", "loc-args": "a"})", "-|-|<>"},
  };
  for (const auto& row : rows) EXPECT_EQ(stringsOf(row.alert), row.strings) << row.alert;
}

TEST(ContentForPayload, TruncatesArgumentsThatOutgrowTheirPayload) {
  const auto bodyOf = [](const std::string& format, const std::string& argument) {
    const std::string alert = R"({"loc-key": ")" + format + R"(", "loc-args": [)" + argument + "]}";
    return stringsOf(alert).substr(4);
  };
  const std::string deep = std::string(400, '[') + "1" + std::string(400, ']');
  std::string often;
  for (int i = 0; i < 1000; ++i) often += "%1$@";
  EXPECT_EQ(bodyOf("<%1$@%1$@>", deep), "<( …( …>");
  EXPECT_EQ(bodyOf("%@", R"({"a":)" + deep + "}").size(), 4096U + 4U);
  EXPECT_EQ(bodyOf("%@", '"' + std::string(4096, 'x') + '"'), std::string(4096, 'x'));
  EXPECT_EQ(bodyOf("%@", "\"x" + std::string(4094, 'x') + "é\""), std::string(4095, 'x') + " …");
  EXPECT_EQ(bodyOf(often, '"' + std::string(100, 'x') + '"'), std::string(65536, 'x') + " …");
}

TEST(ContentForPayload, TakesBadgeSoundCategoryAndThreadOfTheRightKind) {
  const struct {
    std::string_view aps;
    Value badge;
    Value sound;
    std::string_view category;
    std::string_view thread;
  } rows[] = {
      {"{}", {}, {}, "", ""},
      {R"({"badge": 0, "sound": "default", "category": "c", "thread-id": "t"})", 0, "default", "c",
       "t"},
      {R"({"badge": 2.5, "sound": {"critical": 1, "name": "n"}, "category": "", "thread-id": ""})",
       2.5, Dictionary{{"critical", 1}, {"name", "n"}}, "", ""},
      {R"({"badge": true, "sound": ""})", 1, "", "", ""},
      {R"({"badge": "1", "sound": 1, "category": 1, "thread-id": 1})", {}, {}, "", ""},
      {R"({"badge": {}, "sound": true, "category": {}, "thread-id": ["t"]})", {}, {}, "", ""},
  };
  for (const auto& row : rows) {
    const UNNotificationContent content =
        contentOf(Dictionary{{"aps", dictionaryFromJSON(row.aps)}});
    EXPECT_EQ(content.badge, row.badge) << row.aps;
    EXPECT_EQ(content.badge.kindName(), row.badge.kindName()) << row.aps;
    EXPECT_EQ(content.sound, row.sound) << row.aps;
    EXPECT_EQ(content.categoryIdentifier, row.category) << row.aps;
    EXPECT_EQ(content.threadIdentifier, row.thread) << row.aps;
  }
}

}  // namespace
}  // namespace orvanta::testing
