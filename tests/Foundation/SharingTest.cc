#include <gtest/gtest.h>

#include "orvanta/Conformance/Threads.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

/// A copy with new containers and strings.
Value rebuilt(const Value& value) {
  if (const auto text = value.string()) return *text;
  if (const Array* array = value.array()) {
    Array copy;
    for (const Value& element : *array) copy.append(rebuilt(element));
    return copy;
  }
  if (const Dictionary* dictionary = value.dictionary()) {
    Dictionary copy;
    for (const Dictionary::Entry& entry : *dictionary) copy.set(entry.key(), rebuilt(entry.value));
    return copy;
  }
  return value;
}

TEST(Sharing, ThreadsReadCopyAndDropOneTree) {
  std::string text = R"({"list": [)";
  for (int i = 0; i < 100; ++i) {
    text += R"({"name": "a text of more than fourteen bytes", "id": )" + std::to_string(i) + "},";
  }
  text += R"({}], "url": "short", "many": {)";
  for (int i = 0; i < 40; ++i) text += "\"k" + std::to_string(i) + "\": [1, 2.5],";
  text += R"("last": null}})";
  for (const bool built : {false, true}) {
    Value tree = parseJSON(text);
    if (built) tree = rebuilt(tree);  // on the heap each node has its own count
    const std::string before = describe(tree);
    // One copy for each thread; the last one to drop it frees the tree.
    std::vector<Value> copies(4, tree);
    tree = Value();
    std::atomic<int> same{0};
    conformance::runTogether([&](int thread) {
      Value mine = std::move(copies[static_cast<std::size_t>(thread)]);
      for (int round = 0; round < 20; ++round) {
        const Value names = valueForKeyPath(mine, "list.name");
        Value edited = mine;
        edited.editDictionary().set("list", names);
        edited.editDictionary().set("k" + std::to_string(thread), round);
        std::vector<Value> kept;
        for (const Value& element : *(*mine.dictionary())["list"].array()) kept.push_back(element);
        kept.push_back(edited);
      }
      if (describe(mine) == before) ++same;
    });
    EXPECT_EQ(same, 4);
  }
}

TEST(Sharing, PartsDroppedInDifferentThreadsFreeTheTreeOnce) {
  for (int round = 0; round < 50; ++round) {
    std::vector<Value> parts;
    {
      const Value tree = parseJSON(R"(["a text of more than fourteen bytes", {"a": 1}, [2], {}])");
      for (const Value& element : *tree.array()) parts.push_back(element);
    }
    conformance::runTogether(
        [&](int thread) { parts[static_cast<std::size_t>(thread)] = Value(); });
  }
}

TEST(Sharing, ThreadsShareOneObject) {
  ASSERT_EQ(Labeled::alive, 0);
  std::vector<Value> copies(4, Value(Labeled::make("x")));
  conformance::runTogether([&](int thread) {
    const Value mine = std::move(copies[static_cast<std::size_t>(thread)]);
    for (int round = 0; round < 1000; ++round) const Array array({mine, mine});
  });
  EXPECT_EQ(Labeled::alive, 0);
}

}  // namespace
}  // namespace orvanta::testing
