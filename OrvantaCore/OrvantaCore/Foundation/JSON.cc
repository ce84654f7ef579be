#include "Foundation/JSON.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <map>
#include <span>

#include "Foundation/Array.h"
#include "Foundation/Dictionary.h"
#include "Foundation/TextScan.h"

namespace orvanta {

TextPosition TextPosition::of(std::size_t offset, std::string_view text) {
  TextPosition position;
  text = text.substr(0, offset);
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);  // no character of the text
  for (const char c : text) {
    if (c == '\n') {
      ++position.line;
      position.column = 1;
    } else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80) {
      ++position.column;
    }
  }
  return position;
}

// ---- Reading --------------------------------------------------------------

/// Collects what a reader reports. What stands on the stack refers to the arena without counting;
/// a container takes it over when it ends, and only the root is counted for the outside.
class TreeBuilder {
 public:
  explicit TreeBuilder(std::size_t textBytes) : arena_(Arena::create(textBytes / 2 * 5 + 512)) {
    stack_.reserve(std::clamp(textBytes / 24, std::size_t{16}, std::size_t{1024}));
  }
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;
  ~TreeBuilder() { arena_->release(); }

  void beginDictionary(std::size_t /*offset*/) { open(); }
  void beginArray(std::size_t /*offset*/) { open(); }
  void key(std::string_view text, std::size_t /*offset*/) { key_ = carved(text); }
  void endDictionary(std::size_t /*offset*/) {
    const std::span<const Item> items = close();
    DictionaryNode* node = DictionaryNode::create(items.size(), arena_);
    std::uint64_t seen = 0;  // a bit a key has set: keys with other bits are surely different
    for (const Item& item : items) {
      const std::uint64_t bit = std::uint64_t{1} << signature(item.key);
      if ((seen & bit) != 0 && replace(*node, item)) continue;
      seen |= bit;
      node->push(Value(item.key), Value(item.value));
    }
    finish(Value::sharedBits(Kind::dictionary, node), items.size());
  }
  void endArray(std::size_t /*offset*/) {
    const std::span<const Item> items = close();
    ArrayNode* node = ArrayNode::create(items.size(), arena_);
    for (const Item& item : items) node->push(Value(item.value));
    finish(Value::sharedBits(Kind::array, node), items.size());
  }
  void string(std::string_view text, std::size_t /*offset*/) { add(carved(text)); }
  void integer(std::int64_t number, std::size_t /*offset*/) { add(Value(number).bits()); }
  void unsignedInteger(std::uint64_t number, std::size_t /*offset*/) { add(Value(number).bits()); }
  void real(double number, std::size_t /*offset*/) { add(Value(number).bits()); }
  void boolean(bool flag, std::size_t /*offset*/) { add(Value(flag).bits()); }
  void null(std::size_t /*offset*/) { add(Value::null().bits()); }

  /// The value of a text that was read to its end.
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

  Bits carved(std::string_view text) {
    if (text.size() <= Value::kInlineCapacity) return Value::inlineBits(text);
    return Value::sharedBits(Kind::string, StringNode::create(text, arena_));
  }
  static unsigned signature(const Bits& key) {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15U;
    const bool isLong = (key.words[0] & Value::kSharedBit) != 0;  // all long keys are alike here
    return isLong ? 0 : static_cast<unsigned>(((key.words[0] ^ key.words[1]) * kSpread) >> 58U);
  }
  /// Replaces the value of a key that the node has already; false when it has not.
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
  /// The items of the innermost open container, which is open no more.
  std::span<const Item> close() {
    const std::span<const Item> items(stack_.begin() + static_cast<std::ptrdiff_t>(open_),
                                      stack_.end());
    open_ = stack_[open_ - 1].value.words[0];
    return items;
  }
  void finish(Bits container, std::size_t items) {
    stack_.resize(stack_.size() - items);
    stack_.back().value = container;
  }

  Arena* arena_;
  std::vector<Item> stack_;
  std::size_t open_ = 0;  // one past the place of the innermost open container; 0 = none
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
  std::vector<DuplicateKey> found;

  void beginDictionary(std::size_t /*offset*/) { keys_.emplace_back(); }
  void endDictionary(std::size_t /*offset*/) { keys_.pop_back(); }
  void key(std::string_view text, std::size_t offset) {
    const auto [entry, isNew] = keys_.back().try_emplace(std::string(text), offset);
    if (!isNew) found.push_back({entry->first, entry->second, offset});
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
  return std::move(finder.found);
}

// ---- Writing --------------------------------------------------------------

namespace {

/// Appends to a string faster than the string itself does.
class Output {
 public:
  explicit Output(std::string& text) : text_(text), used_(text.size()) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() { text_.resize(used_); }

  /// Room for that many bytes; what is written there counts with advance().
  char* room(std::size_t bytes) {
    if (text_.size() - used_ < bytes) grow(bytes);
    return text_.data() + used_;
  }
  void advance(std::size_t bytes) { used_ += bytes; }
  void append(std::string_view text) {
    std::memcpy(room(text.size()), text.data(), text.size());
    used_ += text.size();
  }
  void append(std::size_t count, char c) {
    std::memset(room(count), c, count);
    used_ += count;
  }
  Output& operator+=(char c) {
    *room(1) = c;
    ++used_;
    return *this;
  }
  Output& operator+=(std::string_view text) {
    append(text);
    return *this;
  }

