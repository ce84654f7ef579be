#include "orvanta/Foundation/Exception.h"

namespace orvanta {

Exception Exception::undefinedKey(std::string_view className, std::string_view key, bool writing) {
  std::string reason = "[<";
  reason.append(className).append(writing ? "> setValue:forUndefinedKey:]: "
                                          : "> valueForUndefinedKey:]: ");
  reason.append("this class is not key value coding-compliant for the key ").append(key);
  return {kUndefinedKey, reason.append(".")};
}

Exception Exception::unrecognizedSelector(std::string_view className, std::string_view selector) {
  std::string reason = "-[";
  reason.append(className).append(" ").append(selector);
  return {kInvalidArgument, reason.append("]: unrecognized selector sent to instance")};
}

}  // namespace orvanta
