#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Those of the platform's text styles that descriptions use.
enum class TextStyle : std::uint8_t { none, headline, body };

/// A string with attributes per run.
struct AttributedString {
  struct Run {
    std::string text;
    TextStyle font = TextStyle::none;
    int underlineStyle = 0;  // 0 none, 1 single

    friend bool operator==(const Run&, const Run&) = default;
  };
  std::vector<Run> runs;

  std::string string() const {
    std::string plain;
    for (const Run& run : runs) plain += run.text;
    return plain;
  }
};

}  // namespace orvanta
