#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <tuple>
#include <utility>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/Url.h"
#include "orvanta/Model/Mapping/Class.h"

// How a model declares its properties; see OrvantaPushStyle for a class as short as they get.

namespace orvanta {

// Declared kinds that are no C++ class of their own.
struct String;
struct MutableArray;
struct MutableDictionary;
struct AnyObject;
struct ClassReference;

/// What a declared object type means: its type code, what may be assigned, and how a value is seen
/// as one. The primary template is that of a model or another class of objects.
template <class T>
struct Declared {
  static constexpr std::string_view kEncoding{};  // made from the class's name
  template <std::derived_from<T> U>
  static Value box(Ref<U> object) {
    return object;
  }
  static T* get(const Value& value) { return value.as<T>(); }
};
template <>
struct Declared<String> {
  static constexpr std::string_view kEncoding = "@\"NSString\"";
  static Value box(std::string_view text) { return text; }
  static std::optional<std::string_view> get(const Value& value) { return value.string(); }
};
template <>
struct Declared<Number> {
  static constexpr std::string_view kEncoding = "@\"NSNumber\"";
  static Value box(auto number) requires std::is_arithmetic_v<decltype(number)> { return number; }
  static std::optional<Number> get(const Value& value) { return value.number(); }
};
template <>
struct Declared<Url> {
  static constexpr std::string_view kEncoding = "@\"NSURL\"";
  static Value box(const Url& url) { return url; }
  static const Url* get(const Value& value) { return value.url(); }
};
template <>
struct Declared<Date> {
  static constexpr std::string_view kEncoding = "@\"NSDate\"";
  static Value box(Date date) { return date; }
  static std::optional<Date> get(const Value& value) { return value.date(); }
};
template <>
struct Declared<Array> {
  static constexpr std::string_view kEncoding = "@\"NSArray\"";
  static Value box(const Array& array) { return array; }
  static const Array* get(const Value& value) { return value.array(); }
};
template <>
struct Declared<MutableArray> : Declared<Array> {
  static constexpr std::string_view kEncoding = "@\"NSMutableArray\"";
};
template <>
struct Declared<Dictionary> {
  static constexpr std::string_view kEncoding = "@\"NSDictionary\"";
  static Value box(const Dictionary& dictionary) { return dictionary; }
  static const Dictionary* get(const Value& value) { return value.dictionary(); }
};
template <>
struct Declared<MutableDictionary> : Declared<Dictionary> {
  static constexpr std::string_view kEncoding = "@\"NSMutableDictionary\"";
};
template <>
struct Declared<AnyObject> {
  static constexpr std::string_view kEncoding = "@";
  static Value box(const Value& value) { return value; }
  static const Value& get(const Value& value) { return value; }
};
/// A callback: the platform's block, held by reference.
template <class Signature>
class Block final : public Object {
 public:
  explicit Block(std::function<Signature> function) : function_(std::move(function)) {}
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }
  const std::function<Signature>& function() const { return function_; }

 private:
  static constexpr ClassObject kClass{"NSBlock", nullptr};
  std::function<Signature> function_;
};
template <class Signature>
struct Declared<Block<Signature>> {
  static constexpr std::string_view kEncoding = "@?";
  static Value box(std::function<Signature> function) {
    return Ref<Object>::adopt(new Block<Signature>(std::move(function)));
  }
  static const std::function<Signature>* get(const Value& value) {
    const auto* block = value.as<Block<Signature>>();
    return block != nullptr ? &block->function() : nullptr;
  }
};
template <>
struct Declared<ClassReference> {
  static constexpr std::string_view kEncoding = "#";
  static Value box(const Class& cls) { return Value(&cls); }
  static const Class* get(const Value& value) {
    return static_cast<const Class*>(value.classObject());
  }
};

template <class T>
class Held;

