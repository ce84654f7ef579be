#pragma once

#include <iosfwd>
#include <vector>

#include "orvanta/Model/Mapping/Class.h"

namespace orvanta::tool {

/// Writes the wire format document as Markdown: event codes, endpoints, then a section per class
/// with its keys, properties and types.
void printWireFormat(const std::vector<const Class*>& classes, std::ostream& out);

}  // namespace orvanta::tool
