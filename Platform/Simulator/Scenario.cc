#include "orvanta/Simulator/Scenario.h"

#include <charconv>

#include "orvanta/Simulator/ConfigReader.h"

namespace orvanta {

namespace {

using namespace config;

double seconds(const Value& value) {
  return number(value, 0.0, 1e9, "a number of seconds from 0 to 1e9");
}

/// Returns true; rejects every other string than the one that the key may have.
bool word(const Value& value, std::string_view only) {
  if (value.string() != only) fail("\"" + std::string(only) + "\"");
  return true;
}

/// A file name that does not leave its folder.
std::string fileName(const Value& value) {
  std::string name = string(value);
  if (name.empty() || name == "." || name == ".." || name.size() > 200 ||
      name.find_first_of(std::string_view("/\0", 2)) != std::string::npos) {
    fail("a plain file name");
  }
  return name;
}

Scenario::Media readMedia(const Value& value) {
  Scenario::Media media;
  read(dictionary(value), "media.",
       {{"result",
         [&](const Value& v) {
           if (v.string() != "ok" && v.string() != "error") {
             fail(R"("ok" or "error")");
           }
           media.fails = v.string() == "error";
         }},
        {"code", [&](const Value& v) { media.errorCode = wholeNumber(v, -100000, -1); }},
        {"status",
         [&](const Value& v) { media.status = static_cast<int>(wholeNumber(v, 100, 599)); }},
        {"mime", [&](const Value& v) { media.mime = stringOrNull(v); }},
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

std::optional<OperatingSystemVersion> parseVersion(std::string_view string) {
  int parts[3] = {0, 0, 0};
  const char* at = string.data();
  const char* end = at + string.size();
  for (int& part : parts) {
    const auto result = std::from_chars(at, end, part);
    if (result.ec != std::errc() || part < 0) return std::nullopt;
    at = result.ptr;
    if (at == end) return OperatingSystemVersion{parts[0], parts[1], parts[2]};
    if (*at++ != '.') return std::nullopt;
  }
  return std::nullopt;
}

Scenario Scenario::fromDictionary(const Dictionary& dictionary) {
  Scenario scenario;
  read(dictionary, "",
       {{"os",
         [&](const Value& v) {
           scenario.os = parseVersion(string(v));
           if (!scenario.os) fail("a version such as \"15.0\"");
         }},
        {"title", [&](const Value& v) { scenario.title = stringOrNull(v); }},
        {"subtitle", [&](const Value& v) { scenario.subtitle = stringOrNull(v); }},
        {"body", [&](const Value& v) { scenario.body = stringOrNull(v); }},
        {"images", [&](const Value& v) { scenario.images = strings(v); }},
        {"categories", [&](const Value& v) { scenario.categories = strings(v); }},
        {"attachments",
         [&](const Value& v) {
           scenario.attachments = static_cast<std::size_t>(wholeNumber(v, 0, 100));
         }},
        {"media", [&](const Value& v) { scenario.media = readMedia(v); }},
        {"center", [&](const Value& v) { scenario.centerGone = word(v, "gone"); }},
        {"donation", [&](const Value& v) { scenario.donationFails = word(v, "fail"); }},
        {"update", [&](const Value& v) { scenario.updateFails = word(v, "fail"); }},
        {"delays",
         [&](const Value& v) {
           read(config::dictionary(v), "delays.",
                {{"categories", [&](const Value& d) { scenario.categoriesDelay = seconds(d); }},
                 {"donation", [&](const Value& d) { scenario.donationDelay = seconds(d); }}});
         }},
        {"expireAt", [&](const Value& v) { scenario.expireAt = seconds(v); }},
        {"second", [&](const Value& v) {
           Second request;
           read(config::dictionary(v), "second.",
                {{"at", [&](const Value& a) { request.at = seconds(a); }},
                 {"payload", [&](const Value& p) { request.payload = config::dictionary(p); }}});
           scenario.second = request;
         }}});
  return scenario;
}

}  // namespace orvanta
