#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvanta {

/// The endpoints of the back end. A request stores one as a plain number.
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

/// Returns the path of an endpoint ("/session/init"); nullopt for an unknown code, such as 0.
std::optional<std::string_view> OrvantaRequestPathStringForType(std::uint64_t code);
/// Returns the name of a method ("POST"); nullopt for an unknown code.
std::optional<std::string_view> OrvantaHTTPMethodStringForType(std::uint64_t code);

}  // namespace orvanta
