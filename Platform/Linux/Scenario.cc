#include "orvanta/Linux/Scenario.h"

#include <charconv>

#include "orvanta/Linux/KeyReaders.h"

namespace orvanta {

namespace {

using namespace reading;

double seconds(const Value& value) {
  return number(value, 0.0, 1e9, "a number of seconds from 0 to 1e9");
}

/// True when the text is the one word that a key may have.
bool word(const Value& value, std::string_view only) {
  if (value.string() != only) refuse("only \"" + std::string(only) + "\" is possible");
  return true;
}

/// A file name, which stays in its folder.
std::string fileName(const Value& value) {
  std::string name = text(value);
  if (name.empty() || name == "." || name == ".." || name.size() > 200 ||
      name.find_first_of(std::string_view("/\0", 2)) != std::string::npos) {
    refuse("a plain file name is needed");
  }
  return name;
}

Scenario::Media readMedia(const Value& value) {
  Scenario::Media media;
  readAll(dictionary(value), "media.",
          {{"result",
            [&](const Value& v) {
              if (v.string() != "ok" && v.string() != "error") {
                refuse(R"("ok" or "error" is needed)");
              }
              media.fails = v.string() == "error";
            }},
           {"code", [&](const Value& v) { media.errorCode = wholeNumber(v, -100000, -1); }},
           {"status",
            [&](const Value& v) { media.status = static_cast<int>(wholeNumber(v, 100, 599)); }},
           {"mime", [&](const Value& v) { media.mime = textOrNull(v); }},
           {"tempName", [&](const Value& v) { media.tempName = fileName(v); }},
           {"bytes",
            [&](const Value& v) {
              media.bytes = static_cast<std::uint64_t>(wholeNumber(v, 0, 1'000'000'000));
            }},
           {"destinationExists", [&](const Value& v) { media.destinationExists = flag(v); }},
           {"delay", [&](const Value& v) { media.delay = seconds(v); }}});
  return media;
}

}  // namespace

std::optional<OperatingSystemVersion> parseVersion(std::string_view text) {
  int parts[3] = {0, 0, 0};
  const char* at = text.data();
  const char* end = at + text.size();
  for (int& part : parts) {
    const auto result = std::from_chars(at, end, part);
    if (result.ec != std::errc() || part < 0) return std::nullopt;
    at = result.ptr;
    if (at == end) return OperatingSystemVersion{parts[0], parts[1], parts[2]};
    if (*at++ != '.') return std::nullopt;
  }
  return std::nullopt;
}

Scenario Scenario::fromDictionary(const Dictionary& given) {
  Scenario made;
  readAll(given, "",
          {{"os",
            [&](const Value& v) {
              made.os = parseVersion(text(v));
              if (!made.os) refuse("a version such as \"15.0\" is needed");
            }},
           {"title", [&](const Value& v) { made.title = textOrNull(v); }},
           {"subtitle", [&](const Value& v) { made.subtitle = textOrNull(v); }},
           {"body", [&](const Value& v) { made.body = textOrNull(v); }},
           {"images", [&](const Value& v) { made.images = texts(v); }},
           {"categories", [&](const Value& v) { made.categories = texts(v); }},
           {"attachments",
            [&](const Value& v) {
              made.attachments = static_cast<std::size_t>(wholeNumber(v, 0, 100));
            }},
           {"media", [&](const Value& v) { made.media = readMedia(v); }},
           {"center", [&](const Value& v) { made.centerGone = word(v, "gone"); }},
           {"donation", [&](const Value& v) { made.donationFails = word(v, "fail"); }},
           {"update", [&](const Value& v) { made.updateFails = word(v, "fail"); }},
           {"delays",
            [&](const Value& v) {
              readAll(dictionary(v), "delays.",
                      {{"categories", [&](const Value& d) { made.categoriesDelay = seconds(d); }},
                       {"donation", [&](const Value& d) { made.donationDelay = seconds(d); }}});
            }},
           {"expireAt", [&](const Value& v) { made.expireAt = seconds(v); }},
           {"second", [&](const Value& v) {
              Second again;
              readAll(dictionary(v), "second.",
                      {{"at", [&](const Value& a) { again.at = seconds(a); }},
                       {"payload", [&](const Value& p) { again.payload = dictionary(p); }}});
              made.second = again;
            }}});
  return made;
}

}  // namespace orvanta
