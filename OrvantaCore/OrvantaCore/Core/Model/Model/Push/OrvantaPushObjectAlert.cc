#include "orvanta/Model/Push/OrvantaPushObjectAlert.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushObjectAlert)

bool OrvantaPushObjectAlert::initWithString(const Value& body) {
  if (!init()) return false;
  body_ = PropertyValue<String>::any(body);
  return true;
}

bool OrvantaPushObjectAlert::initWithValue(const Value& value) {
  if (value.isString()) return initWithString(value);
  if (const Dictionary* dictionary = value.dictionary()) return initWithDictionary(dictionary);
  return true;
}

}  // namespace orvanta