/// What a Held<T> can be made of.
template <class U, class T>
concept BoxableAs = !std::same_as<std::remove_cvref_t<U>, Held<T>> && requires(U && typed) {
  Declared<T>::box(std::forward<U>(typed));
};

/// The value of an object property that is declared as a T. What comes from a dictionary is kept
/// whatever its kind, so there are three questions to ask.
template <class T>
class Held {
 public:
  Held() noexcept = default;
  Held(std::nullptr_t) noexcept {}
  template <BoxableAs<T> U>
  // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): the constraint leaves copies out
  Held(U&& typed) : value_(Declared<T>::box(std::forward<U>(typed))) {}
  /// A value of any kind.
  static Held any(const Value& value) noexcept {
    Held held;
    held.value_ = value;
    return held;
  }

  /// Is something there? A null object and a value of another kind count.
  explicit operator bool() const noexcept { return !value_.isNil(); }
  /// The value as the declared type (text, number and date as an optional, the rest as a pointer),
  /// or nothing when it is of another kind.
  decltype(auto) get() const { return Declared<T>::get(value_); }
  /// The value as it stands.
  const Value& value() const noexcept { return value_; }
  /// The same for changing it in place.
  Value& edit() noexcept { return value_; }
  /// A mutable array for changing it in place, made empty first where none is there.
  Array& editArray() requires std::same_as<T, MutableArray> {
    if (value_.array() == nullptr) value_ = Array();
    return value_.editArray();
  }

 private:
  Value value_;
};

// ---- What the macros below are made of ------------------------------------

/// How a property of type T is stored and passed.
template <class T>
struct Stored {
  using Field = Held<T>;
  using Read = const Held<T>&;
  static Value box(Read held) { return held.value(); }
  static Field unbox(const Value& value) { return Field::any(value); }
  static constexpr std::string_view encoding(std::string_view quotedName) {
    return Declared<T>::kEncoding.empty() ? quotedName : Declared<T>::kEncoding;
  }
};
template <class T>
requires std::is_arithmetic_v<T>
struct Stored<T> {
  using Field = T;
  using Read = T;
  static Value box(T scalar) { return scalar; }
  static Field unbox(const Value& value) { return scalarReading<T>(value); }
  static constexpr std::string_view encoding(std::string_view /*quotedName*/) {
    if (std::same_as<T, bool>) return "B";
    if (std::same_as<T, std::int32_t>) return "i";
    if (std::same_as<T, std::int64_t>) return "q";
    if (std::same_as<T, std::uint64_t>) return "Q";
    return std::same_as<T, float> ? "f" : "d";
  }
};

/// A property without a wire key.
inline constexpr std::string_view kUnmapped{};

/// The model class that a declaration names behind the property, if any.
template <class... M>
constexpr const Class* modelClass() {
  const Class* named[] = {&M::classObject()..., nullptr};
  return named[0];
}

template <int>
struct Line {};

/// Collects what the macros declare in the body of a class. The declarations are told apart by
/// their line, which is the same wherever the header is included.
struct Reflect {
  static constexpr int kMaxLines = 160;

  struct Row {
    Property property;
    std::string_view key;
    const Class* model;
  };

  template <std::size_t kProperties, std::size_t kKeys, std::size_t kClasses>
  struct Tables {
    std::array<Property, kProperties> properties{};
    std::array<KeyEntry, kKeys> keys{};
    std::array<ClassEntry, kClasses> classes{};
  };

  template <class M, int kLine>
  static constexpr bool kDeclares = requires {
    M::declared(Line<kLine>{});
  };

  template <class M, int... kLine>
  static consteval auto declaringLines(std::integer_sequence<int, kLine...> /*all*/) {
    constexpr std::size_t kCount = (std::size_t{0} + ... + (kDeclares<M, kLine> ? 1 : 0));
    std::array<int, kCount> lines{};
    std::size_t found = 0;
    for (const auto& [line, declares] : {std::pair{kLine, kDeclares<M, kLine>}...}) {
      if (declares) lines[found++] = line;
    }
    return lines;
  }

