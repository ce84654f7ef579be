#include "orvanta/Tool/Input.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

std::string readAll(std::istream& in, const std::string& name) {
  std::string text;
  char buffer[65536];
  try {
    while (in.read(buffer, sizeof buffer), in.gcount() > 0) {
      text.append(buffer, static_cast<std::size_t>(in.gcount()));
    }
  } catch (const std::ios_base::failure&) {
    in.setstate(std::ios_base::badbit);
  }
  if (in.bad()) throw Failure(ExitCode::unreadable, name + ": reading failed");
  return text;
}

std::string readText(const std::string& file, const std::string& name, std::istream& standardIn) {
  if (file == "-") {
    tellOfTerminal(standardIn);
    return readAll(standardIn, name);
  }
  std::ifstream in = openForReading(file);
  return readAll(in, name);
}

std::string place(const std::string& name, std::size_t offset, const std::string& text) {
  const TextPosition at = TextPosition::of(offset, text);
  return name + ":" + std::to_string(at.line) + ":" + std::to_string(at.column);
}

void warnOfDuplicates(const Input& input, std::ostream& err) {
  constexpr std::size_t kMostNamed = 10;
  const std::vector<DuplicateKey> duplicates = findDuplicateKeys(input.text);
  for (std::size_t i = 0; i < std::min(kMostNamed, duplicates.size()); ++i) {
    const TextPosition first = TextPosition::of(duplicates[i].firstOffset, input.text);
    err << "orvanta: " << place(input.name, duplicates[i].offset, input.text)
        << ": warning: the key \"" << escapeForTerminal(duplicates[i].key)
        << "\" stands here again (first at " << first.line << ':' << first.column
        << "); its last value counts\n";
  }
  if (duplicates.size() > kMostNamed) {
    err << "orvanta: " << input.name << ": warning: " << duplicates.size() - kMostNamed
        << " more keys stand twice\n";
  }
}

}  // namespace

void checkReadable(const std::string& file) {
  std::error_code ignored;
  if (access(file.c_str(), R_OK) != 0 || std::filesystem::is_directory(file, ignored)) {
    openForReading(file);  // tells the reason
  }
}

std::string duplicateKeyWarning(const std::string& text) {
  const std::vector<DuplicateKey> duplicates = findDuplicateKeys(text);
  if (duplicates.empty()) return {};
  return "the key \"" + escapeForTerminal(duplicates.front().key) +
         "\" stands twice; its last value counts";
}

std::ifstream openForReading(const std::string& file) {
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (in) in.peek();  // a folder opens, but cannot be read
  if (!in && !in.eof()) {
    throw Failure(ExitCode::unreadable, escapeForTerminal(file) + ": " +
                                            (errno != 0 ? std::strerror(errno) : "cannot be read"));
  }
  in.clear();
  return in;
}

void tellOfTerminal(const std::istream& standardIn) {
  if (&standardIn == &std::cin && isatty(STDIN_FILENO) != 0) {
    std::cerr << "orvanta: reading JSON from the terminal; end it with Ctrl-D\n";
  }
}

Input readInput(const std::string& file, const Streams& streams) {
  Input input{
      .name = file == "-" ? "standard input" : escapeForTerminal(file), .text = {}, .object = {}};
  input.text = readText(file, input.name, streams.in);
  JSONError error;
  const Value value = parseJSON(input.text, &error);
  if (value.isNil()) {
    throw Failure(ExitCode::unreadable,
                  place(input.name, error.offset, input.text) + ": " + std::string(error.reason));
  }
  if (value.dictionary() == nullptr) {
    throw Failure(ExitCode::unreadable, input.name + ": the text is " +
                                            std::string(value.kindName()) + ", not a JSON object");
  }
  warnOfDuplicates(input, streams.err);
  input.object = *value.dictionary();
  return input;
}

}  // namespace orvanta::tool
