#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Model/Mapping/Class.h"

namespace orvanta::inspection {

/// What an event or request class defines for all its objects, besides its tables.
struct ClassMetadata {
  explicit ClassMetadata(const Class& cls);

  bool isEvent = false;
  std::optional<std::string> eventCode;

  bool isRequest = false;
  std::uint64_t pathCode = 0;
  std::optional<std::string_view> path;
  std::optional<std::string_view> method;
  const Class* responseClass = nullptr;

  /// Also absent for batches, whose priority depends on their events.
  std::optional<std::int64_t> priority;
};

}  // namespace orvanta::inspection
