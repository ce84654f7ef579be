#pragma once

#include <concepts>
#include <functional>
#include <utility>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/Url.h"
#include "orvanta/Model/Mapping/Class.h"

namespace orvanta {

// Declared types without a C++ class of their own.
struct String;
struct MutableArray;
struct MutableDictionary;
struct AnyObject;
struct ClassReference;

/// A callback: the platform's block, shared by reference.
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

/// What a declared object type means: its type code, what converts to it, and how a value is read
/// as it. A new declared type is a specialization. The primary template serves models and other
/// classes of objects, whose type code contains the class's name.
template <class T>
struct PropertyTraits {
  static constexpr std::string_view kEncoding{};
  template <std::derived_from<T> U>
  static Value box(Ref<U> object) {
    return object;
  }
  static T* get(const Value& value) { return value.as<T>(); }
};
template <>
struct PropertyTraits<String> {
  static constexpr std::string_view kEncoding = "@\"NSString\"";
  static Value box(std::string_view string) { return string; }
  static std::optional<std::string_view> get(const Value& value) { return value.string(); }
};
template <>
struct PropertyTraits<Number> {
  static constexpr std::string_view kEncoding = "@\"NSNumber\"";
  static Value box(auto number) requires std::is_arithmetic_v<decltype(number)> { return number; }
  static std::optional<Number> get(const Value& value) { return value.number(); }
};
template <>
struct PropertyTraits<Url> {
  static constexpr std::string_view kEncoding = "@\"NSURL\"";
  static Value box(const Url& url) { return url; }
  static const Url* get(const Value& value) { return value.url(); }
};
template <>
struct PropertyTraits<Date> {
  static constexpr std::string_view kEncoding = "@\"NSDate\"";
  static Value box(Date date) { return date; }
  static std::optional<Date> get(const Value& value) { return value.date(); }
};
template <>
struct PropertyTraits<Array> {
  static constexpr std::string_view kEncoding = "@\"NSArray\"";
  static Value box(const Array& array) { return array; }
  static const Array* get(const Value& value) { return value.array(); }
};
template <>
struct PropertyTraits<MutableArray> : PropertyTraits<Array> {
  static constexpr std::string_view kEncoding = "@\"NSMutableArray\"";
};
template <>
struct PropertyTraits<Dictionary> {
  static constexpr std::string_view kEncoding = "@\"NSDictionary\"";
  static Value box(const Dictionary& dictionary) { return dictionary; }
  static const Dictionary* get(const Value& value) { return value.dictionary(); }
};
template <>
struct PropertyTraits<MutableDictionary> : PropertyTraits<Dictionary> {
  static constexpr std::string_view kEncoding = "@\"NSMutableDictionary\"";
};
template <>
struct PropertyTraits<AnyObject> {
  static constexpr std::string_view kEncoding = "@";
  static Value box(const Value& value) { return value; }
  static const Value& get(const Value& value) { return value; }
};
template <class Signature>
struct PropertyTraits<Block<Signature>> {
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
struct PropertyTraits<ClassReference> {
  static constexpr std::string_view kEncoding = "#";
  static Value box(const Class& cls) { return Value(&cls); }
  static const Class* get(const Value& value) {
    return static_cast<const Class*>(value.classObject());
  }
};

template <class T>
class PropertyValue;

/// A type that converts to PropertyValue<T>.
template <class U, class T>
concept BoxableAs =
    !std::same_as<std::remove_cvref_t<U>, PropertyValue<T>> && requires(U && typed) {
  PropertyTraits<T>::box(std::forward<U>(typed));
};

/// The value of an object property declared as a T. The mapping stores whatever kind the payload
/// has, so a present value is not necessarily a T:
///
///     if (auto id = push->pushId().get()) use(*id);   // a string; a number counts as absent
///     if (push->pushId().isPresent()) …               // any kind, also null
///     const Value& value = push->pushId().raw();      // the stored value
template <class T>
class PropertyValue {
 public:
  PropertyValue() noexcept = default;
  PropertyValue(std::nullptr_t) noexcept {}
  template <BoxableAs<T> U>
  // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): the constraint leaves copies out
  PropertyValue(U&& typed) : value_(PropertyTraits<T>::box(std::forward<U>(typed))) {}
  /// A property value of any kind, such as the mapping stores.
  static PropertyValue any(const Value& value) noexcept {
    PropertyValue property;
    property.value_ = value;
    return property;
  }

  /// True unless nil: a null and a value of another kind than T are present.
  bool isPresent() const noexcept { return !value_.isNil(); }
  /// The value as a T, nothing if it is of another kind: an optional for strings, numbers and
  /// dates, a pointer for the rest.
  decltype(auto) get() const { return PropertyTraits<T>::get(value_); }
  /// The stored value, whatever its kind.
  const Value& raw() const noexcept { return value_; }
  /// The stored value, to change in place.
  Value& edit() noexcept { return value_; }
  /// The stored array, to change in place. A value of another kind becomes an empty array first.
  Array& editArray() requires std::same_as<T, MutableArray> { return value_.editArray(); }

 private:
  Value value_;
};

}  // namespace orvanta
