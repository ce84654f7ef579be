#pragma once

#include <iosfwd>
#include <stdexcept>
#include <string>

namespace orvanta::tool {

/// The exit codes of all commands.
enum class ExitCode : int {
  done = 0,
  notMade = 1,     // an object could not be made, or lines were left out
  usage = 2,       // wrong arguments
  unreadable = 3,  // input that cannot be read, or is no JSON object
  internal = 4,
};

/// What a command prints to; in is standard input.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
};

/// Ends a command with a message and an exit code.
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& message) : std::runtime_error(message), code_(code) {}
  ExitCode code() const { return code_; }

 private:
  ExitCode code_;
};

/// The whole program.
ExitCode run(int argc, const char* const* argv, const Streams& streams);

}  // namespace orvanta::tool
