#include "orvanta/Platform/NSError.h"

#include "orvanta/Foundation/Description.h"

namespace orvanta {

Ref<NSError> NSError::errorWithDomain(std::string_view domain, std::int64_t code,
                                      Dictionary userInfo, std::string_view generatedDescription) {
  Ref<NSError> error = errorWithDomain(domain, code, std::move(userInfo));
  error->generatedDescription_ = generatedDescription;
  return error;
}

const Value& NSError::localizedDescription() const {
  const Value& description = userInfo_[kLocalizedDescription];
  return description.isNil() ? generatedDescription_ : description;
}

std::string NSError::description() const {
  std::string result = "Error Domain=" + domain_ + " Code=" + std::to_string(code_) + " \"" +
                       describe(localizedDescription()) + "\"";
  if (userInfo_.empty()) return result;
  result += " UserInfo={";
  for (const Dictionary::Entry& entry : userInfo_) {
    if (&entry != userInfo_.begin()) result += ", ";
    result.append(entry.key()).append("=");
    const bool isError = entry.value.as<NSError>() != nullptr;
    result.append(isError ? "{" : "").append(describe(entry.value)).append(isError ? "}" : "");
  }
  return result + "}";
}

}  // namespace orvanta
