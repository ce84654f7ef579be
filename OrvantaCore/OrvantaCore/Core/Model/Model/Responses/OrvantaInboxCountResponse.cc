#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxCountResponse)

std::int64_t OrvantaInboxCountResponse::countForStatus(std::uint64_t mask) const {
  const Dictionary* counts = counts_.get();
  if (counts == nullptr) return 0;
  const auto reading = [](const Value& value) {
    const bool hasReading = value.isNumber() || value.isString();
    return hasReading ? static_cast<std::uint64_t>(scalarReading<std::int64_t>(value)) : 0;
  };
  std::uint64_t sum = 0;
  for (const Dictionary::Entry& entry : *counts) {
    if ((reading(entry.keyValue) & mask) != 0) sum += reading(entry.value);
  }
  return static_cast<std::int64_t>(sum);
}

}  // namespace orvanta
