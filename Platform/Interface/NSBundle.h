#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// The running bundle.
class NSBundle {
 public:
  virtual ~NSBundle() = default;
  /// localizedStringForKey:value:table: with an empty default value and the default table: the
  /// text of a key in the bundle's strings, or the key itself. From any thread.
  virtual std::string localizedStringForKey(std::string_view key) = 0;
};

}  // namespace orvanta
