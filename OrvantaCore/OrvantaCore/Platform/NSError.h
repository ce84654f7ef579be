#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Object.h"

namespace orvanta {

/// An error of a platform operation.
class NSError final : public Object {
 public:
  static constexpr std::string_view kLocalizedDescription = "NSLocalizedDescription";
  static constexpr std::string_view kUnderlyingError = "NSUnderlyingError";

  static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                      Dictionary userInfo = {}) {
    return Ref<NSError>::adopt(new NSError(domain, code, std::move(userInfo)));
  }
  /// One whose user info holds its text.
  static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                      std::string_view localizedDescription) {
    return errorWithDomain(domain, code, Dictionary{{kLocalizedDescription, localizedDescription}});
  }
  /// One whose text its domain makes up: the user info does not hold it.
  static Ref<NSError> errorWithDomain(std::string_view domain, std::int64_t code,
                                      Dictionary userInfo, std::string_view generatedDescription);

  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  const std::string& domain() const { return domain_; }
  std::int64_t code() const { return code_; }
  const Dictionary& userInfo() const { return userInfo_; }
  /// The text in the user info, else the one that the domain made up; nil for none.
  const Value& localizedDescription() const;

  /// Error Domain=… Code=… "text" UserInfo={key=value, …}; the last part only when there is one.
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

/// Told how an operation ended; nil for success.
using ErrorCompletion = std::function<void(const Ref<NSError>& error)>;

}  // namespace orvanta
