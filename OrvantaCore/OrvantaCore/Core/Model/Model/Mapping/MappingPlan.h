#pragma once

#include <vector>

#include "Mapping/Class.h"

namespace orvanta {

/// What a property's type code makes of a value on its way in or out.
enum class Converter : std::uint8_t { none, boolean, url, date };

/// By the type code: exactly "B", else one that contains "NSURL", else "NSDate".
Converter converterFor(std::string_view encoding);

/// One entry of the merged tables with everything resolved.
struct MappingEntry {
  Value key;                // the wire key path as one flat text
  std::vector<Value> path;  // and split
  bool sharesParent;        // has two names, the first that of the entry before
  Value propertyName;
  std::vector<Value> propertyPath;
  const Property* property;  // nullptr: no such property, or a path of several names
  Converter converter;
  const Class* model;  // the declared class of a nested dictionary or of elements, or nullptr
};

/// The merged tables of a class or of one object, resolved.
struct MappingPlan {
  std::vector<MappingEntry> entries;

  [[gnu::cold]] MappingPlan(const Class& cls, const Dictionary& keyTable,
                            const Dictionary& classTable);
};

}  // namespace orvanta
