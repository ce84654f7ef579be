#pragma once

#include <cstddef>

#include "orvanta/Model/Mapping/PropertyValue.h"
#include "orvanta/Model/Mapping/internal/Reflect.h"

// The declarations in the body of a model class. A whole class, with its source file:
//
//     class OrvantaShipment : public OrvantaBaseModel {
//       ORVANTA_MODEL(OrvantaShipment, OrvantaBaseModel)
//
//       ORVANTA_PROPERTY("car", copy, String, carrier, setCarrier)
//       ORVANTA_PROPERTY("eta", strong, Date, arrivalDate, setArrivalDate)
//       ORVANTA_PROPERTY("it", strong, Array, items, setItems, OrvantaLineItem)
//     };
//
//     ORVANTA_IMPLEMENTATION(OrvantaShipment)
//
// Each declaration takes wire key path (or kUnmapped), ownership (assign, copy, strong, weak), type
// and getter. One declaration a line; a class body has at most Reflect::kMaxLines lines.
// docs/mapping.md lists the types.

namespace orvanta {

/// In place of a wire key: the mapping ignores the property.
inline constexpr std::string_view kUnmapped{};

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
  static void declared() {} /* hides the rows of the superclass */               \
  static constexpr int kFirstLine = __LINE__;                                    \
                                                                                 \
 public:

// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are names and types

/// Defines the class object; once, in the source file of the class.
#define ORVANTA_IMPLEMENTATION(Self_)                                                   \
  static constexpr auto k##Self_##Tables = Reflect::tables<Self_>();                    \
  constinit const Class Self_::kClass{#Self_,                                           \
                                      &Super::classObject(),                            \
                                      k##Self_##Tables.properties,                      \
                                      k##Self_##Tables.keys,                            \
                                      k##Self_##Tables.classes,                         \
                                      []() -> OrvantaBaseModel* { return new Self_; }}; \
  const Class& classObjectOf##Self_() { return Self_::classObject(); }

// The standard leaves offsetof of a class that is not standard-layout to the compiler; GCC and
// Clang support it where there is no virtual base. Property::field counts from the
// OrvantaBaseModel, which is the first base of every model and so at offset 0.
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

#define ORVANTA_STORED_(key_, ownership_, type_, name_, readOnly_, get_, set_, ...)      \
 protected:                                                                              \
  PropertyStorage<type_>::Field name_##_{};                                              \
  ORVANTA_ROW_(key_, name_, modelClass<__VA_ARGS__>(),                                   \
               {#name_, PropertyStorage<type_>::encoding("@\"" #type_ "\""),             \
                Ownership::ownership_, readOnly_, offsetof(Self, name_##_), get_, set_}) \
                                                                                         \
 public:

/// A stored property. The class of a model may follow the setter: nested dictionaries, and those in
/// an array, are then converted to it.
#define ORVANTA_PROPERTY(key_, ownership_, type_, name_, setter_, ...)               \
  PropertyStorage<type_>::Read name_() const { return name_##_; }                    \
  void setter_(PropertyStorage<type_>::Field value) { name_##_ = std::move(value); } \
  ORVANTA_STORED_(key_, ownership_, type_, name_, false, nullptr, nullptr, __VA_ARGS__)

/// A stored property whose accessors override those of a protocol.
#define ORVANTA_PROTOCOL_PROPERTY(key_, ownership_, type_, name_, setter_)                    \
  PropertyStorage<type_>::Read name_() const override { return name_##_; }                    \
  void setter_(PropertyStorage<type_>::Field value) override { name_##_ = std::move(value); } \
  ORVANTA_STORED_(key_, ownership_, type_, name_, false, nullptr, nullptr, )

/// A stored property without a public setter; the mapping still assigns it.
#define ORVANTA_READONLY(key_, ownership_, type_, name_, ...)     \
  PropertyStorage<type_>::Read name_() const { return name_##_; } \
  ORVANTA_STORED_(key_, ownership_, type_, name_, true, nullptr, nullptr, __VA_ARGS__)

/// A stored property whose setter the class defines. The mapping assigns through it too.
#define ORVANTA_CUSTOM_SETTER(key_, ownership_, type_, name_, setter_, ...) \
  PropertyStorage<type_>::Read name_() const { return name_##_; }           \
  void setter_(PropertyStorage<type_>::Field value);                        \
  ORVANTA_STORED_(                                                          \
      key_, ownership_, type_, name_, false, nullptr,                       \
      [](OrvantaBaseModel& o, const Value& v) {                             \
        static_cast<Self&>(o).setter_(PropertyStorage<type_>::unbox(v));    \
      },                                                                    \
      __VA_ARGS__)

/// A stored read-only property whose getter subclasses override. The mapping reads through it too.
#define ORVANTA_OVERRIDABLE(key_, ownership_, type_, name_)                      \
  virtual PropertyStorage<type_>::Field name_() const { return name_##_; }       \
  ORVANTA_STORED_(                                                               \
      key_, ownership_, type_, name_, true,                                      \
      [](const OrvantaBaseModel& o) {                                            \
        return PropertyStorage<type_>::box(static_cast<const Self&>(o).name_()); \
      },                                                                         \
      nullptr, )

/// A property without storage: `get_` and `set_` are those of Property; `set_` may be nullptr.
#define ORVANTA_COMPUTED(key_, ownership_, encoding_, name_, get_, set_)                     \
 protected:                                                                                  \
  ORVANTA_ROW_(key_, name_, nullptr,                                                         \
               {#name_, encoding_, Ownership::ownership_, (set_) == nullptr, 0, get_, set_}) \
                                                                                             \
 public:

/// Another wire key path for a property that a superclass declares.
#define ORVANTA_FURTHER_KEY(key_, name_)                                                          \
 protected:                                                                                       \
  static_assert(requires(const Super& ancestor) { ancestor.name_(); });                           \
  ORVANTA_ROW_(key_, name_, nullptr, {#name_, {}, Ownership::assign, false, 0, nullptr, nullptr}) \
                                                                                                  \
 public:

// NOLINTEND(bugprone-macro-parentheses)

}  // namespace orvanta