  template <class M>
  static constexpr auto kLines = declaringLines<M>(std::make_integer_sequence<int, kMaxLines>());

  template <class M, std::size_t... kIndex>
  static consteval auto rows(std::index_sequence<kIndex...> /*all*/) {
    return std::array<Row, sizeof...(kIndex)>{M::declared(Line<kLines<M>[kIndex]> {})...};
  }

  template <class M>
  static constexpr auto kRows = rows<M>(std::make_index_sequence<kLines<M>.size()>());

  static constexpr bool declares(const Row& row) { return !row.property.encoding.empty(); }
  static constexpr bool hasKey(const Row& row) { return !row.key.empty(); }
  static constexpr bool hasModel(const Row& row) { return row.model != nullptr; }

  template <class M>
  static consteval std::size_t count(bool (*wanted)(const Row&)) {
    std::size_t number = 0;
    for (const Row& row : kRows<M>) number += wanted(row) ? 1 : 0;
    return number;
  }

  template <class M>
  static consteval auto tables() {
    Tables<count<M>(declares), count<M>(hasKey), count<M>(hasModel)> tables;
    std::size_t property = 0;
    std::size_t key = 0;
    std::size_t model = 0;
    for (const Row& row : kRows<M>) {
      if (declares(row)) tables.properties[property++] = row.property;
      if (hasKey(row)) tables.keys[key++] = {row.key, row.property.name};
      if (hasModel(row)) tables.classes[model++] = {row.property.name, row.model};
    }
    return tables;
  }
};

/// Opens the body of a model class.
#define ORVANTA_MODEL(Self_, Super_)                                             \
 public:                                                                         \
  using Self = Self_;                                                            \
  using Super = Super_;                                                          \
  static constexpr const Class& classObject() { return kClass; }                 \
  const Class& isa() const override { return kClass; }                           \
  static KeyTable keyPathPropertySelectorMapping() {                             \
    return kClass.keyPathPropertySelectorMapping;                                \
  }                                                                              \
  static ClassTable keyPathClassMapping() { return kClass.keyPathClassMapping; } \
                                                                                 \
 protected:                                                                      \
  friend struct ::orvanta::Reflect;                                              \
  static const Class kClass;                                                     \
  static void declared() {} /* hides the ancestors' */                           \
  static constexpr int kFirstLine = __LINE__;                                    \
                                                                                 \
 public:

// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are names and types

/// Defines the class object; stands once in the class's source file.
#define ORVANTA_IMPLEMENTATION(Self_)                                                   \
  static constexpr auto k##Self_##Tables = Reflect::tables<Self_>();                    \
  constinit const Class Self_::kClass{#Self_,                                           \
                                      &Super::classObject(),                            \
                                      k##Self_##Tables.properties,                      \
                                      k##Self_##Tables.keys,                            \
                                      k##Self_##Tables.classes,                         \
                                      []() -> OrvantaBaseModel* { return new Self_; }}; \
  const Class& classObjectOf##Self_() { return Self_::classObject(); }

// A model begins with its OrvantaBaseModel; where the members of such a class stand is known to
// every compiler for our platforms, though the standard leaves it to them.
#define ORVANTA_OFFSETS_BEGIN_ \
  _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Winvalid-offsetof\"")
#define ORVANTA_OFFSETS_END_ _Pragma("GCC diagnostic pop")

#define ORVANTA_ROW_(key_, name_, model_, ...)                                        \
  ORVANTA_OFFSETS_BEGIN_                                                              \
  static consteval Reflect::Row declared(Line<__LINE__ - kFirstLine>) {               \
    static_assert(__LINE__ - kFirstLine < Reflect::kMaxLines, "class body too long"); \
    return {__VA_ARGS__, key_, model_};                                               \
  }                                                                                   \
  ORVANTA_OFFSETS_END_

