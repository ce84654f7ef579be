#pragma once

#include <cstdint>
#include <ostream>
#include <string_view>

namespace orvanta::tool {

/// A progress bar on the last line of a terminal, such as "[####    ] 50 %, 3 of 6 kB". Draws
/// nothing on any other stream. The destructor erases it.
class ProgressBar {
 public:
  explicit ProgressBar(std::ostream& out) : ProgressBar(out, isTerminal(out)) {}
  ProgressBar(std::ostream& out, bool isVisible) : out_(out), isVisible_(isVisible) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar() { erase(); }

  bool isVisible() const { return isVisible_; }
  /// Draws the bar and the label; the label alone if `total` is 0, which means unknown.
  void update(std::uint64_t done, std::uint64_t total, std::string_view label);
  /// Erases what was drawn, before something else is printed.
  void erase();

 private:
  static bool isTerminal(const std::ostream& out);

  std::ostream& out_;
  bool isVisible_;
  bool isDrawn_ = false;
};

}  // namespace orvanta::tool
