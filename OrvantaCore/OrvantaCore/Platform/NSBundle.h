#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"

namespace orvanta {

/// The running bundle.
class NSBundle {
 public:
  virtual ~NSBundle() = default;
  /// localizedStringForKey:value:table: with an empty default value and the default table: the
  /// text of a key in the bundle's strings, or the key itself. From any thread.
  virtual std::string localizedStringForKey(std::string_view key) = 0;
  /// What the bundle says about the application ("CFBundleShortVersionString" and so on).
  virtual Dictionary infoDictionary() { return {}; }
  /// The bundle's localizations that the user prefers, best first: "en", "pt-BR".
  virtual std::vector<std::string> preferredLocalizations() { return {}; }
};

}  // namespace orvanta
