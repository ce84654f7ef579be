#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "orvanta/Foundation/Date.h"
#include "orvanta/Foundation/Object.h"
#include "orvanta/Foundation/internal/TextScan.h"

namespace orvanta {

class Array;
class Dictionary;
class DictionaryNode;
class Number;
class Url;

enum class Kind : std::uint8_t {
  nil,              ///< nothing there
  null,             ///< the null object, a stored value
  boolean,          ///< numbers keep their kind: this and the next four
  integer,          ///< signed 64-bit
  unsignedInteger,  ///< unsigned 64-bit
  real,             ///< double
  real32,           ///< 32-bit float
  date,
  string,
  url,
  array,
  dictionary,
  object,       ///< a model or another Object
  classObject,  ///< a class
};

/// Anything that a property list or a property can hold, in 16 bytes. Numbers, dates, null and
/// strings of up to 14 bytes stand in the value itself; the rest is shared by reference. Strings,
/// arrays and dictionaries are values: copying is cheap, and a copy that is changed parts from the
/// original. Objects are references. Different values may be used from different threads, even
/// where they share what they refer to; one value may not.
///
/// A value of a parsed text keeps the whole text's tree alive (see Arena).
class Value {
 public:
  constexpr Value() noexcept = default;  // nil
  static Value null() noexcept { return {Kind::null, std::uint64_t{0}}; }

  Value(std::same_as<bool> auto flag) noexcept : Value(Kind::boolean, std::uint64_t{flag}) {}
  template <std::signed_integral T>
  Value(T number) noexcept
      : Value(Kind::integer, static_cast<std::uint64_t>(std::int64_t{number})) {}
  template <std::unsigned_integral T>
  requires(!std::same_as<T, bool>) Value(T number)
  noexcept : Value(Kind::unsignedInteger, std::uint64_t{number}) {}
  Value(double number) noexcept : Value(Kind::real, std::bit_cast<std::uint64_t>(number)) {}
  Value(float number) noexcept
      : Value(Kind::real32, std::uint64_t{std::bit_cast<std::uint32_t>(number)}) {}
  Value(Date date) noexcept
      : Value(Kind::date, std::bit_cast<std::uint64_t>(date.secondsSince1970)) {}
  /// UTF-8 text; what JSON, URLs and the platform hand over is checked where it enters.
  Value(std::string_view text);
  Value(const char* text) : Value(std::string_view(text)) {}
  Value(const std::string& text) : Value(std::string_view(text)) {}
  Value(const Array& array) noexcept;
  Value(const Dictionary& dictionary) noexcept;
  Value(const Url& url) noexcept;
  Value(Array&& array) noexcept;
  Value(Dictionary&& dictionary) noexcept;
  Value(Url&& url) noexcept;
  template <std::derived_from<Object> T>
  Value(const Ref<T>& object) noexcept : Value(static_cast<const Object*>(object.get())) {}
  template <std::derived_from<Object> T>
  Value(Ref<T>&& object) noexcept {
    if (const Object* taken = object.release()) {
      bytes_[0] = static_cast<unsigned char>(Kind::object) | kSharedBit;
      setWord(1, std::bit_cast<std::uint64_t>(static_cast<const Node*>(taken)));
    }
  }
  explicit Value(const Object* object) noexcept;
  explicit Value(const ClassObject* cls) noexcept;

  Value(const Value& other) noexcept {
    // The other one is asked: bits that were just written are slow to read in other pieces.
    copyBits(other);
    if (other.isShared()) other.node()->retain();
  }
  Value(Value&& other) noexcept {
    copyBits(other);
    other.forget();
  }
  ~Value() {
    if (isShared()) releaseNode();
  }
  Value& operator=(const Value& other) noexcept {
    return *this = Value(other);  // the other one may lie inside what this one lets go of
  }
  Value& operator=(Value&& other) noexcept {
    Value taken(static_cast<Value&&>(other));
    if (isShared()) releaseNode();
    copyBits(taken);
    taken.forget();
    return *this;
  }

  Kind kind() const noexcept { return static_cast<Kind>(bytes_[0] & kKindMask); }
  bool isNil() const noexcept { return kind() == Kind::nil; }
  bool isNull() const noexcept { return kind() == Kind::null; }
  bool isNumber() const noexcept { return kind() >= Kind::boolean && kind() <= Kind::real32; }
  bool isString() const noexcept { return kind() == Kind::string; }

  // The value as one kind, or nothing when it is of another. Pointers and texts live as long as
  // this value stays as it is. Eight bytes can be read where a text begins, however short it is.
  std::optional<std::string_view> string() const noexcept {
    if (!isString()) return std::nullopt;
    return text();
  }
  std::optional<Number> number() const noexcept;
  std::optional<Date> date() const noexcept {
    if (kind() != Kind::date) return std::nullopt;
    return Date{std::bit_cast<double>(word(1))};
  }
  inline const Array* array() const noexcept;            // Array.h
  inline const Dictionary* dictionary() const noexcept;  // Dictionary.h
  const Url* url() const noexcept;
  Object* object() const noexcept {
    if (kind() != Kind::object) return nullptr;
    return const_cast<Object*>(static_cast<const Object*>(node()));
  }
  const ClassObject* classObject() const noexcept;
  /// The object as a T, or nullptr when it is none; T names its class with `classObject()`.
  template <class T>
  T* as() const noexcept {
    Object* held = object();
    return held != nullptr && held->isKindOf(T::classObject()) ? static_cast<T*>(held) : nullptr;
  }

  // The container for changing it in place; a value of another kind becomes an empty one first.
  Array& editArray();
  Dictionary& editDictionary();