#define ORVANTA_STORED_(key_, ownership_, type_, name_, readOnly_, get_, set_, ...)        \
 protected:                                                                                \
  Stored<type_>::Field name_##_{};                                                         \
  ORVANTA_ROW_(key_, name_, modelClass<__VA_ARGS__>(),                                     \
               {#name_, Stored<type_>::encoding("@\"" #type_ "\""), Ownership::ownership_, \
                readOnly_, offsetof(Self, name_##_), get_, set_})                          \
                                                                                           \
 public:

/// A property: wire key (or kUnmapped), ownership (assign, copy, strong), type, getter, setter and,
/// where the value is a nested model or an array of them, the model's class.
#define ORVANTA_PROPERTY(key_, ownership_, type_, name_, setter_, ...)      \
  Stored<type_>::Read name_() const { return name_##_; }                    \
  void setter_(Stored<type_>::Field value) { name_##_ = std::move(value); } \
  ORVANTA_STORED_(key_, ownership_, type_, name_, false, nullptr, nullptr, __VA_ARGS__)

/// A property whose accessors a protocol declares.
#define ORVANTA_PROTOCOL_PROPERTY(key_, ownership_, type_, name_, setter_)           \
  Stored<type_>::Read name_() const override { return name_##_; }                    \
  void setter_(Stored<type_>::Field value) override { name_##_ = std::move(value); } \
  ORVANTA_STORED_(key_, ownership_, type_, name_, false, nullptr, nullptr, )

/// A property without a public setter; the mapping still fills it.
#define ORVANTA_READONLY(key_, ownership_, type_, name_, ...) \
  Stored<type_>::Read name_() const { return name_##_; }      \
  ORVANTA_STORED_(key_, ownership_, type_, name_, true, nullptr, nullptr, __VA_ARGS__)

/// A property whose setter the class writes itself; assignment by name goes through it.
#define ORVANTA_CUSTOM_SETTER(key_, ownership_, type_, name_, setter_, ...) \
  Stored<type_>::Read name_() const { return name_##_; }                    \
  void setter_(Stored<type_>::Field value);                                 \
  ORVANTA_STORED_(                                                          \
      key_, ownership_, type_, name_, false, nullptr,                       \
      [](OrvantaBaseModel& o, const Value& v) {                             \
        static_cast<Self&>(o).setter_(Stored<type_>::unbox(v));             \
      },                                                                    \
      __VA_ARGS__)

/// A read-only property whose getter subclasses override.
#define ORVANTA_OVERRIDABLE(key_, ownership_, type_, name_)             \
  virtual Stored<type_>::Field name_() const { return name_##_; }       \
  ORVANTA_STORED_(                                                      \
      key_, ownership_, type_, name_, true,                             \
      [](const OrvantaBaseModel& o) {                                   \
        return Stored<type_>::box(static_cast<const Self&>(o).name_()); \
      },                                                                \
      nullptr, )

/// A property without storage, over accessors that the class declares; `set_` may be nullptr.
#define ORVANTA_COMPUTED(key_, ownership_, encoding_, name_, get_, set_)                     \
 protected:                                                                                  \
  ORVANTA_ROW_(key_, name_, nullptr,                                                         \
               {#name_, encoding_, Ownership::ownership_, (set_) == nullptr, 0, get_, set_}) \
                                                                                             \
 public:

/// A further wire key of a property that an ancestor declares.
#define ORVANTA_FURTHER_KEY(key_, name_)                                                          \
 protected:                                                                                       \
  static_assert(requires(const Super& ancestor) { ancestor.name_(); });                           \
  ORVANTA_ROW_(key_, name_, nullptr, {#name_, {}, Ownership::assign, false, 0, nullptr, nullptr}) \
                                                                                                  \
 public:

// NOLINTEND(bugprone-macro-parentheses)

}  // namespace orvanta
