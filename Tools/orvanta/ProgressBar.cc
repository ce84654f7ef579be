#include "orvanta/Tool/ProgressBar.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <string>

namespace orvanta::tool {

namespace {

constexpr std::string_view kEraseLine = "\r\033[K";

}  // namespace

bool ProgressBar::isTerminal(const std::ostream& out) {
  return &out == &std::cerr && isatty(STDERR_FILENO) != 0;
}

void ProgressBar::update(std::uint64_t done, std::uint64_t total, std::string_view label) {
  constexpr std::uint64_t kWidth = 40;
  if (!isVisible_) return;
  out_ << kEraseLine;
  if (total != 0) {
    done = std::min(done, total);
    const std::uint64_t filled = done * kWidth / total;
    out_ << '[' << std::string(filled, '#') << std::string(kWidth - filled, ' ') << "] "
         << done * 100 / total << " %, ";
  }
  out_ << label << std::flush;
  isDrawn_ = true;
}

void ProgressBar::erase() {
  if (isDrawn_) out_ << kEraseLine << std::flush;
  isDrawn_ = false;
}

}  // namespace orvanta::tool
