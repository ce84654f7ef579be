#pragma once

#include <functional>

#include "orvanta/Model/Actions/OrvantaInAppMessageAction.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationAction.h"
#include "orvanta/Model/Push/OrvantaPushObjectAction.h"
#include "orvanta/Model/Push/OrvantaPushObjectAlert.h"
#include "orvanta/Model/Push/OrvantaPushStyle.h"

namespace orvanta {

/// The parsed payload of one remote notification. Made once per notification.
class OrvantaPushObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushObject, OrvantaBaseModel)

  /// Of "aps.alert", which may be a text or a dictionary; there after every successful update.
  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaPushObjectAlert, alert, setAlert)
  ORVANTA_PROPERTY("aps.category", copy, String, interactiveCategoryIdentifier,
                   setInteractiveCategoryIdentifier)
  ORVANTA_PROPERTY("aps.sound", copy, String, sound, setSound)
  /// kUnsetInteger when the payload has none.
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
  /// The click action as the payload has it; `action` is its model.
  ORVANTA_PROPERTY("_ov.act", strong, Dictionary, defaultActionDictionary,
                   setDefaultActionDictionary)
  /// There after every successful update, empty when the payload has no click action.
  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaPushObjectAction, action, setAction)
  /// Items as plain dictionaries, unless they name their class.
  ORVANTA_PROPERTY("_ov.crsl", copy, Array, carousel, setCarousel)
  ORVANTA_PROPERTY("_ov.ia", strong, Array, interactiveActions, setInteractiveActions,
                   OrvantaUserNotificationAction)
  ORVANTA_PROPERTY("_ov.ets", strong, Date, expirationDate, setExpirationDate)
  ORVANTA_READONLY("_ov.sts", strong, Date, sendDate)
  ORVANTA_READONLY("_ov.stl", assign, std::uint64_t, style)
  ORVANTA_READONLY("_ov.ps", strong, OrvantaPushStyle, pushStyle, OrvantaPushStyle)
  ORVANTA_READONLY("_ov.thc", assign, bool, isThumbnail)
  ORVANTA_PROPERTY(kUnmapped, assign, bool, includedInInbox, setIncludedInInbox)
  /// The action that the user chose; setting it selects `actionDictionary`: that of the first
  /// interactive action of this identifier, for nil the default one. An unknown identifier leaves
  /// it as it is.
  ORVANTA_CUSTOM_SETTER(kUnmapped, strong, String, interactiveActionIdentifier,
                        setInteractiveActionIdentifier)
  /// What the user typed into a text-input action.
  ORVANTA_PROPERTY(kUnmapped, strong, String, inputText, setInputText)
  /// The action dictionary in force.
  ORVANTA_PROPERTY(kUnmapped, strong, Dictionary, actionDictionary, setActionDictionary)
  ORVANTA_PROPERTY(kUnmapped, copy, Block<void()>, willPresentNotificationHandler,
                   setWillPresentNotificationHandler)

  /// Reads the alert and the click action by hand, then the table. Throws the undefined-key
  /// exception for a payload whose "aps" or "_ov" is no dictionary; so does initWithDictionary.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// The alert's entries stand at the top level, under the object's own.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
