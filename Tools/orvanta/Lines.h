#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "orvanta/Tool/Tool.h"

namespace orvanta::tool {

/// The lines of one or several files, read one after the other; "-" is standard input. Memory is
/// that of the longest line, up to kLongestLine.
class Lines {
 public:
  static constexpr std::size_t kLongestLine = std::size_t{256} << 10U;

  /// Throws Failure when one of the files cannot be read, or standard input is named twice.
  Lines(std::vector<std::string> files, const Streams& streams);

  /// Goes to the next line; false at the end of the last file. Throws Failure when reading fails.
  bool next();
  /// The line without its end; its beginning only when it is too long.
  const std::string& text() const { return text_; }
  bool isTooLong() const { return isTooLong_; }
  /// Its number over all files, from 1.
  std::uint64_t number() const { return number_; }
  /// "FILE:LINE", for a message.
  std::string place() const;

 private:
  /// False at the end of the stream.
  bool readLine(std::istream& in);

  std::vector<std::string> files_;
  std::istream& standardIn_;
  std::ifstream file_;
  std::size_t opened_ = 0;  // files, the current one included
  bool isInFile_ = false;
  std::uint64_t lineInFile_ = 0;
  std::uint64_t number_ = 0;
  std::vector<char> buffer_ = std::vector<char>(kLongestLine + 1);
  std::string text_;
  bool isTooLong_ = false;
};

}  // namespace orvanta::tool
