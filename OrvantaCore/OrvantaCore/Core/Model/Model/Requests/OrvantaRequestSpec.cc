#include "orvanta/Model/Requests/OrvantaRequestSpec.h"

#include <charconv>

#include "orvanta/Foundation/Description.h"

namespace orvanta {

namespace {

/// Formats like "%lf" in the C locale.
std::string fixedPoint(double number) {
  char buffer[400];  // the largest double has 309 digits before the point
  const auto end = std::to_chars(buffer, std::end(buffer), number, std::chars_format::fixed, 6).ptr;
  return {buffer, end};
}

}  // namespace

std::string OrvantaRequestSpec::description() const {
  return formatted(
      "\nBase URL : %@\nPath : %@\nMethod : %@\nHeaders : %@\nBody : %@\nTimeout : %@\nPriority : "
      "%@",
      {describe(baseURL.raw()), describe(path.raw()), describe(HTTPMethod.raw()),
       describe(HTTPHeaders), describe(HTTPBody), fixedPoint(timeoutInterval),
       std::to_string(queuePriority)});
}

}  // namespace orvanta
