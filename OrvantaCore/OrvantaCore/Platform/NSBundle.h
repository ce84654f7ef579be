#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"

namespace orvanta {

/// The main bundle: its localized strings, Info.plist and localizations.
///
/// NotificationHelper asks for the titles of the fixed buttons, OrvantaAppDeviceInfoUtil for the
/// rest; each on its caller's thread.
///
/// Requirements for implementers:
/// - `localizedStringForKey` is safe to call from any thread at the same time.
/// - Do not throw.
class NSBundle {
 public:
  virtual ~NSBundle() = default;
  /// localizedStringForKey:value:table: with an empty value and the default table. Returns the key
  /// itself if the table has no such key; keys are case-sensitive. UTF-8.
  virtual std::string localizedStringForKey(std::string_view key) = 0;
  /// The contents of Info.plist ("CFBundleShortVersionString", "CFBundleVersion"); empty if there
  /// is none.
  virtual Dictionary infoDictionary() { return {}; }
  /// The bundle's localizations in the order of the user's preference: "en", "pt-BR".
  virtual std::vector<std::string> preferredLocalizations() { return {}; }
};

}  // namespace orvanta
