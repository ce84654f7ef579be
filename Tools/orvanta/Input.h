#pragma once

#include <string>

#include "Foundation/Dictionary.h"
#include "Tool.h"

namespace orvanta::tool {

/// A JSON object that was read, and where from.
struct Input {
  std::string name;  // the file's name, or "standard input"
  std::string text;
  Dictionary object;
};

/// Reads a file, or standard input for "-", which must hold a JSON object. A key that stands twice
/// in a dictionary is warned of on the error stream. Throws Failure.
Input readInput(const std::string& file, const Streams& streams);

}  // namespace orvanta::tool
