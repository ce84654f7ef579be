#pragma once

#include "orvanta/Model/Mapping/Initializer.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// An article, video or other item, part of content events. The application defines the values of
/// `contentType`.
class OrvantaContent : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaContent, OrvantaBaseModel)

  ORVANTA_PROPERTY("ea", copy, String, contentId, setContentId)
  ORVANTA_PROPERTY("eb", copy, String, contentName, setContentName)
  ORVANTA_PROPERTY("ed", assign, std::uint64_t, contentType, setContentType)
  ORVANTA_PROPERTY("ga", strong, Array, categoryIds, setCategoryIds)
  ORVANTA_PROPERTY("ef", strong, Array, categoryNames, setCategoryNames)
  ORVANTA_PROPERTY("ee", copy, String, provider, setProvider)
  ORVANTA_PROPERTY("eg", strong, Array, keywords, setKeywords)

  ORVANTA_INITIALIZER(initWithId, init, contentId, contentName, contentType)
  ORVANTA_FACTORY(contentWithId, initWithId, contentId, contentName, contentType)
};

}  // namespace orvanta
