#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user viewed a category.
class OrvantaCategoryViewEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaCategoryViewEvent, OrvantaEvent, "o:cv")

  ORVANTA_PROPERTY("ga", copy, String, categoryId, setCategoryId)
  ORVANTA_PROPERTY("ef", copy, String, categoryName, setCategoryName)

  ORVANTA_EVENT_INITIALIZER(initWithCategoryId, eventWithCategoryId, categoryId, categoryName)
};

}  // namespace orvanta
