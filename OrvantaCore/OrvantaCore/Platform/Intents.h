#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Platform/NSError.h"
#include "orvanta/Platform/UserNotifications.h"

// The Intents types that the component touches, under the platform's names. They are plain data.

namespace orvanta {

struct INImage {
  std::string imageData;  // the bytes of a JPEG file
};

struct INPersonHandle {
  std::string value;
  int type = 0;  // 0: INPersonHandleTypeUnknown
};

/// A person without name components, display name, contact and custom identifier.
struct INPerson {
  INPersonHandle personHandle;
  std::optional<INImage> image;
};

struct INSpeakableString {
  std::string spokenPhrase;
};

/// An intent without content, conversation identifier and service name.
struct INSendMessageIntent {
  std::optional<std::vector<INPerson>> recipients;
  int outgoingMessageType = 0;  // 0: INOutgoingMessageTypeUnknown
  std::optional<INSpeakableString> speakableGroupName;
  INPerson sender;
  /// setImage:forParameterNamed: for the group's name, the only parameter that gets one.
  std::optional<INImage> speakableGroupNameImage;
};

/// An interaction without response and of the default direction.
struct INInteraction {
  INSendMessageIntent intent;
};

/// The Intents framework, of iOS 15.0 and later. A platform may do without.
class Intents {
 public:
  struct Update {
    std::shared_ptr<const UNNotificationContent> content;
    Ref<NSError> error;
  };

  virtual ~Intents() = default;
  /// donateInteractionWithCompletion: answers exactly once, on a queue of its own and never before
  /// the call has returned.
  virtual void donateInteraction(const INInteraction& interaction, ErrorCompletion completion) = 0;
  /// contentByUpdatingWithProvider:error: a new content, or an error and none.
  virtual Update contentByUpdating(const UNNotificationContent& content,
                                   const INSendMessageIntent& provider) = 0;
};

}  // namespace orvanta
