#include "Foundation/JSON.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <memory>

#include "Foundation/Array.h"
#include "Foundation/Dictionary.h"

namespace orvanta {

TextPosition TextPosition::of(std::size_t offset, std::string_view text) {
  TextPosition position;
  for (const char c : text.substr(0, offset)) {
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

/// Collects what a reader reports. Values on the stack refer to the arena without counting;
/// a container takes them over when it ends, and only the root is counted for the outside.
class TreeBuilder {
 public:
  explicit TreeBuilder(std::size_t textBytes) : arena_(Arena::create(2 * textBytes + 512)) {
    stack_.reserve(64);
  }
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;
  ~TreeBuilder() {
    for (Dictionary::Entry& entry : stack_) {
      entry.keyValue.forget();
      entry.value.forget();
    }
    key_.forget();
    arena_->release();
  }

  void beginDictionary(std::size_t /*offset*/) { open(); }
  void beginArray(std::size_t /*offset*/) { open(); }
  void key(std::string_view text, std::size_t /*offset*/) { key_ = carved(text); }
  void endDictionary(std::size_t /*offset*/) {
    const std::size_t first = close();
    DictionaryNode* node = DictionaryNode::create(stack_.size() - first, arena_);
    std::uint64_t seen = 0;  // a bit a key has set: keys with other bits are surely different
    for (std::size_t i = first; i < stack_.size(); ++i) {
      Dictionary::Entry& entry = stack_[i];
      const std::uint64_t bit = std::uint64_t{1} << signature(entry.keyValue);
      Dictionary::Entry* earlier = (seen & bit) != 0 ? node->find(entry.keyValue) : nullptr;
      seen |= bit;
      if (earlier != nullptr) {
        earlier->value.forget();
        earlier->value = std::move(entry.value);
        entry.keyValue.forget();
      } else {
        node->push(std::move(entry.keyValue), std::move(entry.value));
      }
    }
    finish(Value(Kind::dictionary, node), first);
  }
  void endArray(std::size_t /*offset*/) {
    const std::size_t first = close();
    ArrayNode* node = ArrayNode::create(stack_.size() - first, arena_);
    for (std::size_t i = first; i < stack_.size(); ++i) node->push(std::move(stack_[i].value));
    finish(Value(Kind::array, node), first);
  }
  void string(std::string_view text, std::size_t /*offset*/) { add(carved(text)); }
  void integer(std::int64_t number, std::size_t /*offset*/) { add(number); }
  void unsignedInteger(std::uint64_t number, std::size_t /*offset*/) { add(number); }
  void real(double number, std::size_t /*offset*/) { add(number); }
  void boolean(bool flag, std::size_t /*offset*/) { add(flag); }
  void null(std::size_t /*offset*/) { add(Value::null()); }

  /// The value of a text that was read to its end.
  Value takeRoot() {
    Value root = std::move(stack_.back().value);
    stack_.clear();
    if (root.isShared()) arena_->retain();
    return root;
  }

 private:
  Value carved(std::string_view text) {
    if (text.size() <= Value::kInlineCapacity) return Value::inlineString(text);
    return {Kind::string, StringNode::create(text, arena_)};
  }
  static unsigned signature(const Value& key) {
    const std::uint64_t mixed = (key.isShared() ? key.text().size() * 0x9E3779B97F4A7C15U
                                                : key.word(0) ^ key.word(1)) *
                                0x9E3779B97F4A7C15U;
    return static_cast<unsigned>(mixed >> 58U);
  }
  void add(Value value) {
    stack_.push_back({std::move(key_), std::move(value)});
  }
  void open() {
    stack_.push_back({std::move(key_), Value(Kind::integer, open_)});
    open_ = stack_.size();
  }
  /// Where the entries of the innermost open container begin.
  std::size_t close() {
    const std::size_t first = open_;
    open_ = stack_[first - 1].value.word(1);
    return first;
  }
  void finish(Value container, std::size_t first) {
    stack_.resize(first);
    stack_.back().value = std::move(container);
  }

  Arena* arena_;
  std::vector<Dictionary::Entry> stack_;
  std::size_t open_ = 0;  // one past the place of the innermost open container; 0 = none
  Value key_;
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
        return writeContainer('[', ']', *value.array(), [](const Value& element) { return &element; });
      case Kind::dictionary:
        return writeContainer('{', '}', *value.dictionary(), [this](const Dictionary::Entry& entry) {
          writeString(entry.key());
          out_ += style_.pretty ? " : " : ":";
          return &entry.value;
        });
      default:
        return false;
    }
  }

 private:
  template <class Container, class Open>
  bool writeContainer(char first, char last, const Container& container, Open&& open) {
    if (++depth_ > kJSONDepthLimit) return false;
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
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, number);
    out_.append(text, result.ptr);
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

  void writeString(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out_ += '"';
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      if (byte >= 0x20 && byte != '"' && byte != '\\' && (byte != '/' || !style_.escapeSlashes)) {
        continue;
      }
      out_.append(text, plain, i - plain);
      plain = i + 1;
      out_ += '\\';
      constexpr std::string_view kNamed = "\b\f\n\r\t";
      if (const auto named = kNamed.find(text[i]); named != std::string_view::npos) {
        out_ += "bfnrt"[named];
      } else if (byte < 0x20) {
        out_ += {'u', '0', '0', kDigits[byte >> 4U], kDigits[byte & 15U]};
      } else {
        out_ += text[i];
      }
    }
    out_.append(text, plain);
    out_ += '"';
  }

  std::string& out_;
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
