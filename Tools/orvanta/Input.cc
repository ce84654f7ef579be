#include "Input.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>

#include "Foundation/JSON.h"

namespace orvanta::tool {

namespace {

std::string readAll(std::istream& in, const std::string& name) {
  std::string text(std::istreambuf_iterator<char>(in), {});
  if (in.bad()) throw Failure(ExitCode::unreadable, name + ": reading failed");
  return text;
}

std::string readText(const std::string& file, const std::string& name, std::istream& standardIn) {
  if (file == "-") {
    if (&standardIn == &std::cin && isatty(STDIN_FILENO) != 0) {
      std::cerr << "orvanta: reading JSON from the terminal; end it with Ctrl-D\n";
    }
    return readAll(standardIn, name);
  }
  errno = 0;
  std::ifstream in(file, std::ios::binary);
  if (in) in.peek();  // a folder opens, but cannot be read
  if (!in && !in.eof()) {
    throw Failure(ExitCode::unreadable,
                  name + ": " + (errno != 0 ? std::strerror(errno) : "cannot be read"));
  }
  in.clear();
  return readAll(in, name);
}

std::string place(const std::string& name, std::size_t offset, const std::string& text) {
  const TextPosition at = TextPosition::of(offset, text);
  return name + ":" + std::to_string(at.line) + ":" + std::to_string(at.column);
}

}  // namespace

Input readInput(const std::string& file, const Streams& streams) {
  Input input{.name = file == "-" ? "standard input" : file, .text = {}, .object = {}};
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
  for (const DuplicateKey& duplicate : findDuplicateKeys(input.text)) {
    streams.err << "orvanta: " << place(input.name, duplicate.offset, input.text)
                << ": warning: the key \"" << duplicate.key << "\" stands here again (first at "
                << place("line", duplicate.firstOffset, input.text).substr(5)
                << "); its last value counts\n";
  }
  input.object = *value.dictionary();
  return input;
}

}  // namespace orvanta::tool
