#pragma once

namespace orvanta {

/// A platform class that is looked up by name at run time (Platform::classNamed), so that programs
/// need not link its framework. Derive one interface per class; callers use dynamic_cast.
class RuntimeClass {
 public:
  virtual ~RuntimeClass() = default;
};

}  // namespace orvanta
