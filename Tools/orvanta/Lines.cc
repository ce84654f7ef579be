#include "Lines.h"

#include <algorithm>

#include "Input.h"
#include "Text.h"

namespace orvanta::tool {

Lines::Lines(std::vector<std::string> files, const Streams& streams)
    : files_(std::move(files)), standardIn_(streams.in) {
  if (std::count(files_.begin(), files_.end(), "-") > 1) {
    throw Failure(ExitCode::usage, "standard input can be read only once");
  }
  for (const std::string& file : files_) {
    if (file != "-") checkReadable(file);  // better now than half way
  }
}

bool Lines::next() {
  while (true) {
    if (!isInFile_) {
      if (opened_ == files_.size()) return false;
      const std::string& file = files_[opened_++];
      if (file == "-") {
        tellOfTerminal(standardIn_);
      } else {
        file_ = openForReading(file);
      }
      isInFile_ = true;
      lineInFile_ = 0;
    }
    ++lineInFile_;
    ++number_;
    try {
      if (readLine(*current().rdbuf())) return true;
    } catch (const std::ios_base::failure&) {
      throw Failure(ExitCode::unreadable, place() + ": reading failed");
    }
    --number_;
    isInFile_ = false;
  }
}

bool Lines::readLine(std::streambuf& in) {
  text_.clear();
  isTooLong_ = false;
  constexpr int kEnd = std::char_traits<char>::eof();
  int next = in.sbumpc();
  if (next == kEnd) return false;
  for (; next != kEnd && next != '\n'; next = in.sbumpc()) {
    isTooLong_ = text_.size() == kLongestLine;
    if (!isTooLong_) text_ += static_cast<char>(next);
  }
  if (!text_.empty() && text_.back() == '\r') text_.pop_back();
  return true;
}

std::string Lines::place() const {
  const std::string& file = files_[opened_ - 1];
  return (file == "-" ? "standard input" : printable(file)) + ":" + std::to_string(lineInFile_);
}

}  // namespace orvanta::tool
