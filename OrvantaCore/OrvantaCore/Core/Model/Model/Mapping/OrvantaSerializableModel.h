#pragma once

#include "orvanta/Foundation/Dictionary.h"

namespace orvanta {

/// What can be made from a JSON-shaped dictionary and turned back into one.
class OrvantaSerializableModel {
 public:
  virtual ~OrvantaSerializableModel() = default;

  /// Initializes a new object from a dictionary, nullptr for none. False: there is no object.
  virtual bool initWithDictionary(const Dictionary* dictionary) = 0;
  /// Applies a dictionary, nullptr for none, to the object. False when something was refused; what
  /// had been assigned before stays assigned.
  virtual bool updateWithDictionary(const Dictionary* dictionary) = 0;
  virtual Dictionary dictionaryValue() const = 0;
  virtual Dictionary dictionaryValueWithClassInfo() const = 0;
  /// The object's dictionary; with class info, every model in it names its class under "klazz".
  virtual Dictionary dictionaryValueWithPolicy(bool classInfo) const = 0;
};

}  // namespace orvanta
