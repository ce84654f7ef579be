#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Platform/Platform.h"

namespace orvanta {

/// What a payload asks the extension for beside its strings. It refers to the push object's values,
/// and lives as long as they do.
struct RequestedEnrichments {
  std::optional<std::string_view> category;  // to register the buttons under; nothing for none
  std::size_t buttons = 0;
  bool buttonsWithoutCategory = false;
  const Url* media = nullptr;                  // to attach
  std::optional<std::string_view> senderIcon;  // image name, for a communication notification
};

/// Decides what a push object asks for; the one place that does.
RequestedEnrichments requestedEnrichments(const OrvantaPushObject& object);

/// The first system with communication notifications.
inline constexpr OperatingSystemVersion kFirstVersionWithCommunication{15, 0, 0};

}  // namespace orvanta
