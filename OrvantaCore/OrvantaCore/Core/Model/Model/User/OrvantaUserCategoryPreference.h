#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Whether the user wants notifications of a category. Received in the reply to
/// OrvantaFetchUserCategoryRequest.
class OrvantaUserCategoryPreference : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUserCategoryPreference, OrvantaBaseModel)

  ORVANTA_PROPERTY("ctid", assign, std::int32_t, categoryId, setCategoryId)
  ORVANTA_PROPERTY("cte", assign, bool, categoryEnabled, setCategoryEnabled)
  ORVANTA_READONLY("ctn", copy, String, categoryName)
};

}  // namespace orvanta
