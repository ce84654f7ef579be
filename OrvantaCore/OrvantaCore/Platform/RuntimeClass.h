#pragma once

namespace orvanta {

/// A class of the platform that is looked up by its name at run time, so that nobody has to link
/// its framework; see Platform::classNamed.
class RuntimeClass {
 public:
  virtual ~RuntimeClass() = default;
};

}  // namespace orvanta
