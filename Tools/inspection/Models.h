#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Model/Mapping/Class.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Requests/OrvantaRequestSpec.h"

namespace orvanta::inspection {

/// Why an inspection has no result. The message may hold control characters of the input.
class Error : public std::runtime_error {
 public:
  enum class Kind : std::uint8_t {
    usage,    // a class that does not exist or is not of the right kind
    rejected  // a model that rejects its dictionary, or that JSON cannot represent
  };
  Error(Kind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}
  Kind kind() const { return kind_; }

 private:
  Kind kind_;
};

/// Returns the model class of that name; throws a usage error that suggests the nearest one.
const Class& classNamed(const std::string& name);

/// Returns why a model of the class rejected its dictionary.
std::string rejectionReason(const RefusalRecorder& recorder, const Class& cls);

/// Throws an error about the first entry of a model's dictionary that JSON cannot represent.
void checkWritable(const Dictionary& dictionary, const Class& cls);

/// Makes a model from a dictionary, or a new one with its defaults for null, and returns what goes
/// over the wire.
Dictionary modelDictionary(const Class& cls, const Dictionary* dictionary, bool classInfo);

/// Throws a usage error for a class that is not a request class.
void checkIsRequest(const Class& cls);

/// Restores a request from its dictionary.
Ref<OrvantaBaseRequest> restoredRequest(const Class& cls, const Dictionary& dictionary);

/// Restores a request and returns the call that it makes: the spec and the request's priority.
Dictionary requestCall(const Class& cls, const Dictionary& dictionary);

/// Returns a spec as a dictionary, with null for each part that is not set.
Dictionary specDictionary(const OrvantaRequestSpec& spec);

/// The Levenshtein distance in bytes.
std::size_t editDistance(std::string_view a, std::string_view b);

}  // namespace orvanta::inspection
