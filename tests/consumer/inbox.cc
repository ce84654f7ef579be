#include "inbox.h"

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"

std::string inboxTitle(std::string_view payload) {
  const orvanta::Value value = orvanta::parseJSON(payload);
  const auto push = orvanta::make<orvanta::OrvantaPushObject>(*value.dictionary());
  return std::string(push->alert().get()->title().get().value_or(""));
}
