#pragma once

#include <optional>
#include <string>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Platform/Platform.h"

namespace orvanta {

/// What a simulated device does to one notification. Times are seconds from the first request.
struct Scenario {
  /// A string of the content that is replaced, or removed.
  using ContentString = std::optional<std::string>;

  /// The result of the download, instead of a transfer.
  struct Media {
    bool fails = false;
    std::int64_t errorCode = -1009;  // of NSURLErrorDomain
    int status = 200;
    std::optional<std::string> mime = "image/jpeg";
    std::optional<std::string> tempName;  // nothing: a new one
    std::uint64_t bytes = 1000;
    bool destinationExists = false;
    double delay = 0.0;
  };
  struct Second {
    double at = 0.0;
    Dictionary payload;
  };

  std::optional<OperatingSystemVersion> os;
  std::optional<ContentString> title;
  std::optional<ContentString> subtitle;
  std::optional<ContentString> body;
  std::vector<std::string> images;
  std::vector<std::string> categories;
  std::size_t attachments = 0;
  std::optional<Media> media;
  bool centerGone = false;
  bool donationFails = false;
  bool updateFails = false;
  double categoriesDelay = 0.0;
  double donationDelay = 0.0;
  std::optional<double> expireAt;
  std::optional<Second> second;

  /// Throws ConfigError that names the key.
  static Scenario fromDictionary(const Dictionary& dictionary);
};

/// Parses "17.0", "15" or "15.4.1"; returns nothing for anything else.
std::optional<OperatingSystemVersion> parseVersion(std::string_view string);

}  // namespace orvanta
