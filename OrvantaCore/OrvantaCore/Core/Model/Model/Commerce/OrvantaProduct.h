#pragma once

#include "orvanta/Model/Mapping/Initializer.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A product, part of product events. `price` is in the application's currency unit.
class OrvantaProduct : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaProduct, OrvantaBaseModel)

  ORVANTA_PROPERTY("ea", copy, String, productId, setProductId)
  ORVANTA_PROPERTY("eb", copy, String, productName, setProductName)
  ORVANTA_PROPERTY("ga", strong, Array, categoryIds, setCategoryIds)
  ORVANTA_PROPERTY("ef", strong, Array, categoryNames, setCategoryNames)
  ORVANTA_PROPERTY("eq", assign, double, price, setPrice)
  ORVANTA_PROPERTY("gd", copy, String, brandId, setBrandId)
  ORVANTA_PROPERTY("eh", copy, String, brandName, setBrandName)
  ORVANTA_PROPERTY("ei", copy, String, variant, setVariant)
  ORVANTA_PROPERTY("eg", strong, Array, keywords, setKeywords)

  ORVANTA_INITIALIZER(initWithId, init, productId, productName, price)
  ORVANTA_FACTORY(productWithId, initWithId, productId, productName, price)
};

}  // namespace orvanta
