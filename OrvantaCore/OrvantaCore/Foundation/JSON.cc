#include "orvanta/Foundation/JSON.h"

#include <algorithm>
#include <map>
#include <span>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/internal/JSONReader.h"

namespace orvanta {

TextPosition TextPosition::of(std::size_t offset, std::string_view string) {
  TextPosition position;
  string = string.substr(0, offset);
  if (string.starts_with("\xEF\xBB\xBF")) string.remove_prefix(3);  // editors count no column
  for (const char c : string) {
    if (c == '\n') {
      ++position.line;
      position.column = 1;
    } else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80) {
      ++position.column;
    }
  }
  return position;
}

/// Builds the tree of values from a reader's tokens. Items wait on a stack until their container
/// ends, so that its node is allocated once, in its final size. They are bits without a counted
/// reference: everything is in the arena, and only the root that leaves the builder is counted.
class TreeBuilder {
 public:
  // The sizes are those of payloads in practice: one block and no growth of the stack for most.
  explicit TreeBuilder(std::size_t textBytes) : arena_(Arena::create(textBytes / 2 * 5 + 512)) {
    stack_.reserve(std::clamp(textBytes / 24, std::size_t{16}, std::size_t{1024}));
  }
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;
  ~TreeBuilder() { arena_->release(); }

  void beginDictionary(std::size_t /*offset*/) { open(); }
  void beginArray(std::size_t /*offset*/) { open(); }
  void key(std::string_view text, std::size_t /*offset*/) { key_ = stringBits(text); }
  void endDictionary(std::size_t /*offset*/) {
    const std::span<const Item> items = close();
    DictionaryNode* node = DictionaryNode::create(items.size(), arena_);
    // Duplicates are rare: a set of 64 bits, one per key, rules most of them out without a search.
    std::uint64_t seen = 0;
    for (const Item& item : items) {
      const std::uint64_t bit = std::uint64_t{1} << signature(item.key);
      if ((seen & bit) != 0 && replace(*node, item)) continue;
      seen |= bit;
      node->push(item.key, item.value);
    }
    finish(Value::sharedBits(Kind::dictionary, node), items.size());
  }
  void endArray(std::size_t /*offset*/) {
    const std::span<const Item> items = close();
    ArrayNode* node = ArrayNode::create(items.size(), arena_);
    for (const Item& item : items) node->push(item.value);
    finish(Value::sharedBits(Kind::array, node), items.size());
  }
  void string(std::string_view text, std::size_t /*offset*/) { add(stringBits(text)); }
  void integer(std::int64_t number, std::size_t /*offset*/) { add(Value(number).bits()); }
  void unsignedInteger(std::uint64_t number, std::size_t /*offset*/) { add(Value(number).bits()); }
  void real(double number, std::size_t /*offset*/) { add(Value(number).bits()); }
  void boolean(bool flag, std::size_t /*offset*/) { add(Value(flag).bits()); }
  void null(std::size_t /*offset*/) { add(Value::null().bits()); }

  /// Returns the root. To be called once, after the reader has succeeded.
  Value takeRoot() {
    Value root(stack_.back().value);
    if (root.isShared()) arena_->retain();
    return root;
  }

 private:
  using Bits = Value::Bits;
  struct Item {
    Bits key;
    Bits value;
  };

  Bits stringBits(std::string_view text) {
    if (text.size() <= Value::kInlineCapacity) return Value::inlineBits(text);
    return Value::sharedBits(Kind::string, StringNode::create(text, arena_));
  }
  static unsigned signature(const Bits& key) {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15U;
    const bool isLong = (key.words[0] & Value::kSharedBit) != 0;  // long keys share a bit
    return isLong ? 0 : static_cast<unsigned>(((key.words[0] ^ key.words[1]) * kSpread) >> 58U);
  }
  /// Replaces the value of a key that the node has; returns false if it does not have the key.
  static bool replace(DictionaryNode& node, const Item& item) {
    Value key(item.key);
    Dictionary::Entry* earlier = node.find(key);
    key.forget();
    if (earlier == nullptr) return false;
    earlier->value.forget();
    earlier->value = Value(item.value);
    return true;
  }
  void add(Bits value) { stack_.push_back({key_, value}); }
  void open() {
    stack_.push_back({key_, {{open_, 0}}});
    open_ = stack_.size();
  }
  /// Closes the innermost container and returns its items. The item below them on the stack is the
  /// container's own; until now its value is the place of the next outer one.
  std::span<const Item> close() {
    const std::span<const Item> items(stack_.data() + open_, stack_.size() - open_);
    open_ = static_cast<std::size_t>(stack_[open_ - 1].value.words[0]);
    return items;
  }
  void finish(Bits container, std::size_t items) {
    stack_.resize(stack_.size() - items);
    stack_.back().value = container;
  }

  Arena* arena_;
  std::vector<Item> stack_;
  std::size_t open_ = 0;  // index of the first item of the innermost open container, 0 for none
  Bits key_{};
};

Value parseJSON(std::string_view text, JSONError* error) {
  TreeBuilder builder(text.size());
  JSONReader reader(text, builder);
  if (reader.read()) return builder.takeRoot();
  if (error != nullptr) *error = reader.error();
  return {};
}

namespace {

class DuplicateKeyFinder {
 public:
  std::vector<DuplicateKey> duplicates;

  void beginDictionary(std::size_t /*offset*/) { keys_.emplace_back(); }
  void endDictionary(std::size_t /*offset*/) { keys_.pop_back(); }
  void key(std::string_view text, std::size_t offset) {
    const auto [entry, isNew] = keys_.back().try_emplace(std::string(text), offset);
    if (!isNew) duplicates.push_back({entry->first, entry->second, offset});
  }
  void beginArray(std::size_t /*offset*/) {}
  void endArray(std::size_t /*offset*/) {}
  void string(std::string_view /*text*/, std::size_t /*offset*/) {}
  void integer(std::int64_t /*number*/, std::size_t /*offset*/) {}
  void unsignedInteger(std::uint64_t /*number*/, std::size_t /*offset*/) {}
  void real(double /*number*/, std::size_t /*offset*/) {}
  void boolean(bool /*flag*/, std::size_t /*offset*/) {}
  void null(std::size_t /*offset*/) {}

 private:
  std::vector<std::map<std::string, std::size_t>> keys_;
};

}  // namespace

std::vector<DuplicateKey> findDuplicateKeys(std::string_view text) {
  DuplicateKeyFinder finder;
  JSONReader reader(text, finder);
  reader.read();
  return std::move(finder.duplicates);
}

}  // namespace orvanta
