#pragma once

#include <iosfwd>
#include <stdexcept>
#include <string>

namespace orvanta::tool {

/// The exit codes of all commands.
enum class ExitCode : int {
  done = 0,
  rejected = 1,    // an object was rejected, or input lines were left out
  usage = 2,       // wrong arguments
  unreadable = 3,  // input that cannot be read, or is not a JSON object
  internal = 4,
};

/// The standard streams of a run; tests pass string streams.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
};

/// Ends a command with a message and an exit code.
class CommandError : public std::runtime_error {
 public:
  CommandError(ExitCode code, const std::string& message)
      : std::runtime_error(message), code_(code) {}
  ExitCode code() const { return code_; }

 private:
  ExitCode code_;
};

/// Runs the whole program. Errors are printed to `streams.err`; no standard exception escapes.
ExitCode runCommandLine(int argc, const char* const* argv, const Streams& streams);

}  // namespace orvanta::tool
