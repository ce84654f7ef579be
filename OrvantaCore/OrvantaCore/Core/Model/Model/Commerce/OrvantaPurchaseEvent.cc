#include "orvanta/Model/Commerce/OrvantaPurchaseEvent.h"

#include "orvanta/Model/Commerce/OrvantaLineItem.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPurchaseEvent)

bool OrvantaPurchaseEvent::initWithSubTotal(double subTotal, double grandTotal,
                                            PropertyValue<Array> lineItems) {
  if (!initInternal()) return false;
  subTotal_ = subTotal;
  grandTotal_ = grandTotal;
  lineItems_ = std::move(lineItems);
  itemCount_ = 0;
  productCount_ = 0;
  if (const Array* items = lineItems_.get()) {
    itemCount_ = items->size();
    for (const Value& element : *items) {
      if (const auto* item = element.as<OrvantaLineItem>()) productCount_ += item->count();
    }
  }
  shippingCost_ = kNoAmount;
  discount_ = kNoAmount;
  return true;
}

Ref<OrvantaPurchaseEvent> OrvantaPurchaseEvent::eventWithSubTotal(double subTotal,
                                                                  double grandTotal,
                                                                  PropertyValue<Array> lineItems) {
  return make<Self>(&Self::initWithSubTotal, subTotal, grandTotal, std::move(lineItems));
}

}  // namespace orvanta
