#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

// Plain structs for the workloads, as an application would write them by hand, with a table of
// fields that all peers share. `Tree` is a peer's own type of free-form values.

namespace orvanta::benchmarks {

using Text = std::optional<std::string>;
using Texts = std::optional<std::vector<std::string>>;
using Integer = std::optional<std::int64_t>;

struct Date {
  double secondsSince1970 = 0.0;
  static Date ofMilliseconds(std::int64_t milliseconds) {
    return {static_cast<double>(milliseconds) / 1000.0};
  }
  std::int64_t milliseconds() const { return static_cast<std::int64_t>(secondsSince1970 * 1000.0); }
};

/// A set of ASCII characters.
class Characters {
 public:
  constexpr Characters(std::string_view members) {
    for (const char c : members) members_[static_cast<unsigned char>(c)] = true;
  }
  constexpr bool has(char c) const { return members_[static_cast<unsigned char>(c)]; }

 private:
  std::array<bool, 256> members_{};
};

struct Url {
  std::string text;
  static std::optional<Url> parse(std::string_view text) {
    static constexpr Characters kMembers(
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~:/?#[]@!$&'()*+,;=%");
    for (const char c : text) {
      if (!kMembers.has(c)) return std::nullopt;
    }
    return Url{std::string(text)};
  }
};

// ---- Reading --------------------------------------------------------------

struct Alert {
  Text title, subtitle, body;
};
struct ClickAction {
  Text deeplinkURLString;
  std::optional<Url> deeplinkURL;
  static ClickAction of(std::string_view uri) {
    static constexpr Characters kHost(
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789!$&'()*+,-.:;=[]_~");
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded(3 * uri.size(), '\0');
    char* to = encoded.data();
    for (const char c : uri) {
      if (kHost.has(c)) {
        *to++ = c;
        continue;
      }
      *to++ = '%';
      *to++ = kDigits[static_cast<unsigned char>(c) >> 4U];
      *to++ = kDigits[static_cast<unsigned char>(c) & 15U];
    }
    encoded.resize(static_cast<std::size_t>(to - encoded.data()));
    return {std::string(uri), Url::parse(encoded)};
  }
};
struct Style {
  Text fontFamily, pushIcon;
};
struct InAppMessage {
  Text text, templateId, title, image, direction, fontColor, fontFamily, backgroundColor;
  double timeToLive = 0, fontSize = 0, borderRadius = 0;
  double paddingTop = 0, paddingBottom = 0, paddingLeft = 0, paddingRight = 0;
  bool overrideMobilConfig = false;
};
template <class Tree>
struct Button {
  std::optional<Tree> actionDictionary, customDictionary;
  Text identifier, title;
  std::uint64_t activationMode = 0, behavior = 0;
  bool destructive = false, authenticationRequired = false;
};
template <class Tree>
struct Push {
  std::optional<Alert> alert;
  Text interactiveCategoryIdentifier, sound;
  std::uint64_t badge = 9223372036854775807, pushType = 0, inboxStatus = 0, style = 0;
  std::optional<Url> mediaAttachmentURL;
  Text pushId, pushInstanceId, externalId;
  std::optional<std::vector<Tree>> category, carousel;
  bool shouldSendDeliveryReport = false, isThumbnail = false;
  std::optional<double> appConfigVersion;
  std::optional<Tree> customDictionary, defaultActionDictionary;
  std::optional<InAppMessage> inAppMessage;
  std::optional<ClickAction> action;
  std::optional<std::vector<Button<Tree>>> interactiveActions;
  std::optional<Date> expirationDate, sendDate;
  std::optional<Style> pushStyle;
};
template <class Tree>
struct Inbox {
  std::optional<std::vector<Push<Tree>>> objects;
  std::optional<Tree> pagingParams, counts;
};

// ---- Writing --------------------------------------------------------------

inline constexpr double kNoAmount = 9223372036854775808.0;

struct Identifiers {
  Text installationId, deviceId, sessionId, userId, externalId, pushId, pushInstanceId, flowId;
  Integer abTestId, abTestOptionId, slotId;
};
struct Product {
  Text productId, productName;
  Texts categoryIds, categoryNames;
  double price = 0;
  Text brandId, brandName, variant;
  Texts keywords;
};
struct LineItem : Product {
  std::uint64_t count = 0;
  Text campaignId;
};
struct Event {
  Identifiers identifiers;
  Text locationString;
  std::optional<Date> creationDate;
  double revenue = kNoAmount;
};
struct Purchase : Event {
  static constexpr std::string_view kCode = "o:ph";
  double subTotal = 0, grandTotal = 0, shippingCost = kNoAmount, discount = kNoAmount;
  std::uint64_t itemCount = 0, productCount = 0;
  std::vector<LineItem> lineItems;
  Text paymentMethod, coupon;
};
struct ProductView : Event {
  static constexpr std::string_view kCode = "o:vp";
  Product product;
};
struct ScreenView : Event {
  static constexpr std::string_view kCode = "o:sv";
  Text pageId, referrerPageId, referrerPageName, pageName;
  double timeInPage = 0;
  Texts keywords;
  std::vector<std::pair<std::string, std::string>> formInfo;
};
struct Batch {
  Identifiers identifiers;
  std::vector<std::variant<Purchase, ProductView, ScreenView>> events;
};

// ---- Tables ---------------------------------------------------------------

/// A wire key, the property of the model, and the struct member.
template <class Owner, class T>
struct Field {
  std::string_view key;
  std::string_view property;
  T Owner::*member;
};
template <class Owner, class T>
Field(std::string_view, std::string_view, T Owner::*) -> Field<Owner, T>;

template <class T>
struct Fields;

/// Calls `visit` with each field of a struct.
template <class T, class Visit>
void eachField(Visit&& visit) {
  std::apply([&](const auto&... field) { (visit(field), ...); }, Fields<T>::kAll);
}

template <>
struct Fields<Alert> {
  static constexpr std::tuple kAll{Field{"title", "title", &Alert::title},
                                   Field{"subtitle", "subtitle", &Alert::subtitle},
                                   Field{"body", "body", &Alert::body}};
};
template <>
struct Fields<ClickAction> {
  static constexpr std::tuple kAll{
      Field{"uri", "deeplinkURLString", &ClickAction::deeplinkURLString},
      Field{"", "deeplinkURL", &ClickAction::deeplinkURL}};
};
template <>
struct Fields<Style> {
  static constexpr std::tuple kAll{Field{"ffm", "fontFamily", &Style::fontFamily},
                                   Field{"iospi", "pushIcon", &Style::pushIcon}};
};
template <>
struct Fields<InAppMessage> {
  using M = InAppMessage;
  static constexpr std::tuple kAll{Field{"txt", "text", &M::text},
                                   Field{"tid", "templateId", &M::templateId},
                                   Field{"tt", "title", &M::title},
                                   Field{"img", "image", &M::image},
                                   Field{"ttl", "timeToLive", &M::timeToLive},
                                   Field{"drc", "direction", &M::direction},
                                   Field{"fsz", "fontSize", &M::fontSize},
                                   Field{"fcl", "fontColor", &M::fontColor},
                                   Field{"ffm", "fontFamily", &M::fontFamily},
                                   Field{"brd", "borderRadius", &M::borderRadius},
                                   Field{"pdt", "paddingTop", &M::paddingTop},
                                   Field{"pdb", "paddingBottom", &M::paddingBottom},
                                   Field{"pdl", "paddingLeft", &M::paddingLeft},
                                   Field{"pdr", "paddingRight", &M::paddingRight},
                                   Field{"omc", "overrideMobilConfig", &M::overrideMobilConfig},
                                   Field{"bcl", "backgroundColor", &M::backgroundColor}};
};
template <class Tree>
struct Fields<Button<Tree>> {
  using M = Button<Tree>;
  static constexpr std::tuple kAll{
      Field{"act", "actionDictionary", &M::actionDictionary},
      Field{"prms", "customDictionary", &M::customDictionary},
      Field{"id", "identifier", &M::identifier},
      Field{"text", "title", &M::title},
      Field{"actM", "activationMode", &M::activationMode},
      Field{"dest", "destructive", &M::destructive},
      Field{"auth", "authenticationRequired", &M::authenticationRequired},
      Field{"bhv", "behaviour", &M::behavior}};
};
template <class Tree>
struct Fields<Push<Tree>> {
  using M = Push<Tree>;
  /// Keys below "aps" and keys below "_ov".
  static constexpr std::tuple kSystem{
      Field{"alert", "alert", &M::alert},
      Field{"category", "interactiveCategoryIdentifier", &M::interactiveCategoryIdentifier},
      Field{"sound", "sound", &M::sound}, Field{"badge", "badge", &M::badge}};
  static constexpr std::tuple kOwn{
      Field{"pt", "pushType", &M::pushType},
      Field{"mu", "mediaAttachmentURL", &M::mediaAttachmentURL},
      Field{"pid", "pushId", &M::pushId},
      Field{"piid", "pushInstanceId", &M::pushInstanceId},
      Field{"xid", "externalId", &M::externalId},
      Field{"cta", "category", &M::category},
      Field{"st", "inboxStatus", &M::inboxStatus},
      Field{"dr", "shouldSendDeliveryReport", &M::shouldSendDeliveryReport},
      Field{"cfgV", "appConfigVersion", &M::appConfigVersion},
      Field{"prms", "customDictionary", &M::customDictionary},
      Field{"iam", "inAppMessage", &M::inAppMessage},
      Field{"act", "defaultActionDictionary", &M::defaultActionDictionary},
      Field{"crsl", "carousel", &M::carousel},
      Field{"ia", "interactiveActions", &M::interactiveActions},
      Field{"ets", "expirationDate", &M::expirationDate},
      Field{"sts", "sendDate", &M::sendDate},
      Field{"stl", "style", &M::style},
      Field{"ps", "pushStyle", &M::pushStyle},
      Field{"thc", "isThumbnail", &M::isThumbnail}};
  static constexpr auto kAll =
      std::tuple_cat(kSystem, kOwn, std::tuple{Field{"", "action", &M::action}});
};
template <class Tree>
struct Fields<Inbox<Tree>> {
  using M = Inbox<Tree>;
  static constexpr std::tuple kAll{Field{"msgs", "objects", &M::objects},
                                   Field{"prms", "pagingParams", &M::pagingParams},
                                   Field{"cnts", "counts", &M::counts}};
};

template <>
struct Fields<Identifiers> {
  using M = Identifiers;
  static constexpr std::tuple kAll{Field{"iid", "installationId", &M::installationId},
                                   Field{"did", "deviceId", &M::deviceId},
                                   Field{"sid", "sessionId", &M::sessionId},
                                   Field{"uid", "userId", &M::userId},
                                   Field{"xid", "externalId", &M::externalId},
                                   Field{"pid", "pushId", &M::pushId},
                                   Field{"piid", "pushInstanceId", &M::pushInstanceId},
                                   Field{"fid", "flowId", &M::flowId},
                                   Field{"aid", "abTestId", &M::abTestId},
                                   Field{"oid", "abTestOptionId", &M::abTestOptionId},
                                   Field{"slt", "slotId", &M::slotId}};
};
template <>
struct Fields<Product> {
  using M = Product;
  static constexpr std::tuple kAll{Field{"ea", "productId", &M::productId},
                                   Field{"eb", "productName", &M::productName},
                                   Field{"ga", "categoryIds", &M::categoryIds},
                                   Field{"ef", "categoryNames", &M::categoryNames},
                                   Field{"eq", "price", &M::price},
                                   Field{"gd", "brandId", &M::brandId},
                                   Field{"eh", "brandName", &M::brandName},
                                   Field{"ei", "variant", &M::variant},
                                   Field{"eg", "keywords", &M::keywords}};
};
template <>
struct Fields<LineItem> {
  static constexpr auto kAll = std::tuple_cat(
      Fields<Product>::kAll, std::tuple{Field{"ec", "count", &LineItem::count},
                                        Field{"ge", "campaignId", &LineItem::campaignId}});
};
template <>
struct Fields<Event> {
  static constexpr std::tuple kAll{Field{"ids", "identifiers", &Event::identifiers},
                                   Field{"fv", "locationString", &Event::locationString},
                                   Field{"ts", "creationDate", &Event::creationDate},
                                   Field{"revenue", "revenue", &Event::revenue}};
};
template <>
struct Fields<Purchase> {
  using M = Purchase;
  static constexpr auto kAll = std::tuple_cat(
      std::tuple{Field{"er", "subTotal", &M::subTotal}, Field{"es", "grandTotal", &M::grandTotal},
                 Field{"ec", "itemCount", &M::itemCount},
                 Field{"fz", "productCount", &M::productCount},
                 Field{"items", "lineItems", &M::lineItems},
                 Field{"em", "paymentMethod", &M::paymentMethod},
                 Field{"ep", "shippingCost", &M::shippingCost},
                 Field{"el", "discount", &M::discount}, Field{"ek", "coupon", &M::coupon}},
      Fields<Event>::kAll);
};
template <>
struct Fields<ProductView> {
  static constexpr auto kAll =
      std::tuple_cat(std::tuple{Field{"", "product", &ProductView::product}}, Fields<Event>::kAll);
};
template <>
struct Fields<ScreenView> {
  using M = ScreenView;
  static constexpr auto kAll = std::tuple_cat(
      std::tuple{Field{"ee", "pageId", &M::pageId},
                 Field{"ef", "referrerPageId", &M::referrerPageId},
                 Field{"ej", "referrerPageName", &M::referrerPageName},
                 Field{"el", "timeInPage", &M::timeInPage}, Field{"ea", "pageName", &M::pageName},
                 Field{"eg", "keywords", &M::keywords}, Field{"fi", "formInfo", &M::formInfo}},
      Fields<Event>::kAll);
};

/// The first step of every implementation: removes identifiers that an event shares with its batch.
inline void strip(Batch& batch) {
  const auto stripOne = [&](Event& event) {
    eachField<Identifiers>([&](const auto& field) {
      auto& own = event.identifiers.*field.member;
      if (own && own == batch.identifiers.*field.member) own.reset();
    });
  };
  for (auto& event : batch.events) std::visit(stripOne, event);
}

}  // namespace orvanta::benchmarks
