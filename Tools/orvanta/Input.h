#pragma once

#include <fstream>
#include <string>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Tool/Tool.h"

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

/// Throws Failure when a file cannot be read. Does not open it: of a pipe that would take
/// something.
void checkReadable(const std::string& file);
/// Opens a file; throws Failure when it cannot be read.
std::ifstream openForReading(const std::string& file);
/// Says so when a command is about to wait for somebody who types.
void tellOfTerminal(const std::istream& standardIn);

/// The first key that stands twice in a text of JSON, for a warning; empty when there is none.
std::string duplicateKeyWarning(const std::string& text);

}  // namespace orvanta::tool
