#include <string>
#include <utility>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/NotificationService/RequestedEnrichments.h"
#include "orvanta/Platform/MobileCoreServices.h"
#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/NSURLSession.h"
#include "orvanta/Platform/Platform.h"

namespace orvanta {

namespace {

constexpr LogSite site(int line) {
  return {
      "-[OrvantaNotificationServiceExtension downloadAndSetMediaImageForNotificationContent:"
      "withCompletionHandler:]",
      "OrvantaNotificationServiceExtension", line};
}

/// Returns a log message: the label, then the value formatted like "%@".
auto labeled(std::string_view label, const Value& value) {
  return [label, &value] { return std::string(label) + describe(value); };
}
auto labeled(std::string_view label, const std::optional<std::string>& string) {
  return [label, &string] { return std::string(label) + string.value_or("(null)"); };
}

Ref<NSError> unsupportedURL() {
  return NSError::errorWithDomain(kNSURLErrorDomain, kNSURLErrorUnsupportedURL, "unsupported URL");
}

Value orNil(const Url* url) { return url != nullptr ? Value(*url) : Value(); }

}  // namespace

std::optional<Url> OrvantaNotificationServiceExtension::cacheURL() {
  NSFileManager* files = Platform::current().defaultManager();
  if (files == nullptr) return std::nullopt;
  const std::vector<Url> folders = files->URLsForCachesDirectory();
  return folders.empty() ? std::nullopt : std::optional<Url>(folders.back());
}

void OrvantaNotificationServiceExtension::downloadAndSetMediaImageForNotificationContent(
    const std::shared_ptr<UNMutableNotificationContent>& content,
    ErrorCompletion completionHandler) {
  const Ref<OrvantaPushObject> object = pushObject();
  const Url* media = object ? requestedEnrichments(*object).media : nullptr;
  const Value mediaValue = orNil(media);
  logDebug(site(175), labeled("Start request with URL : ", mediaValue));
  Platform& platform = Platform::current();
  NSURLSession* session = platform.sharedSession();
  if (session == nullptr || platform.defaultManager() == nullptr ||
      platform.typeIdentifiers() == nullptr || platform.attachments() == nullptr) {
    completionHandler(unsupportedURL());
    return;
  }
  session->downloadTaskWithURL(
      media != nullptr ? std::optional<Url>(*media) : std::nullopt,
      [self = shared_from_this(), content, completionHandler = std::move(completionHandler)](
          const std::optional<Url>& location, const Ref<NSURLResponse>& response,
          const Ref<NSError>& error) {
        if (error) {
          logError(site(181),
                   [&] { return "Attachment download error : " + error->debugDescription(); });
          completionHandler(error);
          return;
        }
        completionHandler(location ? self->attach(*location, response, *content)
                                   : unsupportedURL());
      });
}

Ref<NSError> OrvantaNotificationServiceExtension::attach(
    const Url& location, const Ref<NSURLResponse>& response,
    UNMutableNotificationContent& content) const {
  Platform& platform = Platform::current();
  const std::optional<std::string> mimeType = response ? response->MIMEType() : std::nullopt;
  const auto type = platform.typeIdentifiers()->preferredIdentifierForMIMEType(mimeType);
  logDebug(site(190), labeled("Response : ", Value(response)));
  logDebug(site(191), labeled("MIME Type : ", mimeType));
  logDebug(site(192), labeled("UTI : ", type));

  const std::optional<Url> caches = cacheURL();
  if (!caches) return unsupportedURL();
  const Url destination = Url::fileURLWithPath(location.lastPathComponent(), *caches);
  if (Ref<NSError> error = platform.defaultManager()->moveItemAtURL(location, destination)) {
    logError(site(198), [&] { return "Attachment move error: " + error->debugDescription(); });
    return error;
  }
  logDebug(site(202), labeled("URL : ", Value(destination)));

  auto [attachment, error] =
      platform.attachments()->attachmentWithIdentifier("attachment", destination, type);
  if (error) {
    const Ref<NSError>& creationError = error;  // lambdas cannot capture structured bindings
    logError(site(211),
             [&] { return "Attachment create error: " + creationError->debugDescription(); });
    return creationError;
  }
  const Value attachmentValue(attachment);
  logDebug(site(215), labeled("Present Attachment : ", attachmentValue));
  content.attachments = {std::move(attachment)};
  return nullptr;
}

}  // namespace orvanta
