#pragma once

#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Model/Mapping/Class.h"

namespace orvanta::inspection {

/// Returns the tables of one class: {"format", "classes"}. An entry has the class's own keys,
/// properties and types, and an event's or a request's facts.
Dictionary schemaOfClass(const Class& cls);

/// Returns the tables of all classes, with the endpoints and HTTP methods of requests.
Dictionary schemaOfAllClasses();

}  // namespace orvanta::inspection
