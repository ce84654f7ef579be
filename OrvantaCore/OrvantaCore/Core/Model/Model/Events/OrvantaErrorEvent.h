#pragma once

#include <memory>
#include <string>

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// Events that could not be sent, and the reason. Holds the array and the message weakly: the
/// caller owns them until the event is written, and each is nil once released. Values read from a
/// dictionary have no owner and are nil.
class OrvantaErrorEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaErrorEvent, OrvantaEvent, "o:err")

  PropertyValue<Array> eventArray() const { return ownedElsewhere<Array>(eventArray_); }
  void setEventArray(const std::shared_ptr<const Array>& eventArray) { eventArray_ = eventArray; }
  ORVANTA_COMPUTED(
      "evs", weak, "@\"NSArray\"", eventArray,
      [](const OrvantaBaseModel& o) { return static_cast<const Self&>(o).eventArray().raw(); },
      [](OrvantaBaseModel& o, const Value& /*unowned*/) {
        static_cast<Self&>(o).setEventArray({});
      })

  PropertyValue<String> errorMessage() const { return ownedElsewhere<String>(errorMessage_); }
  void setErrorMessage(const std::shared_ptr<const std::string>& errorMessage) {
    errorMessage_ = errorMessage;
  }
  ORVANTA_COMPUTED(
      "msg", weak, "@\"NSString\"", errorMessage,
      [](const OrvantaBaseModel& o) { return static_cast<const Self&>(o).errorMessage().raw(); },
      [](OrvantaBaseModel& o, const Value& /*unowned*/) {
        static_cast<Self&>(o).setErrorMessage({});
      })

  bool initWithErrorMessage(const std::shared_ptr<const std::string>& errorMessage,
                            const std::shared_ptr<const Array>& events);
  static Ref<Self> eventWithErrorMessage(const std::shared_ptr<const std::string>& errorMessage,
                                         const std::shared_ptr<const Array>& events);

 private:
  template <class T, class Owned>
  static PropertyValue<T> ownedElsewhere(const std::weak_ptr<const Owned>& handle) {
    const auto owned = handle.lock();
    return owned != nullptr ? PropertyValue<T>(*owned) : nullptr;
  }
  std::weak_ptr<const Array> eventArray_;
  std::weak_ptr<const std::string> errorMessage_;
};

}  // namespace orvanta
