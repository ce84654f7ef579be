#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// Uniform type identifiers (UTTypeCreatePreferredIdentifierForTag).
class TypeIdentifiers {
 public:
  virtual ~TypeIdentifiers() = default;
  /// UTTypeCreatePreferredIdentifierForTag for the MIME type class, without a conforming-to hint:
  /// the identifier of a type, a dynamic one ("dyn.a…") for one that nobody declares, none for no
  /// type. Case does not matter; parameters are not understood.
  virtual std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& type) = 0;
};

}  // namespace orvanta
