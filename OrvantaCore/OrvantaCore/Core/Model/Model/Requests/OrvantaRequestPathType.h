#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvanta {

/// The endpoints of the back end; a request holds one as a plain number.
enum OrvantaRequestPathType : std::uint64_t {
  OrvantaRequestPathTypeInitSession = 1,
  OrvantaRequestPathTypeAppConfig = 2,
  OrvantaRequestPathTypeEvent = 3,
  OrvantaRequestPathTypeRegisterPush = 4,
  OrvantaRequestPathTypeEnablePush = 5,
  OrvantaRequestPathTypeDisablePush = 6,
  OrvantaRequestPathTypeUpdateUser = 7,
  OrvantaRequestPathTypeUpdateDevice = 8,
  OrvantaRequestPathTypeFetchInbox = 9,
  OrvantaRequestPathTypeFetchInboxCategory = 10,
  OrvantaRequestPathTypeFetchInboxCount = 11,
  OrvantaRequestPathTypeSetInboxStatus = 12,
  OrvantaRequestPathTypeAddTestDevice = 13,
  OrvantaRequestPathTypeDeviceInfo = 14,
  OrvantaRequestPathTypeEnableAdId = 15,
  OrvantaRequestPathTypeDisableAdId = 16,
  OrvantaRequestPathTypeFetchUserCategory = 17,
  OrvantaRequestPathTypeSetUserCategory = 18,
  OrvantaRequestPathTypeRemoteConfig = 19,
  OrvantaRequestPathTypeEmailSubscribe = 20,
  OrvantaRequestPathTypeFetchCoupon = 21,
};
inline constexpr std::uint64_t kRequestPathTypes = 21;

enum OrvantaHTTPMethodType : std::uint64_t {
  OrvantaHTTPMethodTypePost = 0,
  OrvantaHTTPMethodTypeGet = 1,
  OrvantaHTTPMethodTypePut = 2,
  OrvantaHTTPMethodTypeDelete = 3,
};
inline constexpr std::uint64_t kHTTPMethodTypes = 4;

/// The path of an endpoint; none for a code that is none, 0 among them.
std::optional<std::string_view> OrvantaRequestPathStringForType(std::uint64_t code);
/// "POST" and so on; none for a code that is none.
std::optional<std::string_view> OrvantaHTTPMethodStringForType(std::uint64_t code);

}  // namespace orvanta
