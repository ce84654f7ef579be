#pragma once

#include "orvanta/Model/Identity/OrvantaIdentifiers.h"
#include "orvanta/Model/Mapping/Initializer.h"

namespace orvanta {

/// Base of the analytics events. Events are sent in an OrvantaEventRequest; the code that records
/// an event sets its identifiers, creation date and location. A wire key of a subclass, such as
/// "ea", has a meaning within that class only.
class OrvantaEvent : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaEvent, OrvantaBaseModel)

  ORVANTA_PROPERTY("ids", strong, OrvantaIdentifiers, identifiers, setIdentifiers,
                   OrvantaIdentifiers)
  /// The event code: "o:" and one to four letters. A concrete class returns its constant, whatever
  /// was read; other classes return what was read, else nil.
  ORVANTA_OVERRIDABLE("code", copy, String, eventKey)
  ORVANTA_PROPERTY("fv", copy, String, locationString, setLocationString)
  ORVANTA_PROPERTY("ts", strong, Date, creationDate, setCreationDate)
  ORVANTA_PROPERTY("revenue", assign, double, revenue, setRevenue)

  /// 2^63: the amount is unset.
  static constexpr double kNoAmount = 9223372036854775808.0;

  /// Returns nil: this class is abstract. The macros below declare the class method of a subclass.
  /// Other inherited class methods create objects of the ancestor.
  static Ref<OrvantaEvent> event() { return nullptr; }
  /// Calls `init` and sets the revenue to kNoAmount. Every initializer of an event starts with it;
  /// an event created in another way has a revenue of 0.0.
  bool initInternal();
  /// 0 or 1. The priority of a request with this event alone.
  virtual std::int64_t priority() const { return 0; }
};

/// Starts the body of an event class: ORVANTA_EVENT of a concrete one, with its code.
#define ORVANTA_ABSTRACT_EVENT(Self_, Super_) \
  ORVANTA_MODEL(Self_, Super_)                \
  ORVANTA_FACTORY(event, initInternal)
#define ORVANTA_EVENT(Self_, Super_, code_) \
  ORVANTA_ABSTRACT_EVENT(Self_, Super_)     \
  PropertyValue<String> eventKey() const override { return std::string_view(code_); }

/// Declares an initializer that stores its arguments, and the class method that creates an event
/// with it.
#define ORVANTA_EVENT_INITIALIZER(init_, factory_, ...) \
  ORVANTA_INITIALIZER(init_, initInternal, __VA_ARGS__) \
  ORVANTA_FACTORY(factory_, init_, __VA_ARGS__)

/// The same for an initializer that copies the properties of these names from an object of another
/// class. The object may be nullptr.
#define ORVANTA_TAKE_(name_) this->name_##_ = source->name_()
#define ORVANTA_EVENT_INITIALIZER_FROM(Source_, init_, factory_, ...) \
  bool init_(const Source_* source) {                                 \
    if (!initInternal()) return false;                                \
    if (source != nullptr) ORVANTA_EACH_(ORVANTA_TAKE_, __VA_ARGS__); \
    return true;                                                      \
  }                                                                   \
  static Ref<Self> factory_(const Source_* source) {                  \
    return ::orvanta::make<Self>(&Self::init_, source);               \
  }

}  // namespace orvanta
