#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace orvanta {

/// An error inside the component, named like the platform's exception. The component's entry points
/// catch it; every call that can throw it says so in its header.
class Exception : public std::exception {
 public:
  /// The object does not have the key, or a key path goes through a value that has no keys.
  static constexpr std::string_view kUndefinedKey = "NSUnknownKeyException";
  /// The operation does not accept the value.
  static constexpr std::string_view kInvalidArgument = "NSInvalidArgumentException";

  Exception(std::string_view name, std::string reason) : name_(name), reason_(std::move(reason)) {}

  /// One of the constants above.
  std::string_view name() const noexcept { return name_; }
  const std::string& reason() const noexcept { return reason_; }
  const char* what() const noexcept override { return reason_.c_str(); }

  /// "[<Class> valueForUndefinedKey:]: …"; for a write "[<Class> setValue:forUndefinedKey:]: …".
  static Exception undefinedKey(std::string_view className, std::string_view key, bool writing);
  /// "-[Class selector]: unrecognized selector sent to instance".
  static Exception unrecognizedSelector(std::string_view className, std::string_view selector);

 private:
  std::string_view name_;
  std::string reason_;
};

}  // namespace orvanta
