#pragma once

#include "orvanta/Foundation/Dictionary.h"

namespace orvanta {

/// An object that is read from a JSON-shaped dictionary and written to one.
class OrvantaSerializableModel {
 public:
  virtual ~OrvantaSerializableModel() = default;

  /// Initializes a new object from a dictionary, or without one if nullptr. If it returns false,
  /// the object must not be used.
  virtual bool initWithDictionary(const Dictionary* dictionary) = 0;
  /// Updates the object from a dictionary; nullptr changes nothing. Returns false if a value is
  /// rejected; properties assigned before it keep their new values.
  virtual bool updateWithDictionary(const Dictionary* dictionary) = 0;
  virtual Dictionary dictionaryValue() const = 0;
  virtual Dictionary dictionaryValueWithClassInfo() const = 0;
  /// Returns the object as a dictionary; with class info every model has its class under "klazz".
  virtual Dictionary dictionaryValueWithPolicy(bool classInfo) const = 0;
};

}  // namespace orvanta
