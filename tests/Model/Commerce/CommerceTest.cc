#include <gtest/gtest.h>

#include "orvanta/Model/Commerce/OrvantaCartAddProductEvent.h"
#include "orvanta/Model/Commerce/OrvantaCartRemoveProductEvent.h"
#include "orvanta/Model/Commerce/OrvantaCartViewEvent.h"
#include "orvanta/Model/Commerce/OrvantaContentCommentEvent.h"
#include "orvanta/Model/Commerce/OrvantaContentRateEvent.h"
#include "orvanta/Model/Commerce/OrvantaContentViewEvent.h"
#include "orvanta/Model/Commerce/OrvantaLineItem.h"
#include "orvanta/Model/Commerce/OrvantaOrderCancelEvent.h"
#include "orvanta/Model/Commerce/OrvantaProductCommentEvent.h"
#include "orvanta/Model/Commerce/OrvantaProductRateEvent.h"
#include "orvanta/Model/Commerce/OrvantaProductViewEvent.h"
#include "orvanta/Model/Commerce/OrvantaPurchaseEvent.h"
#include "orvanta/Model/Commerce/OrvantaWishListEvent.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {

/// A class of an application, derived from one of the library.
class PromotedCartAdd : public OrvantaCartAddProductEvent {
  ORVANTA_EVENT(PromotedCartAdd, OrvantaCartAddProductEvent, "o:acp")
};
ORVANTA_IMPLEMENTATION(PromotedCartAdd)

