#include "support/FakePlatform.h"

#include <algorithm>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/internal/ASCII.h"

namespace orvanta::testing {

namespace {

class FakeImage final : public UIImage {
 public:
  explicit FakeImage(std::string name) : file(std::move(name)) {}
  const std::string file;
};

struct MediaType {
  std::string_view identifier;
  std::string_view mimeType;
  std::string_view extension;
  std::string_view family;  // empty: cannot be attached
  std::uint64_t maxBytes;
};
constexpr MediaType kTypes[] = {
    {"public.jpeg", "image/jpeg", ".jpg", "Image", 10'000'000},
    {"public.mp3", "audio/mpeg", ".mp3", "Audio", 5'000'000},
    {"public.mpeg-4", "video/mp4", ".mp4", "Movie", 50'000'000},
    {"public.plain-text", "text/plain", ".txt", "", 0},
};

Ref<NSError> moveError(std::int64_t code, std::int64_t posixCode) {
  const Value underlying =
      NSError::errorWithDomain("NSPOSIXErrorDomain", posixCode, "not that file");
  return NSError::errorWithDomain("NSCocoaErrorDomain", code,
                                  Dictionary{{NSError::kUnderlyingError, underlying}});
}

}  // namespace

void FakePlatform::run(std::size_t index) {
  const auto at = pending_.begin() + static_cast<std::ptrdiff_t>(index);
  const std::function<void()> callback = std::move(*at);
  pending_.erase(at);
  callback();
}

void FakePlatform::Center::getNotificationCategories(CategoriesCompletion completion) {
  platform_.calls.emplace_back("read");
  platform_.wait([this, completion = std::move(completion)] { completion(registered); });
}

void FakePlatform::Center::setNotificationCategories(const UNNotificationCategorySet& categories) {
  platform_.calls.emplace_back("write");
  registered = categories;
  written.push_back(categories);
}

void FakePlatform::downloadTaskWithURL(const std::optional<Url>& url,
                                       DownloadCompletion completionHandler) {
  calls.push_back("download " + (url ? url->description() : "nothing"));
  Download result = download;
  if (url) {
    result.response.url = *url;
  } else {
    result.hasResponse = false;
    result.error =
        NSError::errorWithDomain(kNSURLErrorDomain, kNSURLErrorUnsupportedURL, "unsupported URL");
  }
  wait([this, result, completion = std::move(completionHandler)] {
    const auto response =
        result.hasResponse ? NSURLResponse::responseWithParts(result.response) : nullptr;
    if (result.error) {
      completion(std::nullopt, response, result.error);
      return;
    }
    const std::string path = "/tmp/" + result.name;
    files[path] = result.bytes;
    completion(Url::fileURLWithPath(path), response, nullptr);
    files.erase(path);
  });
}

Ref<NSError> FakePlatform::moveItemAtURL(const Url& source, const Url& destination) {
  calls.push_back("move " + source.lastPathComponent());
  const auto file = files.find(source.path());
  if (file == files.end()) return moveError(4, 2);
  if (files.contains(destination.path())) return moveError(516, 17);
  if (!lockedFolder.empty() && destination.path().starts_with(lockedFolder)) {
    return moveError(513, 13);
  }
  files[destination.path()] = file->second;
  files.erase(file);
  return nullptr;
}

std::optional<std::string> FakePlatform::preferredIdentifierForMIMEType(
    const std::optional<std::string>& type) {
  if (!type) return std::nullopt;
  const std::string lower = toLowerASCII(*type);
  for (const MediaType& known : kTypes) {
    if (known.mimeType == lower) return std::string(known.identifier);
  }
  return "dyn.a" + lower;
}

UNNotificationAttachmentFactory::Result FakePlatform::attachmentWithIdentifier(
    const std::string& identifier, const Url& url, const std::optional<std::string>& typeHint) {
  calls.push_back("attach " + typeHint.value_or("no type"));
  const auto failure = [](std::int64_t code) {
    return Result{nullptr, NSError::errorWithDomain("UNErrorDomain", code, "not this file")};
  };
  if (attachmentError) return {nullptr, attachmentError};
  const auto file = files.find(url.path());
  if (!url.isFileURL() || file == files.end()) return failure(100);
  const auto* const type = std::find_if(std::begin(kTypes), std::end(kTypes), [&](const auto& t) {
    return typeHint ? t.identifier == *typeHint : url.path().ends_with(t.extension);
  });
  if (type == std::end(kTypes) || type->family.empty()) return failure(101);
  if (file->second > type->maxBytes) return failure(102);
  return {UNNotificationAttachment::attachmentWithParts({.identifier = identifier,
                                                         .url = url,
                                                         .typeHint = typeHint,
                                                         .type = std::string(type->identifier),
                                                         .family = std::string(type->family),
                                                         .bytes = file->second}),
          nullptr};
}

Ref<UIImage> FakePlatform::imageNamed(std::string_view name) {
  calls.push_back("image " + std::string(name));
  const auto dot = name.rfind('.');
  const std::string stem(name.substr(0, dot));
  const std::string extension(dot == std::string_view::npos ? ".png" : name.substr(dot));
  for (const char* const scale : {"@3x", "@2x", ""}) {
    const std::string file = std::string(stem).append(scale).append(extension);
    if (pictures.contains(file)) return Ref<FakeImage>::adopt(new FakeImage(file));
  }
  return nullptr;
}

std::optional<std::string> FakePlatform::JPEGRepresentation(const Ref<UIImage>& image,
                                                            double compressionQuality) {
  calls.push_back("encode " + describe(Value(compressionQuality)));
  const auto* const fake = dynamic_cast<const FakeImage*>(image.get());
  if (fake == nullptr || !encodes) return std::nullopt;
  return "\xFF\xD8\xFF" + fake->file;
}

void FakePlatform::donateInteraction(const INInteraction& interaction, ErrorCompletion completion) {
  calls.emplace_back("donate");
  donated.push_back(interaction);
  wait([this, completion = std::move(completion)] { completion(donationError); });
}

Intents::Update FakePlatform::contentByUpdating(const UNNotificationContent& content,
                                                const INSendMessageIntent& provider) {
  calls.emplace_back("update");
  if (updateError) return {nullptr, updateError};
  auto updated = std::make_shared<UNNotificationContent>(content);
  updated->communication =
      UNCommunication{.sender = provider.sender.personHandle.value,
                      .senderHasImage = provider.sender.image.has_value(),
                      .group = provider.speakableGroupName
                                   ? std::optional(provider.speakableGroupName->spokenPhrase)
                                   : std::nullopt,
                      .groupHasImage = provider.speakableGroupNameImage.has_value()};
  return {updated, nullptr};
}

}  // namespace orvanta::testing
