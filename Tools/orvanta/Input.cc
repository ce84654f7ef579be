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

std::string readStream(std::istream& in, const std::string& name) {
  std::string text;
  char buffer[65536];
  try {
    while (in.read(buffer, sizeof buffer), in.gcount() > 0) {
      text.append(buffer, static_cast<std::size_t>(in.gcount()));
    }
  } catch (const std::ios_base::failure&) {
    in.setstate(std::ios_base::badbit);
  }
  if (in.bad()) throw CommandError(ExitCode::unreadable, name + ": reading failed");
  return text;
}

std::string readText(const std::string& file, const std::string& name, std::istream& standardIn) {
  if (file == "-") {
    announceTerminalInput(standardIn);
    return readStream(standardIn, name);
  }
  std::ifstream in = openForReading(file);
  return readStream(in, name);
}

std::string location(const std::string& name, std::size_t offset, const std::string& text) {
  const TextPosition position = TextPosition::of(offset, text);
  return name + ":" + std::to_string(position.line) + ":" + std::to_string(position.column);
}

void warnAboutDuplicateKeys(const Input& input, std::ostream& err) {
  constexpr std::size_t kMaxNamedKeys = 10;
  const std::vector<DuplicateKey> duplicates = findDuplicateKeys(input.text);
  for (std::size_t i = 0; i < std::min(kMaxNamedKeys, duplicates.size()); ++i) {
    const TextPosition first = TextPosition::of(duplicates[i].firstOffset, input.text);
    err << "orvanta: " << location(input.name, duplicates[i].offset, input.text)
        << ": warning: the key \"" << escapeForTerminal(duplicates[i].key)
        << "\" stands here again (first at " << first.line << ':' << first.column
        << "); its last value counts\n";
  }
  if (duplicates.size() > kMaxNamedKeys) {
    err << "orvanta: " << input.name << ": warning: " << duplicates.size() - kMaxNamedKeys
        << " more keys stand twice\n";
  }
}

}  // namespace

void checkReadable(const std::string& file) {
  std::error_code ignored;
  if (access(file.c_str(), R_OK) != 0 || std::filesystem::is_directory(file, ignored)) {
    openForReading(file);  // throws with the reason
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
  if (in) in.peek();  // a folder can be opened, but not read
  if (!in && !in.eof()) {
    throw CommandError(
        ExitCode::unreadable,
        escapeForTerminal(file) + ": " + (errno != 0 ? std::strerror(errno) : "cannot be read"));
  }
  in.clear();
  return in;
}

void announceTerminalInput(const std::istream& standardIn) {
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
    throw CommandError(ExitCode::unreadable, location(input.name, error.offset, input.text) + ": " +
                                                 std::string(error.reason));
  }
  if (value.dictionary() == nullptr) {
    throw CommandError(
        ExitCode::unreadable,
        input.name + ": the text is " + std::string(value.kindName()) + ", not a JSON object");
  }
  warnAboutDuplicateKeys(input, streams.err);
  input.object = *value.dictionary();
  return input;
}

}  // namespace orvanta::tool
