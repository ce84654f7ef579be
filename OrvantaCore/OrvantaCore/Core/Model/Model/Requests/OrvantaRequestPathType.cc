#include "orvanta/Model/Requests/OrvantaRequestPathType.h"

namespace orvanta {

namespace {

/// Indexed by code - 1.
constexpr std::string_view kPaths[] = {
    "/session/init",
    "/config/get",
    "/event/fire",
    "/push/register",
    "/push/enable",
    "/push/disable",
    "/user/update-identify",
    "/device/update",
    "/inbox/fetch",
    "/inbox/categoryCount",
    "/inbox/count",
    "/inbox/set",
    "/push/test",
    "/track/deviceInfo",
    "/adid/enable",
    "/adid/disable",
    "/user/getCategoryPreferences",
    "/user/setCategoryPreference",
    "/remote-config/get",
    "/user/setEmailSubscribeSdk",
    "/coupon/fetch",
};
static_assert(std::size(kPaths) == kRequestPathTypes);

constexpr std::string_view kMethods[] = {"POST", "GET", "PUT", "DELETE"};
static_assert(std::size(kMethods) == kHTTPMethodTypes);

}  // namespace

std::optional<std::string_view> OrvantaRequestPathStringForType(std::uint64_t code) {
  if (code == 0 || code > kRequestPathTypes) return std::nullopt;
  return kPaths[code - 1];
}

std::optional<std::string_view> OrvantaHTTPMethodStringForType(std::uint64_t code) {
  if (code >= kHTTPMethodTypes) return std::nullopt;
  return kMethods[code];
}

}  // namespace orvanta