namespace {

TEST(CommerceEvents, AreWrittenFlatWithTheirSubject) {
  const auto product = OrvantaProduct::productWithId("p1", "Jacket", 9.5);
  product->setKeywords(Array{"wool"});
  const auto item = OrvantaLineItem::itemWithId("p1", "Jacket", 9.5, 2);
  item->setCampaignId("item's");
  const auto content = OrvantaContent::contentWithId("c1", "News", 3);
  const std::string_view kProduct = R"({"ea":"p1","eb":"Jacket","eq":9.5,"eg":["wool"],)";
  const std::pair<Ref<OrvantaEvent>, std::string> rows[] = {
      {OrvantaCartAddProductEvent::eventWithProduct(product, 4, 38.0),
       std::string(kProduct) + R"("code":"o:acp","ec":4,"er":38.0})"},
      {OrvantaCartRemoveProductEvent::eventWithProduct(product, 1),
       std::string(kProduct) + R"("code":"o:rcp","ec":1})"},
      {OrvantaCartRemoveProductEvent::eventWithProduct(product),
       std::string(kProduct) + R"("code":"o:rcp","ec":0})"},
      {OrvantaProductCommentEvent::eventWithProduct(product),
       std::string(kProduct) + R"("code":"o:cp"})"},
      {OrvantaProductRateEvent::eventWithProduct(product, 5),
       std::string(kProduct) + R"("code":"o:rp","eo":5})"},
      {OrvantaProductViewEvent::eventWithProduct(product),
       std::string(kProduct) + R"("code":"o:vp"})"},
      {OrvantaWishListEvent::eventWithProduct(product, "autumn"),
       std::string(kProduct) + R"("code":"o:wl","ge":"autumn"})"},
      // A line item has its own "ec" and "ge"; those of the event win.
      {OrvantaWishListEvent::eventWithProduct(item, "autumn"),
       R"({"ea":"p1","eb":"Jacket","eq":9.5,"ec":2,"code":"o:wl","ge":"autumn"})"},
      {OrvantaCartRemoveProductEvent::eventWithProduct(item, 7),
       R"({"ea":"p1","eb":"Jacket","eq":9.5,"ec":7,"ge":"item's","code":"o:rcp"})"},
      {OrvantaContentCommentEvent::eventWithContent(content),
       R"({"ea":"c1","eb":"News","ed":3,"code":"o:cc"})"},
      {OrvantaContentRateEvent::eventWithContent(content, 4),
       R"({"ea":"c1","eb":"News","ed":3,"code":"o:rc","eo":4})"},
      {OrvantaContentViewEvent::eventWithContent(nullptr), R"({"code":"o:vc"})"},
      {OrvantaCartViewEvent::eventWithSubTotal(10.5, 2), R"({"er":10.5,"ec":2,"code":"o:vt"})"},
      {OrvantaOrderCancelEvent::eventWithSubTotal(10.0, 12.5, 2),
       R"({"er":10.0,"es":12.5,"ec":2,"code":"o:co"})"},
  };
  for (const auto& [event, text] : rows) {
    ASSERT_TRUE(event) << text;
    Dictionary written = event->dictionaryValue();
    EXPECT_EQ(written["revenue"], Value(9223372036854775808.0));
    written.remove("revenue");
    EXPECT_EQ(Value(written), parseJSON(text));
  }
}

TEST(CommerceEvents, InitializersReturnANewObjectOfTheReceiversClass) {
  const auto receiver = make<PromotedCartAdd>();
  const auto product = OrvantaProduct::productWithId("p1", "Jacket", 9.5);
  const auto event = receiver->initWithProduct(product, 2, 19.0);
  EXPECT_NE(event.get(), receiver.get());
  EXPECT_EQ(&event->isa(), &PromotedCartAdd::classObject());
  EXPECT_EQ(event->count(), 2U);
  EXPECT_EQ(receiver->count(), 0U);
  EXPECT_EQ(event->revenue(), OrvantaEvent::kNoAmount);
}

TEST(CommerceEvents, AreReadFromTheFlatDictionary) {
  const auto event = modelFromJSON<OrvantaCartAddProductEvent>(
      R"({"ea":"p1","eq":"9.5","ec":3,"code":"other","revenue":1})");
  ASSERT_NE(event->product().get(), nullptr);
  EXPECT_EQ(event->product().get()->productId().get(), "p1");
  EXPECT_EQ(event->product().get()->price(), 9.5);
  EXPECT_EQ(event->count(), 3U);

  // The product fails to update; the event keeps its own fields.
  const Dictionary invalid{{"ec", 9}, {"eq", Value::null()}};
  const LogLevel quiet(0);
  EXPECT_FALSE(event->updateWithDictionary(&invalid));
  EXPECT_EQ(event->count(), 3U);
  EXPECT_FALSE(event->product().isPresent());
}

TEST(OrvantaPurchaseEvent, CountsItsLineItems) {
  const auto item = [](std::uint64_t count) {
    return OrvantaLineItem::itemWithId("p", "n", 1.0, count);
  };
  const struct {
    PropertyValue<Array> items;
    std::uint64_t itemCount;
    std::uint64_t productCount;
  } rows[] = {
      {nullptr, 0, 0},
      {Array{}, 0, 0},
      {Array{item(2), item(3)}, 2, 5},
      {Array{item(~std::uint64_t{0}), item(3), "no item"}, 3, 2},
  };
  for (const auto& row : rows) {
    const auto event = OrvantaPurchaseEvent::eventWithSubTotal(10.0, 12.0, row.items);
    EXPECT_EQ(event->itemCount(), row.itemCount);
    EXPECT_EQ(event->productCount(), row.productCount);
    EXPECT_EQ(event->dictionaryValue()["ep"], Value(9223372036854775808.0));
    EXPECT_EQ(event->dictionaryValue()["el"], Value(9223372036854775808.0));
  }
  const auto event = OrvantaPurchaseEvent::eventWithSubTotal(1.0, 2.0, Array{item(2)});
  event->setPaymentMethod("card");
  event->setCoupon("AUTUMN");
  event->setShippingCost(3.0);
  event->setDiscount(4.0);
  const Dictionary written = event->dictionaryValue();
  Dictionary fields = written;
  fields.remove("items");
  fields.remove("revenue");
  EXPECT_EQ(Value(fields),
            parseJSON(R"({"code":"o:ph","er":1.0,"es":2.0,"ec":1,"fz":2,"em":"card",)"
                      R"("ep":3.0,"el":4.0,"ek":"AUTUMN"})"));
  EXPECT_EQ(written["items"], parseJSON(R"([{"ec":2,"ea":"p","eb":"n","eq":1.0}])"));
  // Items that are read stay dictionaries.
  EXPECT_EQ(make<OrvantaPurchaseEvent>(written)->lineItems().raw(), written["items"]);
}

}  // namespace
}  // namespace orvanta::testing
