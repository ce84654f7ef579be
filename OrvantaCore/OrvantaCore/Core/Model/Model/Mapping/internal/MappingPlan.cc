#include "orvanta/Model/Mapping/internal/MappingPlan.h"

#include <algorithm>

namespace orvanta {

static KeyDepth depthOf(std::string_view key) {
  const auto dots = std::count(key.begin(), key.end(), '.');
  if (dots == 0) return KeyDepth::one;
  return dots == 1 ? KeyDepth::two : KeyDepth::more;
}

MappingPlan::MappingPlan(const Class& cls, const Dictionary& keyTable,
                         const Dictionary& classTable) {
  entries.reserve(keyTable.size());
  for (const Dictionary::Entry& row : keyTable) {
    const bool isNamed = row.value.isString();
    const std::string_view name = isNamed ? *row.value.string() : "";
    const Property* property = cls.property(name);
    const bool isReadFromField = property != nullptr && property->get == nullptr;
    const std::size_t objectOffset =
        isReadFromField && !property->isScalar() ? property->offset : 0;
    const Converter converter = converterFor(cls.encoding(name));
    const std::string_view key = row.key();
    const auto dot = key.find('.');
    const bool isPath = dot != std::string_view::npos;
    const Value parent = isPath ? Value(key.substr(0, dot)) : Value();
    entries.push_back({
        .key = row.keyValue,
        .property = property,
        .model = modelClassIn(classTable[name]),
        .objectOffset = objectOffset,
        .converter = converter,
        .depth = depthOf(key),
        .storesStrings =
            objectOffset != 0 && property->set == nullptr && converter == Converter::none,
        .sharesParent = !entries.empty() && entries.back().parent == parent,
        .parent = parent,
        .child = isPath ? Value(key.substr(dot + 1)) : Value(),
        .propertyName = isNamed ? row.value : Value(""),
    });
  }
}

}  // namespace orvanta