  /// Equality of the platform's `isEqual:`: numbers by exact value whatever their kinds, so that
  /// 9223372036854775807 and 9223372036854775808.0 differ while 1, 1.0 and true are equal; 0 and
  /// -0.0 differ and a NaN equals itself; containers by content; objects as they say. Equal
  /// values hash alike.
  friend bool operator==(const Value& a, const Value& b);
  std::size_t hash() const;

  /// "a string", "null", … for messages to people.
  std::string_view kindName() const noexcept;
  /// The platform's class name of the kind: "NSString", "NSNull", or the object's own class.
  std::string_view className() const noexcept;

 private:
  friend class Array;
  friend class ArrayNode;
  friend class Dictionary;
  friend class DictionaryNode;
  friend class Number;
  friend class Url;
  friend class TreeBuilder;

  // Byte 0 is the kind with the shared bit, byte 1 the length of an inline string, which fills the
  // rest; otherwise the second word is the number's bits or the address of what is shared (for an
  // empty array or dictionary it may be null). Unused bytes are zero, so equal inline values have
  // equal bytes.
  static constexpr unsigned kKindMask = 0x7F;
  static constexpr unsigned kSharedBit = 0x80;
  static constexpr std::size_t kInlineCapacity = 14;

  Value(Kind kind, std::uint64_t payload) noexcept {
    bytes_[0] = static_cast<unsigned char>(kind);
    setWord(1, payload);
  }
  Value(Kind kind, const Node* node) noexcept : Value(kind, std::bit_cast<std::uint64_t>(node)) {
    bytes_[0] |= kSharedBit;
  }
  /// What a value is made of, without counting a reference; for whoever counts otherwise.
  struct Bits {
    std::uint64_t words[2];
  };
  explicit Value(Bits bits) noexcept {
    setWord(0, bits.words[0]);
    setWord(1, bits.words[1]);
  }
  Bits bits() const noexcept { return {{word(0), word(1)}}; }
  static Bits sharedBits(Kind kind, const Node* node) noexcept {
    return {{static_cast<std::uint64_t>(kind) | kSharedBit, std::bit_cast<std::uint64_t>(node)}};
  }
  /// Text of at most kInlineCapacity bytes.
  static Bits inlineBits(std::string_view text) noexcept {
    const char* at = text.data();
    const std::size_t size = text.size();
    std::uint64_t first = 0;   // the text's bytes 0 to 7
    std::uint64_t second = 0;  // and 8 to 13
    if (size >= 8) {
      first = loadAs<std::uint64_t>(at);
      if (size > 8) second = loadAs<std::uint64_t>(at + size - 8) >> (8 * (16 - size));
    } else {
      first = loadUpToSeven(at, size);
    }
    return {{static_cast<std::uint64_t>(Kind::string) | size << 8U | first << 16U,
             first >> 48U | second << 16U}};
  }
  static Value inlineString(std::string_view text) noexcept { return Value(inlineBits(text)); }
  std::uint64_t word(int index) const noexcept {
    std::uint64_t bits;
    std::memcpy(&bits, bytes_ + std::ptrdiff_t{8} * index, sizeof bits);
    return bits;
  }
  void setWord(int index, std::uint64_t bits) noexcept {
    std::memcpy(bytes_ + std::ptrdiff_t{8} * index, &bits, sizeof bits);
  }
  /// Word by word, as values are made.
  void copyBits(const Value& other) noexcept {
    const Bits taken = other.bits();
    setWord(0, taken.words[0]);
    setWord(1, taken.words[1]);
  }
  bool hasSameBits(const Value& other) const noexcept {
    return word(0) == other.word(0) && word(1) == other.word(1);
  }
  bool isShared() const noexcept { return (bytes_[0] & kSharedBit) != 0 && word(1) != 0; }
  const Node* node() const noexcept { return std::bit_cast<const Node*>(word(1)); }
  /// Becomes nil and gives nothing back.
  void forget() noexcept { std::memset(bytes_, 0, sizeof bytes_); }
  void releaseNode() const noexcept;
  /// The text of a value that is known to be a string or a URL.
  std::string_view text() const noexcept;
  template <class T>
  const T* payloadIf(Kind wanted) const noexcept {
    return kind() == wanted ? payloadAs<T>() : nullptr;
  }
  /// The second word as the one-pointer class that stands for it.
  template <class T>
  const T* payloadAs() const noexcept {
    static_assert(sizeof(T) == 8);
    return std::launder(reinterpret_cast<const T*>(bytes_ + 8));
  }

  alignas(8) unsigned char bytes_[16] = {};
};

static_assert(sizeof(Value) == 16);
static_assert(std::endian::native == std::endian::little, "the layout of inline strings");

/// Text of more than 14 bytes, or a URL's; the bytes lie behind the header.
class StringNode : public Node {
 public:
  std::string_view text() const noexcept {
    return {reinterpret_cast<const char*>(this + 1), size_};
  }
  /// Of a relative URL: how much of the text is its base's. 0 for an absolute one.
  std::size_t baseSize() const noexcept { return baseSize_; }
  static StringNode* create(std::string_view text, Arena* arena, std::uint32_t baseSize = 0);
  void destroy() const noexcept;

 private:
  StringNode(std::string_view text, Arena* arena, std::uint32_t baseSize) noexcept;
  std::uint32_t baseSize_;
  std::size_t size_;
};

inline std::string_view Value::text() const noexcept {
  if (isShared()) return static_cast<const StringNode*>(node())->text();
  return {reinterpret_cast<const char*>(bytes_) + 2, bytes_[1]};
}

}  // namespace orvanta
