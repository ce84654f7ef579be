#include "orvanta/Model/Identity/OrvantaIdentifierUtil.h"

#include <algorithm>
#include <cstdint>

#include "orvanta/Platform/AdSupport.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/RandomSource.h"

namespace orvanta {

std::optional<std::string> OrvantaIdentifierUtil::advertisingId() {
  auto* managerClass = dynamic_cast<ASIdentifierManagerClass*>(
      Platform::current().classNamed("ASIdentifierManager"));
  const auto manager = managerClass != nullptr ? managerClass->sharedManager() : nullptr;
  const auto identifier = manager != nullptr ? manager->advertisingIdentifier() : std::nullopt;
  return identifier ? std::optional(identifier->UUIDString) : std::nullopt;
}

DecimalNumber OrvantaIdentifierUtil::generateShortIdentifierDecimalNumber() {
  constexpr std::uint32_t kRandoms = 65534;
  constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
  Platform& platform = Platform::current();
  RandomSource* random = platform.randomSource();
  Clock* clock = platform.clock();
  const std::int64_t now =
      clock != nullptr ? std::max<std::int64_t>(clock->steadyWallNanoseconds(), 0) : 0;

  // Formats like "%hu%.9Lf" of the random number and the seconds. Integers, since a double has too
  // few digits.
  std::string digits = std::to_string((random != nullptr ? random->uniform(kRandoms) : 0) + 1);
  const std::string fraction = std::to_string(now % kNanosecondsPerSecond);
  digits.append(std::to_string(now / kNanosecondsPerSecond)).append(".");
  digits.append(9 - fraction.size(), '0').append(fraction);
  return DecimalNumber::decimalNumberWithString(digits).multiplyingByPowerOf10(9);
}

std::string OrvantaIdentifierUtil::base62String(const DecimalNumber& number) {
  static const DecimalNumber kZero;
  static const DecimalNumber kOne(1);
  static const DecimalNumber kBase(static_cast<std::int64_t>(kBase62Digits.size()));
  static const DecimalNumber kLimit = DecimalNumber(1).multiplyingByPowerOf10(38);
  std::string digits;
  if (number < kZero || number >= kLimit) return digits;  // NaN compares less than every number
  if (number != number.dividingByRoundingDown(kOne)) return digits;
  for (DecimalNumber rest = number; rest != kZero;) {
    const DecimalNumber quotient = rest.dividingByRoundingDown(kBase);
    const DecimalNumber digit = rest.subtracting(quotient.multiplyingBy(kBase));
    digits += kBase62Digits[static_cast<std::size_t>(digit.longLongValue())];
    rest = quotient;
  }
  return digits;
}

std::string OrvantaIdentifierUtil::generateShortIdentifier() {
  return base62String(generateShortIdentifierDecimalNumber());
}

}  // namespace orvanta
