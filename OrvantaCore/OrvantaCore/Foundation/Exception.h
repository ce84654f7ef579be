#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace orvanta {

/// An error inside the component, under the platform's exception name. None crosses the
/// component's entry points; headers name the calls that let one pass.
class Exception : public std::exception {
 public:
  /// A key that the object does not have, or a key path through a value that has no keys.
  static constexpr std::string_view kUndefinedKey = "NSUnknownKeyException";
  /// A value that the operation cannot take.
  static constexpr std::string_view kInvalidArgument = "NSInvalidArgumentException";

  Exception(std::string_view name, std::string reason) : name_(name), reason_(std::move(reason)) {}

  /// One of the constants above.
  std::string_view name() const noexcept { return name_; }
  const std::string& reason() const noexcept { return reason_; }
  const char* what() const noexcept override { return reason_.c_str(); }

  /// "[<Class> valueForUndefinedKey:]: …" or, for a write, "[<Class> setValue:forUndefinedKey:]:
  /// …".
  static Exception undefinedKey(std::string_view className, std::string_view key, bool writing);
  /// "-[Class selector]: unrecognized selector sent to instance".
  static Exception unrecognizedSelector(std::string_view className, std::string_view selector);

 private:
  std::string_view name_;
  std::string reason_;
};

}  // namespace orvanta
