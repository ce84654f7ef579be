#include <gtest/gtest.h>
#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <new>

#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/NotificationService/NotificationHelper.h"
#include "support/FakePlatform.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"

// Hostile inputs. Counts the allocations for a size and for twice that size; scripts/measure-bounds
// shows the times.

static thread_local struct Heap { std::size_t live, peak, total, calls; } heap;
static thread_local std::size_t callsUntilFailure = 0;  // 0: none

void* operator new(std::size_t bytes) {
  if (callsUntilFailure != 0 && --callsUntilFailure == 0) throw std::bad_alloc();
  void* memory = std::malloc(bytes);
  if (memory == nullptr) throw std::bad_alloc();
  const std::size_t size = malloc_usable_size(memory);
  heap.peak = std::max(heap.peak, heap.live += size);
  heap.total += size, ++heap.calls;
  return memory;
}
void operator delete(void* memory) noexcept {
  heap.live -= malloc_usable_size(memory);
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*bytes*/) noexcept { operator delete(memory); }

namespace orvanta::testing {
namespace {

/// The allocations of this thread's work; the peak is the highest growth.
Heap used(const std::function<void()>& work) {
  constexpr std::size_t kBase = std::size_t{1} << 60U;  // work may free more than it allocates
  heap = {kBase, kBase, 0, 0};
  work();
  return {heap.live, heap.peak - kBase, heap.total, heap.calls};
}

/// The item n times; each "@" becomes a different string, all of which collide in a hash that
/// multiplies by 31.
std::string textOf(std::size_t n, std::string_view open, std::string_view item,
                   std::string_view separator, std::string_view close) {
  std::string text(open);
  for (std::size_t i = 0; i < n; ++i) {
    text += i == 0 ? "" : separator;
    for (const char c : item) {
      if (c != '@') text += c;
      for (unsigned bit = 0; c == '@' && bit < 21; ++bit) text += (i >> bit & 1) != 0 ? "Aa" : "BB";
    }
  }
  return text.append(close);
}

void read(const std::string& text) { parseJSON(text); }
void tell(const std::string& text) { findDuplicateKeys(text); }
void write(const std::string& text) {
  Value value = parseJSON(text);
  toPrettyJSON(value);
  describe(value);
  value.editArray().append(1);  // copies an array
}
void push(const std::string& text) {
  const RefusalRecorder recorder;
  const auto object = modelFromJSON<OrvantaPushObject>(text);
  if (object)
    object->copyWithZone(), object->debugDescription(), toPrettyJSON(object->dictionaryValue());
}
void path(const std::string& text) {
  const auto model = make<LeafModel>();
  model->setKeyPathPropertyDictionary({{text, "name"}});
  updateFromJSON(*model, nested(500, R"({"a":)", "}", "1"));
}
void categories(const std::string& text) {
  FakePlatform platform;
  UNNotificationCategorySet& set = platform.center->registered;
  const Value names = parseJSON(text);
  for (const Value& name : *names.array()) set.insert({std::string(*name.string()), {}});
  NotificationHelper::setNotificationCategories(set, platform.center, {});
  platform.runAll();
}

const std::string kDeep(500, '[');
const std::string kDeepEnd(500, ']');

const struct {
  const char* name;
  void (*work)(const std::string& text);
  std::size_t most;  // bytes of memory per byte of the input
  std::string_view open, item, separator, close;
} kRows[] = {
    {"one text, 100 n", read, 3, "\"", "@@sixteen bytes...", "", "\""},
    {"one text of escapes", read, 5, "\"", "\\u00e9", "", "\""},
    {"elements", read, 35, "[", "1", ",", "]"},
    {"empty dictionaries", read, 40, "[", "{}", ",", "]"},
    {"keys of one prefix", read, 5, "{", R"("pppppppppp@":1)", ",", "}"},
    {"keys of one weak hash", read, 5, "{", R"("@":1)", ",", "}"},
    {"equal keys", read, 20, "{", R"("a":1)", ",", "}"},
    {"equal keys told", tell, 20, "{", R"("a":1)", ",", "}"},
    {"different keys told", tell, 5, "{", R"("@":1)", ",", "}"},
    {"arrays in arrays", read, 3, "", "[", "", "1"},
    {"digits", read, 3, "0.", "7", "", ""},
    {"digits before the dot", read, 3, "", "7", "", ".5"},
    {"elements written", write, 35, "[", "1", ",", "]"},
    {"deep elements written", write, 300, kDeep, "1", ",", kDeepEnd},
    {"keys written", write, 10, "{", R"("pppppppppp@":1)", ",", "}"},
    {"a URL", push, 10, R"({"_ov":{"mu":")", "u", "", R"("}})"},
    {"a deep link", push, 15, R"({"_ov":{"act":{"uri":")", "/", "", R"("}}})"},
    {"models", push, 25, R"({"_ov":{"crsl":[)", R"({"klazz":"OrvantaReviewAction"})", ",", "]}}"},
    {"actions", push, 100, R"({"_ov":{"ia":[)", R"({"id":"a"})", ",", "]}}"},
    {"parts in an array", push, 50, R"({"_ov":[)", "{}", ",", "]}"},
    {"names of a key path", path, 20, "", "a", ".", ""},
    {"categories", categories, 30, "[", R"("c@")", ",", "]"},
};

TEST(ResourceBounds, MemoryIsBoundedByTheInputAndWorkGrowsLinearly) {
  const char* asked = std::getenv("ORVANTA_BOUNDS");
  const std::size_t n = asked != nullptr ? std::strtoul(asked, nullptr, 10) : 5000;
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    const RecordingPlatform platform;
    const auto work = [&](const std::string& text) { return used([&] { row.work(text); }); };
    const std::string text = textOf(n, row.open, row.item, row.separator, row.close);
    work(textOf(1, row.open, row.item, row.separator, row.close));  // initializes static data
    const auto begin = std::chrono::steady_clock::now();
    const Heap once = work(text);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    if (asked != nullptr) {
      std::printf("%-23s %9zu bytes %8.3f s %12zu bytes of memory\n", row.name, text.size(),
                  seconds.count(), once.peak);
    }
    const Heap twice = work(textOf(2 * n, row.open, row.item, row.separator, row.close));
    constexpr std::size_t kLargestBlock = std::size_t{1} << 20U;  // of an arena
    EXPECT_LE(once.peak, row.most * text.size() + kLargestBlock);
    EXPECT_LE(twice.total, once.total * 9 / 4 + kLargestBlock);
    EXPECT_LE(twice.calls, once.calls * 2 + 100);
  }
}

TEST(ResourceBounds, ComparesNoCategoryWithEveryOther) {
  static int comparisons = 0;
  struct Counted : UNNotificationAction {
    explicit Counted(unsigned options) : UNNotificationAction("id", "", options) {}
    bool isEqual(const Value& /*other*/) const override { return ++comparisons == 0; }
  };
  UNNotificationCategorySet set;
  for (unsigned i = 0; i < 2000; ++i) set.insert({"same", {Ref<Counted>::adopt(new Counted(i))}});
  EXPECT_LE(comparisons, static_cast<int>(set.size()));
}

TEST(ResourceBounds, ADictionaryKeepsItsValuesWhenItCannotGrow) {
  const std::string added(20, 'x');
  for (std::size_t failing = 1;; ++failing) {
    Dictionary dictionary;
    for (int i = 0; i < 32; ++i) dictionary.set(std::to_string(i), i);
    const Value key(added);
    bool isSet = true;
    callsUntilFailure = failing;
    try {
      dictionary.set(key, 32);
    } catch (const std::bad_alloc&) {
      isSet = false;
    }
    const bool isEnough = std::exchange(callsUntilFailure, 0) != 0;
    for (int i = 0; i < 32; ++i) EXPECT_EQ(dictionary[std::to_string(i)], Value(i));
    EXPECT_EQ(dictionary.size(), isSet ? 33U : 32U);
    if (isEnough) break;
  }
}

std::string deepAndWide(std::string_view open, std::string_view item) {
  return std::string(open) + nested(500, "[", "]", textOf(2000, "", item, ",", "")) + "}";
}

// Lines are indented by their depth: the description of this one is a thousand times its size.
TEST(ResourceBounds, TruncatesADeepPayloadInTheLog) {
  RecordingPlatform platform;
  const Dictionary payload = dictionaryFromJSON(deepAndWide(R"({"size":)", "1"));
  EXPECT_LT(used([&] { EXPECT_FALSE(make<LeafModel>(payload)); }).peak, 1'000'000U);
  EXPECT_GT(platform.log.at(0).size(), 65536U);
}

// Each of these reads its action twice, so the innermost is created 2^9 times, and fails.
TEST(ResourceBounds, TruncatesLogLinesOfManyFailedModels) {
  std::string text = R"({"klazz":"OrvantaPushObject","_ov":{"pt":null},"x":")";
  text.append(2000, 'x').append("\"}");
  for (int i = 0; i < 9; ++i) {
    text = std::string(R"({"klazz":"OrvantaPushObject","_ov":{"act":)")
               .append(R"({"klazz":"OrvantaPushObjectAction","uri":)")
               .append(text)
               .append("}}}");
  }
  RecordingPlatform platform;
  modelFromJSON<OrvantaPushObject>(text);
  ASSERT_EQ(platform.log.size(), 512U);
  EXPECT_LT(platform.log.back().size(), 400U);
}

TEST(ResourceBounds, ReportsWhyADeepArrayFailedInOneWalk) {
  const RecordingPlatform platform;
  const Dictionary payload = dictionaryFromJSON(deepAndWide(R"({"aps":)", "{}"));
  const auto update = [&] { EXPECT_FALSE(make<DottedModel>(payload)); };
  const std::size_t unrecorded = used(update).total;
  const RefusalRecorder recorder;
  EXPECT_LT(used(update).total, 2 * unrecorded);
}

}  // namespace
}  // namespace orvanta::testing
