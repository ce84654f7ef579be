#pragma once

#include <fstream>
#include <string>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Tool/CommandLine.h"

namespace orvanta::tool {

/// A JSON object and the file it was read from.
struct Input {
  std::string name;  // the file's name, or "standard input"
  std::string text;
  Dictionary object;
};

/// Reads a JSON object from a file, or from standard input for "-". Warns on the error stream about
/// each key that is repeated within a dictionary. Throws CommandError.
Input readInput(const std::string& file, const Streams& streams);

/// Throws CommandError if a file cannot be read. Does not open it: opening a pipe would consume it.
void checkReadable(const std::string& file);
/// Opens a file; throws CommandError if it cannot be read.
std::ifstream openForReading(const std::string& file);
/// Prints a hint if a command is about to read what somebody types.
void announceTerminalInput(const std::istream& standardIn);

/// A warning about the first repeated key in a JSON text; empty if there is none.
std::string duplicateKeyWarning(const std::string& text);

}  // namespace orvanta::tool
