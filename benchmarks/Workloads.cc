#include "Workloads.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"

namespace orvanta::benchmarks {

namespace {

std::string textOf(const Value& value) {
  std::string text;
  if (!writeJSON(value, text, {.escapeSlashes = false})) throw std::runtime_error("no text");
  return text;
}

/// Rotates the words of a string, so that a branch predictor sees no two equal messages.
std::string rotated(std::string_view text, int places) {
  std::string result(text);
  for (; places > 0; --places) {
    const auto space = result.find(' ');
    if (space == std::string::npos) break;
    result = result.substr(space + 1) + ' ' + result.substr(0, space);
  }
  return result;
}

Value rotated(const Value& value, int places) {
  if (const auto text = value.string()) return rotated(*text, places);
  if (const Array* array = value.array()) {
    Array result;
    for (const Value& element : *array) result.append(rotated(element, places));
    return result;
  }
  if (const Dictionary* dictionary = value.dictionary()) {
    Dictionary result;
    for (const auto& [key, element] : *dictionary) result.set(key, rotated(element, places));
    return result;
  }
  return value;
}

/// Generates the same strings and numbers in every run, on every machine.
class Source {
 public:
  std::size_t below(std::size_t limit) { return random_() % limit; }
  double amount(std::size_t lowest, std::size_t highest) {
    return static_cast<double>(100 * lowest + below(100 * (highest - lowest))) / 100.0;
  }
  std::string word() {
    constexpr std::string_view kWords[] = {
        "summer",  "sale",    "running", "shoes",   "discount", "delivery", "today",   "basket",
        "only",    "special", "offer",   "members", "size",     "colour",   "café",    "señor",
        "größe",   "naïve",   "order",   "shipped", "track",    "parcel",   "new",     "arrivals",
        "jacket",  "leather", "cotton",  "blue",    "black",    "white",    "gift",    "card",
        "limited", "stock",   "last",    "chance",  "free",     "returns",  "weekend", "waiting"};
    return std::string(kWords[below(std::size(kWords))]);
  }
  std::string words(int count) {
    std::string result = word();
    while (--count > 0) result += ' ' + word();
    return result;
  }
  std::string digits(std::size_t count) {
    std::string result;
    while (result.size() < count) result += "0123456789abcdef"[below(16)];
    return result;
  }
  std::string numbered(std::string_view prefix, std::size_t limit) {
    return std::string(prefix) + std::to_string(below(limit));
  }
  template <class Make>
  std::vector<std::string> list(int count, Make&& make) {
    std::vector<std::string> result;
    while (count-- > 0) result.push_back(make());
    return result;
  }

