#include <ostream>

#include "orvanta/Foundation/Date.h"
#include "orvanta/Model/Identity/OrvantaIdentifierUtil.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

[[noreturn]] void reject(const std::string& text, const std::string& reason) {
  throw CommandError(ExitCode::rejected,
                     "\"" + escapeForTerminal(text) + "\" is no short identifier: " + reason);
}

/// Returns the number whose base-62 digits these are, least significant first.
DecimalNumber decoded(const std::string& text) {
  constexpr std::size_t kMaxDigits = 21;  // 62^21 is still below 10^38
  constexpr std::string_view kDigits = OrvantaIdentifierUtil::kBase62Digits;
  if (text.size() > kMaxDigits) reject(text, "it is too long");
  const DecimalNumber base(static_cast<std::int64_t>(kDigits.size()));
  DecimalNumber number;
  for (auto character = text.rbegin(); character != text.rend(); ++character) {
    const auto digit = kDigits.find(*character);
    if (digit == std::string_view::npos) {
      reject(text, "it holds another character than letters and digits");
    }
    const DecimalNumber negative(-static_cast<std::int64_t>(digit));
    number = number.multiplyingBy(base).subtracting(negative);
  }
  return number;
}

}  // namespace

ExitCode identifier(const IdentifierOptions& options, const Streams& streams) {
  if (!options.decode) {
    for (std::uint64_t i = 0; i < options.count && streams.out; ++i) {
      streams.out << OrvantaIdentifierUtil::generateShortIdentifier() << '\n';
    }
    return ExitCode::done;
  }
  // A random number, then ten digits of seconds and nine of nanoseconds.
  constexpr std::size_t kSecondDigits = 10;
  constexpr std::size_t kNanosecondDigits = 9;
  const std::string& text = *options.decode;
  const DecimalNumber number = decoded(text);
  if (OrvantaIdentifierUtil::base62String(number) != text) {
    reject(text, "it ends with the digit 0, which is \"a\"");
  }
  const std::string digits = number.stringValue();
  if (digits.size() <= kSecondDigits + kNanosecondDigits) {
    reject(text, "its number, " + digits + ", has less than 20 digits");
  }
  const std::size_t randomDigits = digits.size() - kSecondDigits - kNanosecondDigits;
  const std::string random = digits.substr(0, randomDigits);
  if (random.size() > 5 || std::stoul(random) > 65534) {
    reject(text, "the random part of its number, " + digits + ", is beyond 65534");
  }
  const std::string seconds = digits.substr(randomDigits, kSecondDigits);
  const std::string day = Date{std::stod(seconds)}.description();
  streams.out << "number  " << digits << '\n'
              << "time    " << day.substr(0, day.find(" +")) << '.'
              << digits.substr(randomDigits + kSecondDigits) << " UTC\n"
              << "random  " << random << '\n';
  return ExitCode::done;
}

}  // namespace orvanta::tool
