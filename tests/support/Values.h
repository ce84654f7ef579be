#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/Url.h"
#include "orvanta/Foundation/Value.h"

namespace orvanta {

// Printed by failed expectations.
inline void PrintTo(const Value& value, std::ostream* out) {
  *out << describe(value) << " (" << value.kindName() << ")";
}

namespace testing {

/// The JSON of a value, or "invalid" where it has none.
inline std::string toJSON(const Value& value, JSONStyle style = {}) {
  std::string text;
  return writeJSON(value, text, style) ? text : "invalid";
}
inline std::string toPrettyJSON(const Value& value) { return toJSON(value, {.pretty = true}); }

/// "name: reason" of the exception that a call throws, or "nothing thrown".
template <class Call>
std::string exceptionFrom(Call&& call) {
  try {
    call();
  } catch (const Exception& exception) {
    return std::string(exception.name()).append(": ").append(exception.reason());
  }
  return "nothing thrown";
}

/// `core` between `depth` times `open` and as many times `close`.
inline std::string nested(std::size_t depth, std::string_view open, std::string_view close,
                          std::string_view core = "") {
  std::string text;
  for (std::size_t i = 0; i < depth; ++i) text += open;
  text += core;
  for (std::size_t i = 0; i < depth; ++i) text += close;
  return text;
}

/// An object with one property, "label"; equal to any other with the same label. Counts the
/// living instances.
class Labeled : public Object {
 public:
  static constexpr ClassObject kClass{"Labeled", nullptr};
  static constexpr const ClassObject& classObject() { return kClass; }
  static inline int alive = 0;

  static Ref<Labeled> make(const Value& label) { return Ref<Labeled>::adopt(new Labeled(label)); }
  ~Labeled() override { --alive; }

  const ClassObject& isa() const override { return kClass; }
  bool isEqual(const Value& other) const override {
    const Labeled* labeled = other.as<Labeled>();
    return labeled != nullptr && labeled->label_ == label_;
  }
  std::size_t hash() const override { return label_.hash(); }
  std::string description() const override {
    return std::string("<Labeled ").append(describe(label_)).append(">");
  }
  Value valueForKey(std::string_view key) const override {
    return key == "label" ? label_ : Object::valueForKey(key);
  }

 private:
  explicit Labeled(Value label) : label_(std::move(label)) { ++alive; }
  Value label_;
};

/// An object that overrides nothing.
class Plain : public Object {
 public:
  static constexpr ClassObject kClass{"Plain", nullptr};
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }
};

}  // namespace testing
}  // namespace orvanta
