#include "orvanta/NotificationService/RequestedEnrichments.h"

#include <algorithm>

namespace orvanta {

RequestedEnrichments requestedEnrichments(const OrvantaPushObject& object) {
  RequestedEnrichments enrichments;
  const auto category = object.interactiveCategoryIdentifier().get();
  const Array* const actions = object.interactiveActions().get();
  const auto isAction = [](const Value& element) {
    return element.as<OrvantaUserNotificationAction>() != nullptr;
  };
  if (category && actions != nullptr) {
    enrichments.buttons =
        static_cast<std::size_t>(std::count_if(actions->begin(), actions->end(), isAction));
    if (enrichments.buttons != 0) enrichments.category = category;
  }
  enrichments.buttonsWithoutCategory = !category && actions != nullptr && !actions->empty();
  enrichments.media = object.mediaAttachmentURL().get();
  const auto* const style = object.pushStyle().get();
  if (style != nullptr) enrichments.senderIcon = style->pushIcon().get();
  return enrichments;
}

}  // namespace orvanta
