#include "orvanta/Model/Requests/OrvantaRequestSpec.h"

#include <charconv>

#include "orvanta/Foundation/Description.h"

namespace orvanta {

namespace {

/// Formats like "%lf" in the C locale.
std::string fixedPoint(double number) {
  char text[400];  // the largest double has 309 digits before the point
  const auto end = std::to_chars(text, std::end(text), number, std::chars_format::fixed, 6).ptr;
  return {text, end};
}

}  // namespace

std::string OrvantaRequestSpec::description() const {
  return formatted(
      "\nBase URL : %@\nPath : %@\nMethod : %@\nHeaders : %@\nBody : %@\nTimeout : %@\nPriority : "
      "%@",
      {describe(baseURL.value()), describe(path.value()), describe(HTTPMethod.value()),
       describe(HTTPHeaders), describe(HTTPBody), fixedPoint(timeoutInterval),
       std::to_string(queuePriority)});
}

}  // namespace orvanta
