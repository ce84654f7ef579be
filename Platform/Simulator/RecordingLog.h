#pragma once

#include <functional>
#include <mutex>
#include <ostream>
#include <string>
#include <vector>

#include "orvanta/Platform/SystemLog.h"

namespace orvanta {

/// A system log that writes to a stream and keeps its entries. Any thread may write.
class RecordingLog final : public SystemLog {
 public:
  /// Rewrites an entry before it is written and kept.
  using Filter = std::function<std::string(std::string_view)>;

  explicit RecordingLog(std::ostream& out) : out_(out) {}
  void setFilter(Filter filter) { filter_ = std::move(filter); }
  void write(std::string_view entry) noexcept override;
  std::vector<std::string> entries() const;

 private:
  std::ostream& out_;
  Filter filter_;
  mutable std::mutex lock_;
  std::vector<std::string> entries_;
};

}  // namespace orvanta
