#pragma once

#include <string>
#include <utility>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// A URL or relative reference, kept as the text from which it was parsed.
class Url {
 public:
  /// Parses a text: characters that RFC 3986 allows only, "%" followed by two hex digits, at most
  /// one "#". Relative references are allowed, and "" is the empty URL; nothing is encoded. None
  /// when the text is no URL, or the value no text.
  static std::optional<Url> parse(const Value& value);

  /// The file URL of an absolute path; what a URL cannot hold is percent-encoded.
  static Url fileURLWithPath(std::string_view path);
  /// The file URL of a name below a folder, whose URL ends in a slash; it stays relative to it.
  static Url fileURLWithPath(std::string_view name, const Url& folder);

  Url(const Url& other) noexcept : node_(other.node_) { node_->retain(); }
  Url(Url&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
  ~Url();
  Url& operator=(Url other) noexcept {
    std::swap(node_, other.node_);
    return *this;
  }

  std::string_view absoluteString() const noexcept { return node_->text(); }

  /// The absolute string as a value; a long one is shared.
  Value stringValue() const;
  /// "http" and the like, as written; empty for a relative reference.
  std::string_view scheme() const noexcept;
  bool isFileURL() const noexcept { return scheme() == "file"; }
  /// What stands between authority and query, decoded.
  std::string path() const;
  /// The last name of the path, decoded; a slash behind it does not count.
  std::string lastPathComponent() const;
  /// The absolute string, or "name -- folder" of a relative one.
  std::string description() const;

  friend bool operator==(const Url& a, const Url& b) {
    return a.absoluteString() == b.absoluteString();
  }

 private:
  friend class Value;
  explicit Url(const StringNode* adopted) noexcept : node_(adopted) {}

  const StringNode* node_;  // null only in one that was moved from
};

}  // namespace orvanta
