#pragma once

#include <vector>

#include "orvanta/Model/Mapping/Class.h"

namespace orvanta {

/// What a property's type code makes of a value on its way in or out.
enum class Converter : std::uint8_t { none, boolean, url, date };

/// By the type code: exactly "B", else one that contains "NSURL", else "NSDate".
Converter converterFor(std::string_view encoding);

/// How many names a wire key path has.
enum class KeyDepth : std::uint8_t { one, two, more };

/// One entry of the merged tables with everything resolved.
struct MappingEntry {
  Value key;                 // the wire key path as one flat text
  const Property* property;  // nullptr: no such property, or a path of several names
  const Class* model;        // the declared class of a nested dictionary or of elements, or nullptr
  std::size_t objectOffset;  // of a property that is no scalar and read from its field, else 0
  Converter converter;
  KeyDepth depth;
  bool storesStrings;  // text is assigned as it comes, to the field
  bool sharesParent;   // the entry before has the same parent
  Value parent;        // the first name of a path of several, else nil
  Value child;         // and what follows it
  Value propertyName;

  /// Whether the property's name is a path of several.
  bool hasPropertyPath() const {
    return property == nullptr && propertyName.string()->find('.') != std::string_view::npos;
  }
  /// The object's value where it is stored, nullptr for one that must be asked for.
  const Value* objectIn(const OrvantaBaseModel& owner) const {
    if (objectOffset == 0) return nullptr;
    return reinterpret_cast<const Value*>(reinterpret_cast<const std::byte*>(&owner) +
                                          objectOffset);
  }
  Value* objectIn(OrvantaBaseModel& owner) const {
    return const_cast<Value*>(objectIn(static_cast<const OrvantaBaseModel&>(owner)));
  }
};

/// The merged tables of a class or of one object, resolved.
struct MappingPlan {
  std::vector<MappingEntry> entries;

  [[gnu::cold]] MappingPlan(const Class& cls, const Dictionary& keyTable,
                            const Dictionary& classTable);
};

}  // namespace orvanta