 private:
  std::mt19937 random_{20240607};
};

Product productOf(Source& source) {
  constexpr std::string_view kVariants[] = {"S", "M", "L", "XL"};
  const auto word = [&] { return source.word(); };
  return {.productId = "sku-" + std::to_string(10'000'000 + source.below(90'000'000)),
          .productName = source.words(4) + " \"" + source.word() + '"',
          .categoryIds = source.list(3, [&] { return source.numbered("c", 1000); }),
          .categoryNames = source.list(3, word),
          .price = source.amount(5, 900),
          .brandId = source.numbered("b", 100),
          .brandName = source.word(),
          .variant = std::string(kVariants[source.below(4)]),
          .keywords = source.list(4, word)};
}

Purchase purchaseOf(Source& source) {
  Purchase purchase;
  purchase.subTotal = source.amount(20, 900);
  purchase.grandTotal = source.amount(900, 2000);
  purchase.itemCount = 3;
  for (int i = 0; i < 3; ++i) {
    LineItem item{productOf(source), 1 + source.below(4), source.numbered("cmp-", 100)};
    purchase.productCount += item.count;
    purchase.lineItems.push_back(std::move(item));
  }
  purchase.paymentMethod = "creditCard";
  purchase.discount = 9.9;
  if (source.below(5) < 2) purchase.coupon = "SAVE10";
  return purchase;
}

ScreenView screenViewOf(Source& source) {
  ScreenView view;
  view.pageId = source.numbered("page-", 500);
  view.referrerPageId = source.numbered("page-", 500);
  view.referrerPageName = source.words(2);
  view.pageName = source.words(3);
  view.timeInPage = static_cast<double>(500 + source.below(90'000)) / 1000.0;
  view.keywords = source.list(3, [&] { return source.word(); });
  for (const char* name : {"form", "step", "variant"}) {
    view.formInfo.emplace_back(name, source.word());
  }
  return view;
}

Batch makeBatch() {
  Source source;
  Batch batch;
  Identifiers& shared = batch.identifiers;
  shared.installationId = source.digits(32);
  shared.deviceId = source.digits(32);
  shared.sessionId = source.digits(20);
  shared.userId = "user-257032";
  shared.flowId = "flow-77";
  shared.abTestId = 12;
  shared.abTestOptionId = 3;
  shared.slotId = 41;
  for (int i = 0; i < 100; ++i) {
    Event common;
    common.identifiers = shared;
    if (source.below(2) == 0) common.identifiers.sessionId = source.digits(20);  // another session
    if (source.below(10) < 3) {  // reached through a push
      common.identifiers.pushId = source.digits(24);
      common.identifiers.pushInstanceId = source.digits(32);
    }
    common.locationString = "3" + std::to_string(source.below(10)) + ".43566,29.06971";
    common.creationDate = Date::ofMilliseconds(1'717'700'000'000 + std::int64_t{1731} * i);
    const auto add = [&](auto event) {
      static_cast<Event&>(event) = common;
      batch.events.emplace_back(std::move(event));
    };
    if (i % 3 == 0) add(purchaseOf(source));
    if (i % 3 == 1) add(ProductView{{}, productOf(source)});
    if (i % 3 == 2) add(screenViewOf(source));
  }
  return batch;
}

/// Payloads of one size whose free-form parameters are the worst case of one kind each.
std::vector<Workloads::Hostile> makeHostile(std::size_t bytes) {
  constexpr std::string_view kFirst = R"({"aps":{"alert":"a"},"_ov":{"prms":)";
  const auto around = [&](std::string_view open, auto&& item, std::string_view close) {
    std::string text = std::string(kFirst).append(open);
    const std::size_t end = bytes - close.size() - 2;
    for (int i = 0;; ++i) {
      const std::string next = item(i);
      if (text.size() + next.size() > end) break;
      text += next;
    }
    if (text.ends_with(',')) text.pop_back();
    return text.append(close) + "}}";
  };
  const std::string deep(500, '[');
  return {
      {"escapes", around(
                      "\"", [](int) { return R"(\n)"; }, "\"")},
      {"unicode escapes", around(
                              "\"", [](int) { return R"(\u00e9)"; }, "\"")},
      {"keys with one prefix", around(
                                   "{",
                                   [](int i) {
                                     return "\"a_long_prefix_of_every_key_" +
                                            std::to_string(1000 + i) + "\":1,";
                                   },
                                   "}")},
      {"short keys with one prefix",
       around(
           "{", [](int i) { return "\"key" + std::to_string(1000 + i) + "\":1,"; }, "}")},
      {"one-digit numbers", around(
                                "[", [](int i) { return std::to_string(i % 10) + ","; }, "]")},
      {"nesting", around(
                      deep, [](int) { return "[],"; }, std::string(deep.size(), ']'))},
  };
}

std::string readPush() {
  const char* file = std::getenv("ORVANTA_PAYLOAD");
  std::ifstream in(file != nullptr ? file : ORVANTA_SOURCE_DIR "/benchmarks/data/push.json");
  std::string text(std::istreambuf_iterator<char>(in), {});
  if (text.empty()) throw std::runtime_error("the payload cannot be read");
  return text;
}

}  // namespace

std::string inboxOf(const std::string& push, int messages) {
  const Value payload = parseJSON(push);
  Array all;
  for (int i = 0; i < messages; ++i) {
    Dictionary message = *rotated(payload, i % 40).dictionary();
    Dictionary own = *message["_ov"].dictionary();
    own.set("pid", "4616bbe32d3850dd94a8" + std::to_string(1000 + i));
    own.set("sts", 1'717'700'000'000 + std::int64_t{60'000} * i);
    message.set("_ov", own);
    all.append(std::move(message));
  }
  return textOf(Dictionary{{"msgs", std::move(all)},
                           {"prms", Dictionary{{"next", "c2-7dea4d902ff97b5a"}, {"page", 3}}},
                           {"cnts", Dictionary{{"1", 120}, {"2", 80}, {"4", 7}}}});
}

Workloads::Workloads()
    : push(readPush()),
      inbox(inboxOf(push, 200)),
      batch(makeBatch()),
      hostile(makeHostile(push.size())) {}

}  // namespace orvanta::benchmarks
