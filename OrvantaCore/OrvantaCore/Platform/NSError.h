#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Object.h"

namespace orvanta {

/// An error of a platform operation: a domain, a code within the domain, and details. Immutable, so
/// it can be shared between threads.
class NSError final : public Object {
 public:
  static constexpr std::string_view kLocalizedDescription = "NSLocalizedDescription";
  static constexpr std::string_view kUnderlyingError = "NSUnderlyingError";

  static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                      Dictionary userInfo = {}) {
    return Ref<NSError>::adopt(new NSError(domain, code, std::move(userInfo)));
  }
  /// Puts the description into the user info, under kLocalizedDescription.
  static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                      std::string_view localizedDescription) {
    return errorWithDomain(domain, code, Dictionary{{kLocalizedDescription, localizedDescription}});
  }
  /// For an error whose description is generated from its domain and code: it is not in the user
  /// info, and so not printed there.
  static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                      Dictionary userInfo, std::string_view generatedDescription);

  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  const std::string& domain() const { return domain_; }
  std::int64_t code() const { return code_; }
  const Dictionary& userInfo() const { return userInfo_; }
  /// The description in the user info, else the generated one, else nil.
  const Value& localizedDescription() const;

  /// `Error Domain=… Code=… "description" UserInfo={key=value, …}`, without the last part if the
  /// user info is empty. Log lines contain this string.
  std::string description() const override;
  std::string debugDescription() const { return description(); }

 private:
  NSError(std::string_view domain, std::int64_t code, Dictionary userInfo)
      : domain_(domain), code_(code), userInfo_(std::move(userInfo)) {}
  static constexpr ClassObject kClass{"NSError", nullptr};

  std::string domain_;
  std::int64_t code_;
  Dictionary userInfo_;
  Value generatedDescription_;
};

/// Receives the outcome of an operation: nil for success.
using ErrorCompletion = std::function<void(const Ref<NSError>& error)>;

}  // namespace orvanta
