#include <string>
#include <utility>

#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/NotificationService/RequestedEnrichments.h"
#include "orvanta/Platform/Intents.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/UIKit.h"

namespace orvanta {

namespace {

constexpr LogSite site(int line) {
  return {
      "-[OrvantaNotificationServiceExtension setNotificationIntentForNotificationContent:"
      "withContentHandler:completionHandler:]",
      "OrvantaNotificationServiceExtension", line};
}

/// Returns the JPEG bytes of an image in the bundle's resources.
std::optional<std::string> jpegData(std::string_view name) {
  constexpr double kBestQuality = 1.0;
  Images* images = Platform::current().images();
  if (images == nullptr) return std::nullopt;
  const Ref<UIImage> image = images->imageNamed(name);
  return image ? images->JPEGRepresentation(image, kBestQuality) : std::nullopt;
}

/// Returns an intent with the content's title as sender and its subtitle, if any, as group. The
/// image is used for both.
INSendMessageIntent intentFor(const UNNotificationContent& content, const INImage& image) {
  INSendMessageIntent intent;
  intent.sender.personHandle.value = content.title.value_or("");
  intent.sender.image = image;
  if (!content.subtitle.value_or("").empty()) {
    intent.speakableGroupName = INSpeakableString{*content.subtitle};
    intent.recipients = {INPerson{}};
    intent.speakableGroupNameImage = image;
  }
  return intent;
}

}  // namespace

void OrvantaNotificationServiceExtension::setNotificationIntentForNotificationContent(
    const std::shared_ptr<UNMutableNotificationContent>& content, UNContentHandler contentHandler,
    ErrorCompletion completionHandler) {
  const Ref<OrvantaPushObject> object = pushObject();
  const auto icon = object ? requestedEnrichments(*object).senderIcon : std::nullopt;
  auto data = icon ? jpegData(*icon) : std::nullopt;
  Platform& platform = Platform::current();
  Intents* intents = platform.intents();
  if (!data || intents == nullptr ||
      platform.operatingSystemVersion() < kFirstVersionWithCommunication) {
    contentHandler(content);
    return;
  }
  const INSendMessageIntent intent = intentFor(*content, INImage{*std::move(data)});
  intents->donateInteraction(
      INInteraction{intent},
      [self = shared_from_this(), intents, intent, content,
       contentHandler = std::move(contentHandler),
       completionHandler = std::move(completionHandler)](const Ref<NSError>& donationError) {
        if (donationError) {
          logError(site(149),
                   [&] { return "Donate Interaction error: " + donationError->description(); });
          completionHandler(donationError);
          return;
        }
        const auto [updated, updateError] = intents->contentByUpdating(*content, intent);
        if (updateError) {
          const Ref<NSError>& error = updateError;
          logError(site(157), [&] { return "Update Notification Error: " + error->description(); });
          completionHandler(updateError);
        }
        contentHandler(updated != nullptr ? std::make_shared<UNMutableNotificationContent>(*updated)
                                          : nullptr);
      });
}

}  // namespace orvanta
