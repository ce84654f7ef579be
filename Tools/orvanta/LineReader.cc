#include "orvanta/Tool/LineReader.h"

#include <algorithm>
#include <limits>

#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

LineReader::LineReader(std::vector<std::string> files, const Streams& streams)
    : files_(std::move(files)), standardIn_(streams.in) {
  if (std::count(files_.begin(), files_.end(), "-") > 1) {
    throw CommandError(ExitCode::usage, "standard input can be read only once");
  }
  for (const std::string& file : files_) {
    if (file != "-") checkReadable(file);  // fail before any output
  }
}

bool LineReader::next() {
  while (true) {
    if (!isInFile_) {
      if (opened_ == files_.size()) return false;
      const std::string& file = files_[opened_++];
      if (file == "-") {
        announceTerminalInput(standardIn_);
      } else {
        file_ = openForReading(file);
      }
      isInFile_ = true;
      lineInFile_ = 0;
    }
    ++lineInFile_;
    ++number_;
    try {
      if (readLine(files_[opened_ - 1] == "-" ? standardIn_ : file_)) return true;
    } catch (const std::ios_base::failure&) {
      throw CommandError(ExitCode::unreadable, location() + ": reading failed");
    }
    --number_;
    isInFile_ = false;
  }
}

bool LineReader::readLine(std::istream& in) {
  in.getline(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
  auto length = static_cast<std::size_t>(in.gcount());
  if (in.bad()) throw CommandError(ExitCode::unreadable, location() + ": reading failed");
  if (length == 0 && !in) return false;
  isTooLong_ = in.fail();
  if (isTooLong_) {
    in.clear();
    in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
  } else if (!in.eof()) {
    --length;  // gcount includes the line end
  }
  if (length != 0 && buffer_[length - 1] == '\r') --length;
  text_.assign(buffer_.data(), length);
  return true;
}

std::string LineReader::location() const {
  const std::string& file = files_[opened_ - 1];
  return (file == "-" ? "standard input" : escapeForTerminal(file)) + ":" +
         std::to_string(lineInFile_);
}

}  // namespace orvanta::tool
