#include "orvanta/Simulator/Tracing.h"

namespace orvanta {

Ref<UIImage> TracingImages::imageNamed(std::string_view name) {
  Ref<UIImage> image = images_.imageNamed(name);
  log_.add({.kind = image ? EventKind::imageFound : EventKind::imageMissing,
            .subject = std::string(name)});
  return image;
}

std::optional<std::string> TracingImages::JPEGRepresentation(const Ref<UIImage>& image,
                                                             double compressionQuality) {
  std::optional<std::string> data = images_.JPEGRepresentation(image, compressionQuality);
  if (!data) log_.add({.kind = EventKind::imageNotEncodable});
  return data;
}

Ref<NSError> TracingFileManager::moveItemAtURL(const Url& source, const Url& destination) {
  Ref<NSError> error = files_.moveItemAtURL(source, destination);
  log_.add({.kind = error ? EventKind::moveFailed : EventKind::fileMoved, .error = error});
  return error;
}

UNNotificationAttachmentFactory::Result TracingAttachments::attachmentWithIdentifier(
    const std::string& identifier, const Url& url, const std::optional<std::string>& typeHint) {
  Result result = attachments_.attachmentWithIdentifier(identifier, url, typeHint);
  if (result.error) {
    log_.add({.kind = EventKind::attachmentRejected, .type = typeHint, .error = result.error});
  } else {
    log_.add({.kind = EventKind::attached, .type = result.attachment->parts().type});
  }
  return result;
}

}  // namespace orvanta