 private:
  [[gnu::noinline]] void grow(std::size_t bytes) {
    text_.resize(std::max(2 * text_.size(), used_ + bytes + 256));
  }

  std::string& text_;
  std::size_t used_;
};

class JSONWriter {
 public:
  JSONWriter(std::string& out, JSONStyle style) : out_(out), style_(style) {}

  bool write(const Value& value) {
    switch (value.kind()) {
      case Kind::null:
        out_ += "null";
        return true;
      case Kind::boolean:
        out_ += value.number()->boolValue() ? "true" : "false";
        return true;
      case Kind::integer:
        return writeNumber(value.number()->longLongValue());
      case Kind::unsignedInteger:
        return writeNumber(value.number()->unsignedLongLongValue());
      case Kind::real:
      case Kind::real32:
        return writeReal(value.number()->doubleValue());
      case Kind::string:
        writeString(*value.string());
        return true;
      case Kind::array:
        return writeContainer('[', ']', *value.array(),
                              [](const Value& element) { return &element; });
      case Kind::dictionary:
        return writeContainer('{', '}', *value.dictionary(),
                              [this](const Dictionary::Entry& entry) {
                                writeString(entry.key());
                                out_ += std::string_view(style_.pretty ? " : " : ":");
                                return &entry.value;
                              });
      default:
        return false;
    }
  }

 private:
  template <class Container, class Open>
  bool writeContainer(char first, char last, const Container& container, Open&& open) {
    if (++depth_ > style_.depthLimit) return false;
    out_ += first;
    bool more = false;
    for (const auto& item : container) {
      if (more) out_ += ',';
      more = true;
      lineBreak();
      if (!write(*open(item))) return false;
    }
    --depth_;
    if (!more && style_.pretty) out_ += '\n';  // an empty container holds an empty line
    lineBreak();
    out_ += last;
    return true;
  }

  void lineBreak() {
    if (!style_.pretty) return;
    out_ += '\n';
    out_.append(2 * depth_, ' ');
  }

  template <class T>
  bool writeNumber(T number) {
    constexpr std::size_t kLongest = 32;
    char* first = out_.room(kLongest);
    const auto result = std::to_chars(first, first + kLongest, number);
    out_.advance(static_cast<std::size_t>(result.ptr - first));
    return true;
  }

  bool writeReal(double number) {
    if (!std::isfinite(number)) return false;
    if (number == 0.0 && std::signbit(number)) {
      out_ += "-0.0";
      return true;
    }
    return writeNumber(number);
  }

  /// Whether a byte cannot stand for itself, and with what it is written behind a backslash: a
  /// character, or 1 for "u00" and two digits.
  static constexpr std::array<char, 256> kEscapes = [] {
    std::array<char, 256> escapes{};
    for (std::size_t i = 0; i < 0x20; ++i) escapes[i] = 1;
    for (const char c : {'"', '\\', '/'}) escapes[static_cast<unsigned char>(c)] = c;
    escapes['\b'] = 'b';
    escapes['\f'] = 'f';
    escapes['\n'] = 'n';
    escapes['\r'] = 'r';
    escapes['\t'] = 't';
    return escapes;
  }();

  void writeString(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out_ += '"';
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      while (text.size() - i >= 8) {
        const std::size_t skipped = firstSpecialOfEight<'/', false>(text.data() + i);
        i += skipped;
        if (skipped != 8) break;
      }
      if (i == text.size()) break;
      const auto byte = static_cast<unsigned char>(text[i]);
      const char escape = kEscapes[byte];
      if (escape == 0 || (escape == '/' && !style_.escapeSlashes)) continue;
      out_.append(text.substr(plain, i - plain));
      plain = i + 1;
      out_ += '\\';
      if (escape == 1) {
        out_ += "u00";
        out_ += kDigits[byte >> 4U];
        out_ += kDigits[byte & 15U];
      } else {
        out_ += escape;
      }
    }
    out_.append(text.substr(plain));
    out_ += '"';
  }

  Output out_;
  JSONStyle style_;
  std::size_t depth_ = 0;
};

bool isWritable(const Value& value, std::size_t depthLeft) {
  switch (value.kind()) {
    case Kind::null:
    case Kind::boolean:
    case Kind::integer:
    case Kind::unsignedInteger:
    case Kind::string:
      return true;
    case Kind::real:
    case Kind::real32:
      return std::isfinite(value.number()->doubleValue());
    case Kind::array:
      return depthLeft > 0 &&
             std::all_of(value.array()->begin(), value.array()->end(),
                         [&](const Value& element) { return isWritable(element, depthLeft - 1); });
    case Kind::dictionary:
      return depthLeft > 0 && std::all_of(value.dictionary()->begin(), value.dictionary()->end(),
                                          [&](const Dictionary::Entry& entry) {
                                            return isWritable(entry.value, depthLeft - 1);
                                          });
    default:
      return false;
  }
}

}  // namespace

bool writeJSON(const Value& value, std::string& out, JSONStyle style) {
  return JSONWriter(out, style).write(value);
}

bool isValidJSONObject(const Value& value) {
  return (value.array() != nullptr || value.dictionary() != nullptr) &&
         isWritable(value, kJSONDepthLimit);
}

}  // namespace orvanta
