#pragma once

#include <functional>

#include "orvanta/Model/Actions/OrvantaInAppMessageAction.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationAction.h"
#include "orvanta/Model/Push/OrvantaPushObjectAction.h"
#include "orvanta/Model/Push/OrvantaPushObjectAlert.h"
#include "orvanta/Model/Push/OrvantaPushStyle.h"

namespace orvanta {

/// The parsed payload of a remote notification, also received in inbox replies.
///
///   const auto push = make<OrvantaPushObject>(content.userInfo);  // nil if a value cannot be read
///   if (push && push->mediaAttachmentURL().get() != nullptr) …    // the payload has a media URL
class OrvantaPushObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushObject, OrvantaBaseModel)

  /// Parsed from "aps.alert", a string or a dictionary. Never nil after a successful update.
  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaPushObjectAlert, alert, setAlert)
  ORVANTA_PROPERTY("aps.category", copy, String, interactiveCategoryIdentifier,
                   setInteractiveCategoryIdentifier)
  ORVANTA_PROPERTY("aps.sound", copy, String, sound, setSound)
  /// kUnsetInteger if the payload has none.
  ORVANTA_PROPERTY("aps.badge", assign, std::uint64_t, badge, setBadge)
  ORVANTA_PROPERTY("_ov.pt", assign, std::uint64_t, pushType, setPushType)
  ORVANTA_PROPERTY("_ov.mu", strong, Url, mediaAttachmentURL, setMediaAttachmentURL)
  ORVANTA_PROPERTY("_ov.pid", copy, String, pushId, setPushId)
  ORVANTA_PROPERTY("_ov.piid", copy, String, pushInstanceId, setPushInstanceId)
  ORVANTA_PROPERTY("_ov.xid", copy, String, externalId, setExternalId)
  ORVANTA_PROPERTY("_ov.cta", copy, Array, category, setCategory)
  ORVANTA_PROPERTY("_ov.st", assign, std::uint64_t, inboxStatus, setInboxStatus)
  ORVANTA_PROPERTY("_ov.dr", assign, bool, shouldSendDeliveryReport, setShouldSendDeliveryReport)
  ORVANTA_PROPERTY("_ov.cfgV", strong, Number, appConfigVersion, setAppConfigVersion)
  /// Free-form parameters.
  ORVANTA_PROPERTY("_ov.prms", strong, Dictionary, customDictionary, setCustomDictionary)
  ORVANTA_PROPERTY("_ov.iam", strong, OrvantaInAppMessageAction, inAppMessage, setInAppMessage,
                   OrvantaInAppMessageAction)
  /// The click action as received; `action` is its model.
  ORVANTA_PROPERTY("_ov.act", strong, Dictionary, defaultActionDictionary,
                   setDefaultActionDictionary)
  /// Parsed from "_ov.act"; empty if the payload has no click action, nil if it cannot be read.
  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaPushObjectAction, action, setAction)
  /// Dictionaries, or OrvantaPushCarouselObject if they name that class under "klazz".
  ORVANTA_PROPERTY("_ov.crsl", copy, Array, carousel, setCarousel)
  ORVANTA_PROPERTY("_ov.ia", strong, Array, interactiveActions, setInteractiveActions,
                   OrvantaUserNotificationAction)
  ORVANTA_PROPERTY("_ov.ets", strong, Date, expirationDate, setExpirationDate)
  ORVANTA_READONLY("_ov.sts", strong, Date, sendDate)
  ORVANTA_READONLY("_ov.stl", assign, std::uint64_t, style)
  ORVANTA_READONLY("_ov.ps", strong, OrvantaPushStyle, pushStyle, OrvantaPushStyle)
  ORVANTA_READONLY("_ov.thc", assign, bool, isThumbnail)
  ORVANTA_PROPERTY(kUnmapped, assign, bool, includedInInbox, setIncludedInInbox)
  /// The button that the user tapped. Setting it also sets `actionDictionary`: to that of the first
  /// button with this identifier, or to the click action for nil. An unknown identifier leaves it
  /// unchanged.
  ORVANTA_CUSTOM_SETTER(kUnmapped, strong, String, interactiveActionIdentifier,
                        setInteractiveActionIdentifier)
  /// The text that the user typed into a text-input button.
  ORVANTA_PROPERTY(kUnmapped, strong, String, inputText, setInputText)
  /// The action to run: the click action, until a button is selected.
  ORVANTA_PROPERTY(kUnmapped, strong, Dictionary, actionDictionary, setActionDictionary)
  ORVANTA_PROPERTY(kUnmapped, copy, Block<void()>, willPresentNotificationHandler,
                   setWillPresentNotificationHandler)

  /// Reads the alert and the click action directly, then the table. Throws the undefined-key
  /// exception if "aps" or "_ov" has no keys, such as a string or null; so does initWithDictionary.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// The alert's entries are at the top level; the object's own win over them.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
