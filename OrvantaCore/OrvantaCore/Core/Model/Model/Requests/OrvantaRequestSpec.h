#pragma once

#include "orvanta/Model/Mapping/Property.h"

namespace orvanta {

/// One call of the back end, whatever carries it. The sending layer fills the base URL and adds
/// headers.
class OrvantaRequestSpec final : public Object {
 public:
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  Held<String> baseURL;
  Held<String> path;
  Held<String> HTTPMethod;
  Dictionary HTTPHeaders;        // text to text
  Dictionary HTTPBody;           // ready for JSON
  double timeoutInterval = 0.0;  // seconds
  std::int64_t queuePriority = 0;

  /// A line for each of these, in their order, each after a line break.
  std::string description() const override;

 private:
  static constexpr ClassObject kClass{"OrvantaRequestSpec", nullptr};
};

}  // namespace orvanta
