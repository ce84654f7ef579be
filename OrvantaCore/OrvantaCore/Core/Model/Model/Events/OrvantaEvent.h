#pragma once

#include "orvanta/Model/Identity/OrvantaIdentifiers.h"
#include "orvanta/Model/Mapping/Initialiser.h"

namespace orvanta {

/// Common base of every analytics event. Whoever records an event stamps its identifiers, creation
/// date and location; keys beside the five of this class mean something within one class only.
class OrvantaEvent : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaEvent, OrvantaBaseModel)

  ORVANTA_PROPERTY("ids", strong, OrvantaIdentifiers, identifiers, setIdentifiers,
                   OrvantaIdentifiers)
  /// The event code: "o:" and one to four letters. A concrete class answers its constant, whatever
  /// was read; the others what was read, else nil.
  ORVANTA_OVERRIDABLE("code", copy, String, eventKey)
  ORVANTA_PROPERTY("fv", copy, String, locationString, setLocationString)
  ORVANTA_PROPERTY("ts", strong, Date, creationDate, setCreationDate)
  ORVANTA_PROPERTY("revenue", assign, double, revenue, setRevenue)

  /// 2^63: no amount was given.
  static constexpr double kNoAmount = 9223372036854775808.0;

  /// None: this class is abstract. A subclass that opens with one of the macros below has a class
  /// method of its own; further class methods that it inherits make objects of the ancestor.
  static Ref<OrvantaEvent> event() { return nullptr; }
  /// What every initialiser of an event begins with: `init`, and no revenue given. An event that is
  /// made in another way has a revenue of 0.0.
  bool initInternal();
  /// 0 or 1; the request that carries the event alone has the same.
  virtual std::int64_t priority() const { return 0; }
};

/// Opens the body of a class of events; a concrete one has a code.
#define ORVANTA_ABSTRACT_EVENT(Self_, Super_) \
  ORVANTA_MODEL(Self_, Super_)                \
  ORVANTA_FACTORY(event, initInternal)
#define ORVANTA_EVENT(Self_, Super_, code_) \
  ORVANTA_ABSTRACT_EVENT(Self_, Super_)     \
  Held<String> eventKey() const override { return std::string_view(code_); }

/// An initialiser that stores its arguments, and the class method that makes an event with it.
#define ORVANTA_EVENT_INITIALISER(init_, factory_, ...) \
  ORVANTA_INITIALISER(init_, initInternal, __VA_ARGS__) \
  ORVANTA_FACTORY(factory_, init_, __VA_ARGS__)

/// The same for an initialiser that takes from an object of another class, which may be nullptr,
/// the properties of these names.
#define ORVANTA_TAKE_(name_) this->name_##_ = source->name_()
#define ORVANTA_EVENT_INITIALISER_FROM(Source_, init_, factory_, ...) \
  bool init_(const Source_* source) {                                 \
    if (!initInternal()) return false;                                \
    if (source != nullptr) ORVANTA_EACH_(ORVANTA_TAKE_, __VA_ARGS__); \
    return true;                                                      \
  }                                                                   \
  static Ref<Self> factory_(const Source_* source) {                  \
    return ::orvanta::make<Self>(&Self::init_, source);               \
  }

}  // namespace orvanta
