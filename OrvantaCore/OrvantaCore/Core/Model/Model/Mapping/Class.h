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

/// One declared property of a model class.
struct Property {
  std::string_view name;
  /// The short type code: @"NSString", B, i, q, Q, f, d, @, @? or #. The class inside is declared,
  /// not enforced: an object property keeps whatever kind of value is assigned to it by name.
  std::string_view encoding;
  Ownership ownership;
  bool readOnly;
  /// Where the value is stored in an object, in bytes from its start; 0 for a computed property.
  std::size_t offset;
  /// Reads or writes through accessors of the class instead of the field; may be nullptr.
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
  /// Scalars take the value's numeric reading, which throws the invalid-argument exception when
  /// there is none.
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
/// Property name to the model class of its dictionary, or of its array's elements.
struct ClassEntry {
  std::string_view property;
  const Class* model;
};
using KeyTable = std::span<const KeyEntry>;
using ClassTable = std::span<const ClassEntry>;

/// The class object of a model: constant data, but for what is resolved on first use.
struct Class : ClassObject {
  /// The class's own declarations, in their order.
  std::span<const Property> properties;
  KeyTable keyPathPropertySelectorMapping;
  ClassTable keyPathClassMapping;
  /// A new object, not initialized yet.
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
  /// The property of that name of the class or its nearest ancestor, or nullptr.
  const Property* property(std::string_view wanted) const;
  /// The type code of that name in the farthest ancestor that declares it, else empty.
  std::string_view encoding(std::string_view wanted) const;

  /// Both tables merged along the class chain: the most derived class's entries first, and an
  /// ancestor's entry wins over a descendant's of the same key.
  Dictionary mergedKeyTable() const;
  Dictionary mergedClassTable() const;
  /// Property name to type code over the whole chain; an ancestor's declaration wins. Made once,
  /// under the class's own recursive lock; from any thread.
  const Dictionary& propertyTypeEncodingCache() const;
  /// The merged tables, resolved; made once under the same lock.
  const MappingPlan& plan() const {
    const MappingPlan* made = plan_.load(std::memory_order_acquire);
    return made != nullptr ? *made : makePlan();
  }

 private:
  struct Resolved;
  Resolved& resolved() const;
  [[gnu::cold]] const MappingPlan& makePlan() const;
  mutable std::atomic<Resolved*> resolved_{nullptr};
  mutable std::atomic<const MappingPlan*> plan_{nullptr};
};

/// The model class that a value holds, or nullptr.
const Class* modelClassIn(const Value& value);

/// Every model class of the library, in the order of ModelClasses.def.
std::span<const Class* const> modelClasses();
/// The model class of that name, or nullptr.
const Class* modelClassNamed(std::string_view name);

}  // namespace orvanta
