#pragma once

#include <string>
#include <utility>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// A URL or a relative reference, stored as the string that it was parsed from.
class Url {
 public:
  /// Parses a string that has only the characters of RFC 3986, with two hex digits after every "%"
  /// and at most one "#". Relative references are accepted, "" is the empty URL, and nothing is
  /// percent-encoded. Returns nothing if the value is not such a string.
  static std::optional<Url> parse(const Value& value);

  /// The file URL for an absolute path. Characters that a URL does not allow are percent-encoded.
  static Url fileURLWithPath(std::string_view path);
  /// The file URL for a name, relative to the URL of a folder, which ends in a slash.
  static Url fileURLWithPath(std::string_view name, const Url& folder);

  Url(const Url& other) noexcept : node_(other.node_) { node_->retain(); }
  Url(Url&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
  ~Url();
  Url& operator=(Url other) noexcept {
    std::swap(node_, other.node_);
    return *this;
  }

  std::string_view absoluteString() const noexcept { return node_->text(); }

  /// The absolute string as a value; a long string is shared, not copied.
  Value stringValue() const;
  /// The scheme as written, such as "http"; empty for a relative reference.
  std::string_view scheme() const noexcept;
  bool isFileURL() const noexcept { return scheme() == "file"; }
  /// The part between authority and query, percent-decoded.
  std::string path() const;
  /// The last name in the path, percent-decoded; a slash at the end is ignored.
  std::string lastPathComponent() const;
  /// The absolute string; "name -- folder" if the URL is relative to a folder.
  std::string description() const;

  friend bool operator==(const Url& a, const Url& b) {
    return a.absoluteString() == b.absoluteString();
  }

 private:
  friend class Value;
  explicit Url(const StringNode* adopted) noexcept : node_(adopted) {}

  const StringNode* node_;  // null only after a move
};

}  // namespace orvanta
