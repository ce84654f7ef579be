#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "orvanta/Tool/CommandLine.h"

namespace orvanta::tool {

/// Reads the lines of one or several files in order; "-" is standard input. Memory use is that of
/// the longest line, up to kMaxLineBytes.
///
///     LineReader reader({"first.jsonl", "-"}, streams);
///     while (reader.next()) use(reader.number(), reader.text());
class LineReader {
 public:
  static constexpr std::size_t kMaxLineBytes = std::size_t{256} << 10U;

  /// Throws CommandError if a file cannot be read or standard input is named twice.
  LineReader(std::vector<std::string> files, const Streams& streams);

  /// Advances to the next line; returns false at the end of the last file. Throws CommandError if
  /// reading fails.
  bool next();
  /// The line without its line end ("\n" or "\r\n"); truncated if `isTooLong`.
  const std::string& text() const { return text_; }
  bool isTooLong() const { return isTooLong_; }
  /// The line number over all files, from 1.
  std::uint64_t number() const { return number_; }
  /// "FILE:LINE", for a message.
  std::string location() const;

 private:
  /// Returns false at the end of the stream.
  bool readLine(std::istream& in);

  std::vector<std::string> files_;
  std::istream& standardIn_;
  std::ifstream file_;
  std::size_t opened_ = 0;  // files, including the current one
  bool isInFile_ = false;
  std::uint64_t lineInFile_ = 0;
  std::uint64_t number_ = 0;
  std::vector<char> buffer_ = std::vector<char>(kMaxLineBytes + 1);
  std::string text_;
  bool isTooLong_ = false;
};

}  // namespace orvanta::tool
