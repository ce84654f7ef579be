#pragma once

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Foundation/JSON.h"
#include "Push/OrvantaPushObject.h"

namespace orvanta::benchmarks {

/// The operations that are measured, all on one payload of 3.5 KB.
class PushOperations {
 public:
  PushOperations() : text_(readPayload()), payload_(parseJSON(text_)) {
    if (payload_.dictionary() != nullptr) push_ = make<OrvantaPushObject>(*payload_.dictionary());
    if (!push_) throw std::runtime_error("the payload makes no push object");
  }

  std::size_t textBytes() const { return text_.size(); }

  /// Each answers something that depends on the whole work.
  bool parseText() const { return parseJSON(text_).dictionary() != nullptr; }
  bool textToPush() const {
    const Value payload = parseJSON(text_);
    return static_cast<bool>(make<OrvantaPushObject>(*payload.dictionary()));
  }
  bool dictionaryToPush() const {
    return static_cast<bool>(make<OrvantaPushObject>(*payload_.dictionary()));
  }
  bool pushToDictionary() const { return !push_->dictionaryValue().empty(); }
  bool pushToText() const {
    std::string out;
    return writeJSON(push_->dictionaryValue(), out);
  }

  struct Row {
    std::string_view name;
    bool (PushOperations::*run)() const;
  };
  static constexpr Row kAll[] = {
      {"parse_text", &PushOperations::parseText},
      {"text_to_push", &PushOperations::textToPush},
      {"dictionary_to_push", &PushOperations::dictionaryToPush},
      {"push_to_dictionary", &PushOperations::pushToDictionary},
      {"push_to_text", &PushOperations::pushToText},
  };

 private:
  static std::string readPayload() {
    const char* file = std::getenv("ORVANTA_PAYLOAD");
    std::ifstream in(file != nullptr ? file : ORVANTA_SOURCE_DIR "/benchmarks/data/push.json");
    std::string text(std::istreambuf_iterator<char>(in), {});
    if (text.empty()) throw std::runtime_error("the payload cannot be read");
    return text;
  }

  std::string text_;
  Value payload_;
  Ref<OrvantaPushObject> push_;
};

}  // namespace orvanta::benchmarks
