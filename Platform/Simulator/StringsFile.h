#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "orvanta/Platform/NSBundle.h"

namespace orvanta {

/// Localized strings by key.
using StringsTable = std::map<std::string, std::string, std::less<>>;

/// Parses a strings file: `"key" = "value";` with C escapes, /* */ and // comments, in UTF-8. The
/// first of several entries of one key counts. Throws std::runtime_error that begins with
/// "<fileName>:<line>: ".
StringsTable parseStrings(std::string_view strings, const std::string& fileName);

/// A bundle with these strings.
class SimulatedBundle final : public NSBundle {
 public:
  explicit SimulatedBundle(StringsTable strings = {}) : strings_(std::move(strings)) {}
  std::string localizedStringForKey(std::string_view key) override;

 private:
  StringsTable strings_;
};

}  // namespace orvanta
