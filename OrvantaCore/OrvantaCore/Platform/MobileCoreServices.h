#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// Uniform type identifiers.
///
/// Called by the extension's media step for the MIME type of each finished download, in the
/// download's callback. The result becomes the type hint of the attachment.
///
/// Requirements for implementers:
/// - Return synchronously, from any thread. Do not throw.
/// - Return the same identifier for the same type every time, also for undeclared types.
class TypeIdentifiers {
 public:
  virtual ~TypeIdentifiers() = default;
  /// UTTypeCreatePreferredIdentifierForTag for kUTTagClassMIMEType, without a conforming-to hint.
  /// Returns a dynamic identifier ("dyn.a…") for a type that is not declared, and nullopt for
  /// nullopt. Ignores case; does not parse parameters, so "image/jpeg; q=1" is an undeclared type.
  virtual std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& type) = 0;
};

}  // namespace orvanta
