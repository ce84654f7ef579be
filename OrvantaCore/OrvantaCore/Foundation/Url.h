#pragma once

#include <string>
#include <utility>

#include "Foundation/Value.h"

namespace orvanta {

/// A URL or relative reference, kept as the text from which it was parsed.
class Url {
 public:
  /// Parses a text: characters that RFC 3986 allows only, "%" followed by two hex digits, at most
  /// one "#". Relative references are allowed, and "" is the empty URL; nothing is encoded. None
  /// when the text is no URL, or the value no text.
  static std::optional<Url> parse(const Value& text);

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

  friend bool operator==(const Url& a, const Url& b) {
    return a.absoluteString() == b.absoluteString();
  }

 private:
  friend class Value;
  explicit Url(const StringNode* adopted) noexcept : node_(adopted) {}

  const StringNode* node_;  // null only in one that was moved from
};

}  // namespace orvanta
