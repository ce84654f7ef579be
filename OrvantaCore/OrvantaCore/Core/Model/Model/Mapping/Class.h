#pragma once

#include <atomic>
#include <mutex>
#include <optional>
#include <span>
#include <string_view>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Object.h"

namespace orvanta {

class OrvantaBaseModel;
struct Class;
struct MappingPlan;

enum class Ownership : std::uint8_t { assign, copy, strong, weak };

/// A declared property of a model class.
struct Property {
  std::string_view name;
  /// Type code: B, i, q, Q, f, d, @"NSString" (any class), @, @? or #. The class is not enforced:
  /// an object property stores any kind of value that is assigned by name.
  std::string_view encoding;
  Ownership ownership;
  bool readOnly;
  /// Offset in bytes of the value in an object; 0 for a computed property.
  std::size_t offset;
  /// Accessors to use in place of the field; may be nullptr.
  Value (*get)(const OrvantaBaseModel&);
  void (*set)(OrvantaBaseModel&, const Value&);

  constexpr bool isStored() const { return offset != 0; }
  void* field(OrvantaBaseModel& object) const {
    return reinterpret_cast<std::byte*>(&object) + offset;
  }
  const void* field(const OrvantaBaseModel& object) const {
    return reinterpret_cast<const std::byte*>(&object) + offset;
  }
  constexpr bool isScalar() const { return encoding.front() != '@' && encoding.front() != '#'; }
  [[gnu::always_inline]] inline Value valueIn(const OrvantaBaseModel& object) const;
  /// A scalar property reads the value as a number, which throws the invalid-argument exception if
  /// it is not one; see scalarReading.
  void assignTo(OrvantaBaseModel& object, const Value& value) const;
  void assignTo(OrvantaBaseModel& object, Value&& value) const;
};

inline Value Property::valueIn(const OrvantaBaseModel& object) const {
  if (get != nullptr) return get(object);
  const void* at = field(object);
  switch (encoding.front()) {
    case 'B':
      return *static_cast<const bool*>(at);
    case 'i':
      return *static_cast<const std::int32_t*>(at);
    case 'q':
      return *static_cast<const std::int64_t*>(at);
    case 'Q':
      return *static_cast<const std::uint64_t*>(at);
    case 'f':
      return *static_cast<const float*>(at);
    case 'd':
      return *static_cast<const double*>(at);
    default:
      return *static_cast<const Value*>(at);
  }
}

/// Wire key path to property name.
struct KeyEntry {
  std::string_view keyPath;
  std::string_view property;
};
/// Property name to the model class of its dictionary, or of the dictionaries in its array.
struct ClassEntry {
  std::string_view property;
  const Class* model;
};
using KeyTable = std::span<const KeyEntry>;
using ClassTable = std::span<const ClassEntry>;

/// The class object of a model. Constant data, except for the tables that are merged on first use.
struct Class : ClassObject {
  /// The declarations in the class itself, in their order.
  std::span<const Property> properties;
  KeyTable keyPathPropertySelectorMapping;
  ClassTable keyPathClassMapping;
  /// Returns a new object, not initialized yet.
  OrvantaBaseModel* (*alloc)();

  constexpr Class(std::string_view className, const Class* parent,
                  std::span<const Property> ownProperties, KeyTable ownKeys, ClassTable ownClasses,
                  OrvantaBaseModel* (*allocator)())
      : ClassObject(className, parent),
        properties(ownProperties),
        keyPathPropertySelectorMapping(ownKeys),
        keyPathClassMapping(ownClasses),
        alloc(allocator) {}

  const Class* parent() const { return static_cast<const Class*>(superclass); }
  /// The property of that name in the class or its nearest superclass, or nullptr.
  const Property* property(std::string_view propertyName) const;
  /// The type code of that property in the farthest superclass that declares it, or empty.
  std::string_view encoding(std::string_view propertyName) const;

  /// The tables merged along the class chain. Entries of the most derived class come first; for the
  /// same key the entry of the superclass wins.
  Dictionary mergedKeyTable() const;
  Dictionary mergedClassTable() const;
  /// Property name to type code along the class chain; the declaration of the superclass wins.
  /// Built once under the class's own recursive lock, from any thread.
  const Dictionary& propertyTypeEncodingCache() const;
  /// The merged tables, resolved. Built once under the same lock.
  const MappingPlan& plan() const {
    const MappingPlan* plan = plan_.load(std::memory_order_acquire);
    return plan != nullptr ? *plan : buildPlan();
  }

 private:
  struct Resolved;
  Resolved& resolved() const;
  [[gnu::cold]] const MappingPlan& buildPlan() const;
  mutable std::atomic<Resolved*> resolved_{nullptr};
  mutable std::atomic<const MappingPlan*> plan_{nullptr};
};

/// Returns the value as a model class, or nullptr if it is not one.
const Class* modelClassIn(const Value& value);

/// All model classes of the library, in the order of ModelClasses.def.
std::span<const Class* const> modelClasses();
/// Returns the model class of that name, or nullptr.
const Class* modelClassNamed(std::string_view name);

}  // namespace orvanta
