#pragma once

#include <memory>
#include <string>

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// Events that could not be sent, and why. Owns neither: message and array are the caller's, who
/// keeps them until the event is written; each reads as nil once its owner is gone. What is read
/// from a dictionary has no owner and is nil at once.
class OrvantaErrorEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaErrorEvent, OrvantaEvent, "o:err")

  Held<Array> eventArray() const { return ownedElsewhere<Array>(eventArray_); }
  void setEventArray(const std::shared_ptr<const Array>& eventArray) { eventArray_ = eventArray; }
  ORVANTA_COMPUTED(
      "evs", weak, "@\"NSArray\"", eventArray,
      [](const OrvantaBaseModel& o) { return static_cast<const Self&>(o).eventArray().value(); },
      [](OrvantaBaseModel& o, const Value& /*unowned*/) {
        static_cast<Self&>(o).setEventArray({});
      })

  Held<String> errorMessage() const { return ownedElsewhere<String>(errorMessage_); }
  void setErrorMessage(const std::shared_ptr<const std::string>& errorMessage) {
    errorMessage_ = errorMessage;
  }
  ORVANTA_COMPUTED(
      "msg", weak, "@\"NSString\"", errorMessage,
      [](const OrvantaBaseModel& o) { return static_cast<const Self&>(o).errorMessage().value(); },
      [](OrvantaBaseModel& o, const Value& /*unowned*/) {
        static_cast<Self&>(o).setErrorMessage({});
      })

  bool initWithErrorMessage(const std::shared_ptr<const std::string>& errorMessage,
                            const std::shared_ptr<const Array>& events);
  static Ref<Self> eventWithErrorMessage(const std::shared_ptr<const std::string>& errorMessage,
                                         const std::shared_ptr<const Array>& events);

 private:
  template <class T, class Owned>
  static Held<T> ownedElsewhere(const std::weak_ptr<const Owned>& handle) {
    const auto owned = handle.lock();
    return owned != nullptr ? Held<T>(*owned) : nullptr;
  }
  std::weak_ptr<const Array> eventArray_;
  std::weak_ptr<const std::string> errorMessage_;
};

}  // namespace orvanta
