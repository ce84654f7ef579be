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
#include "orvanta/Foundation/internal/BitCast.h"
#include "orvanta/Foundation/internal/TextScan.h"

namespace orvanta {

class Array;
class Dictionary;
class DictionaryNode;
class Number;
class Url;

enum class Kind : std::uint8_t {
  none,             ///< nil: no value
  null,             ///< the null object, a stored value
  boolean,          ///< a number, like the next four
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
  classObject,  ///< a ClassObject
};

/// Anything that a property list or a property can contain, in 16 bytes. Numbers, dates, null and
/// strings of up to 14 bytes are stored in the value itself, everything else by reference. Strings,
/// arrays and dictionaries have value semantics: a copy is cheap and independent. Objects are
/// shared.
///
///     const Value badge = 3;
///     if (const auto number = badge.number()) use(number->intValue());
///     if (const auto name = badge.string()) …     // nothing: the kind is tested, not converted
///     Value aps = Dictionary{{"alert", "Hi"}, {"badge", badge}};
///     aps.editDictionary().set("sound", "default");
///
/// Threads may use different values at the same time, also where these share contents; one value is
/// for one thread at a time. A long string or container from parsed JSON keeps the arena of the
/// whole text alive; Value(*value.string()) is a copy that does not.
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
  Value(double number) noexcept : Value(Kind::real, bitCast<std::uint64_t>(number)) {}
  Value(float number) noexcept
      : Value(Kind::real32, std::uint64_t{bitCast<std::uint32_t>(number)}) {}
  Value(Date date) noexcept : Value(Kind::date, bitCast<std::uint64_t>(date.secondsSince1970)) {}
  /// A UTF-8 string. Not checked here; parsers and the platform check what they accept.
  Value(std::string_view string);
  Value(const char* string) : Value(std::string_view(string)) {}
  Value(const std::string& string) : Value(std::string_view(string)) {}
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
      setWord(1, addressBits(static_cast<const Node*>(taken)));
    }
  }
  explicit Value(const Object* object) noexcept;
  explicit Value(const ClassObject* cls) noexcept;

  Value(const Value& other) noexcept {
    // Ask `other`, not this: reading one byte of words just written may be slow.
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
    return *this = Value(other);  // `other` may be inside the contents that this value releases
  }
  Value& operator=(Value&& other) noexcept {
    Value taken(static_cast<Value&&>(other));
    if (isShared()) releaseNode();
    copyBits(taken);
    taken.forget();
    return *this;
  }

  Kind kind() const noexcept { return static_cast<Kind>(bytes_[0] & kKindMask); }
  bool isNil() const noexcept { return kind() == Kind::none; }
  bool isNull() const noexcept { return kind() == Kind::null; }
  bool isNumber() const noexcept { return kind() >= Kind::boolean && kind() <= Kind::real32; }
  bool isString() const noexcept { return kind() == Kind::string; }

  // The value as one kind, or nothing if it is of another. Pointers and strings are valid until
  // this value changes. At the start of a string eight bytes are readable, however short it is.
  std::optional<std::string_view> string() const noexcept {
    if (!isString()) return std::nullopt;
    return text();
  }
  std::optional<Number> number() const noexcept;
  std::optional<Date> date() const noexcept {
    if (kind() != Kind::date) return std::nullopt;
    return Date{bitCast<double>(word(1))};
  }
  inline const Array* array() const noexcept;            // Array.h
  inline const Dictionary* dictionary() const noexcept;  // Dictionary.h
  const Url* url() const noexcept;
  Object* object() const noexcept {
    if (kind() != Kind::object) return nullptr;
    return const_cast<Object*>(static_cast<const Object*>(node()));
  }
  const ClassObject* classObject() const noexcept;
  /// The object as a T, or nullptr if it is not one. T has a static `classObject()`.
  template <class T>
  T* as() const noexcept {
    Object* any = object();
    return any != nullptr && any->isKindOf(T::classObject()) ? static_cast<T*>(any) : nullptr;
  }

  // The container, to change in place. A value of another kind becomes an empty container first.
  Array& editArray();
  Dictionary& editDictionary();

  /// The platform's `isEqual:`. Numbers are equal by exact value across kinds: 1, 1.0 and true are
  /// equal, 9223372036854775807 and 9223372036854775808.0 are not, nor are 0 and -0.0; a NaN equals
  /// a NaN. Containers are equal by content, objects by their isEqual. Equal values have equal
  /// hashes.
  friend bool operator==(const Value& a, const Value& b);
  std::size_t hash() const;

  /// The kind for messages: "a string", "null" and so on.
  std::string_view kindName() const noexcept;
  /// The platform's class name for the kind, such as "NSString"; for an object that of its class.
  std::string_view className() const noexcept;

 private:
  friend class Array;
  friend class ArrayNode;
  friend class Dictionary;
  friend class DictionaryNode;
  friend class Number;
  friend class Url;
  friend class TreeBuilder;

  // Byte 0 is the kind and the shared bit. An inline string has its length in byte 1 and its bytes
  // after it. Otherwise the second word is the bits of a number or the address of a node, which may
  // be null for an empty array or dictionary. Unused bytes are zero, so equal inline values have
  // equal bytes, and dictionaries find short keys by comparing two words.
  static constexpr unsigned kKindMask = 0x7F;
  static constexpr unsigned kSharedBit = 0x80;
  static constexpr std::size_t kInlineCapacity = 14;

  static std::uint64_t addressBits(const void* address) noexcept {
    return reinterpret_cast<std::uintptr_t>(address);
  }
  Value(Kind kind, std::uint64_t payload) noexcept {
    bytes_[0] = static_cast<unsigned char>(kind);
    setWord(1, payload);
  }
  Value(Kind kind, const Node* node) noexcept : Value(kind, addressBits(node)) {
    bytes_[0] |= kSharedBit;
  }
  /// The contents of a value without a counted reference; used where a tree is built.
  struct Bits {
    std::uint64_t words[2];
  };
  explicit Value(Bits bits) noexcept {
    setWord(0, bits.words[0]);
    setWord(1, bits.words[1]);
  }
  Bits bits() const noexcept { return {{word(0), word(1)}}; }
  static Bits sharedBits(Kind kind, const Node* node) noexcept {
    return {{static_cast<std::uint64_t>(kind) | kSharedBit, addressBits(node)}};
  }
  /// A string of at most kInlineCapacity bytes. Two loads that overlap replace a memcpy of variable
  /// length, which would be a call.
  static Bits inlineBits(std::string_view string) noexcept {
    const char* at = string.data();
    const std::size_t size = string.size();
    std::uint64_t first = 0;   // bytes 0 to 7 of the string
    std::uint64_t second = 0;  // bytes 8 to 13
    if (size >= 8) {
      first = loadAs<std::uint64_t>(at);
      if (size > 8) second = loadAs<std::uint64_t>(at + size - 8) >> (8 * (16 - size));
    } else {
      first = loadUpToSeven(at, size);
    }
    return {{static_cast<std::uint64_t>(Kind::string) | size << 8U | first << 16U,
             first >> 48U | second << 16U}};
  }
  static Value inlineString(std::string_view string) noexcept { return Value(inlineBits(string)); }
  std::uint64_t word(int index) const noexcept {
    std::uint64_t bits;
    std::memcpy(&bits, bytes_ + std::ptrdiff_t{8} * index, sizeof bits);
    return bits;
  }
  void setWord(int index, std::uint64_t bits) noexcept {
    std::memcpy(bytes_ + std::ptrdiff_t{8} * index, &bits, sizeof bits);
  }
  /// Copies by words, as constructors write: the processor forwards the store to the load.
  void copyBits(const Value& other) noexcept {
    const Bits taken = other.bits();
    setWord(0, taken.words[0]);
    setWord(1, taken.words[1]);
  }
  bool hasSameBits(const Value& other) const noexcept {
    return word(0) == other.word(0) && word(1) == other.word(1);
  }
  bool isShared() const noexcept { return (bytes_[0] & kSharedBit) != 0 && word(1) != 0; }
  template <class T>
  const T* pointerAs() const noexcept {
    return bitCast<const T*>(static_cast<std::uintptr_t>(word(1)));
  }
  const Node* node() const noexcept { return pointerAs<Node>(); }
  /// Becomes nil without releasing the reference.
  void forget() noexcept { std::memset(bytes_, 0, sizeof bytes_); }
  void releaseNode() const noexcept;
  /// The string of a value that is a string or a URL.
  std::string_view text() const noexcept;
  template <class T>
  const T* payloadIf(Kind wanted) const noexcept {
    return kind() == wanted ? payloadAs<T>() : nullptr;
  }
  /// The second word as an Array, Dictionary or Url, each of which is one pointer to its node.
  template <class T>
  const T* payloadAs() const noexcept {
    static_assert(sizeof(T) == sizeof(void*));
    return std::launder(reinterpret_cast<const T*>(bytes_ + 8));
  }

  alignas(8) unsigned char bytes_[16] = {};
};

static_assert(sizeof(Value) == 16);
static_assert(std::endian::native == std::endian::little, "the layout of inline strings");

/// The shared contents of a string of more than 14 bytes or of a URL. The bytes follow the header.
class StringNode : public Node {
 public:
  std::string_view text() const noexcept {
    return {reinterpret_cast<const char*>(this + 1), size_};
  }
  /// For a URL relative to a folder the length of the folder's URL, else 0.
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
