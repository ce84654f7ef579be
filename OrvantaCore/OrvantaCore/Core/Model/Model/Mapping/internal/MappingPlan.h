#pragma once

#include <vector>

#include "orvanta/Model/Mapping/Class.h"

namespace orvanta {

/// How a value is converted for a property, in reading and in writing.
enum class Converter : std::uint8_t { none, boolean, url, date };

/// Returns the converter for a type code: boolean for "B", url if it contains "NSURL", date if it
/// contains "NSDate".
Converter converterFor(std::string_view encoding);

/// Number of names in a wire key path.
enum class KeyDepth : std::uint8_t { one, two, more };

/// An entry of the merged tables, resolved once so that an update searches nothing by name.
struct MappingEntry {
  Value key;                 // the wire key path as one string
  const Property* property;  // nullptr if there is none of the name, or the name is a path
  const Class* model;        // declared class of nested dictionaries, or nullptr
  std::size_t objectOffset;  // of an object property that is read from its field, else 0
  Converter converter;
  KeyDepth depth;
  bool storesStrings;  // a string is assigned to the field as it is
  bool sharesParent;   // the previous entry has the same parent
  Value parent;        // first name of a path of several names, else nil
  Value child;         // the rest of that path
  Value propertyName;

  /// Returns whether the property's name is a path of several names.
  bool hasPropertyPath() const {
    return property == nullptr && propertyName.string()->find('.') != std::string_view::npos;
  }
  /// The stored value of an object property; nullptr if it must be read otherwise.
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
