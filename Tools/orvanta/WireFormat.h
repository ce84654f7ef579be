#pragma once

#include <iosfwd>
#include <vector>

#include "orvanta/Model/Mapping/Class.h"

namespace orvanta::tool {

/// Writes the document of the wire format: the event codes, then a section per class with its keys,
/// properties and types, as Markdown.
void printWireFormat(const std::vector<const Class*>& classes, std::ostream& out);

}  // namespace orvanta::tool
