#pragma once

#include "orvanta/Model/Mapping/PropertyValue.h"

namespace orvanta {

/// One HTTP call to the back end, independent of the transport. The sending layer sets the base URL
/// and adds headers.
class OrvantaRequestSpec final : public Object {
 public:
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  PropertyValue<String> baseURL;
  PropertyValue<String> path;
  PropertyValue<String> HTTPMethod;
  Dictionary HTTPHeaders;        // strings to strings
  Dictionary HTTPBody;           // can be written as JSON
  double timeoutInterval = 0.0;  // seconds
  std::int64_t queuePriority = 0;

  /// One line per member, in this order, each preceded by a line break.
  std::string description() const override;

 private:
  static constexpr ClassObject kClass{"OrvantaRequestSpec", nullptr};
};

}  // namespace orvanta
