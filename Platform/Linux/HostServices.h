#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Linux/EventLoop.h"
#include "orvanta/Platform/Intents.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// A notification center whose categories live in a file of the state folder, "categories.json".
class HostNotificationCenter final : public UNUserNotificationCenter {
 public:
  /// Reads the file, if there is one; throws std::runtime_error for one that is broken.
  HostNotificationCenter(EventLoop& loop, Timeline& timeline,
                         const std::filesystem::path& stateFolder, double readDelay);

  /// Registers a category as the application would have done before.
  void addRegistered(UNNotificationCategory category) { categories_.insert(std::move(category)); }

  void getNotificationCategories(CategoriesCompletion completion) override;
  void setNotificationCategories(const UNNotificationCategorySet& categories) override;

  const UNNotificationCategorySet& categories() const { return categories_; }
  /// Why the file could not be written; empty when it could.
  const std::string& failure() const { return failure_; }
  /// Whether anything was registered since the center was made.
  bool wasWritten() const { return wasWritten_; }

 private:
  EventLoop& loop_;
  Timeline& timeline_;
  std::filesystem::path file_;
  double readDelay_;
  UNNotificationCategorySet categories_;
  bool wasWritten_ = false;
  std::string failure_;
};

/// The categories as JSON: [{"identifier","actions":[{"identifier","title","options",
/// "textInput"}]}].
Array categoriesAsJSON(const UNNotificationCategorySet& categories);
Array actionsAsJSON(const std::vector<Ref<UNNotificationAction>>& actions);

/// One donated interaction and what became of it.
struct Donation {
  INInteraction interaction;
  bool failed;
};
/// {"sender","senderHasImage","recipients","groupName","groupImage","outcome"}.
Dictionary donationAsJSON(const Donation& donation);

/// Intents that answer after a delay, as told. Donations that went through are also appended to
/// "donations.jsonl" of the state folder.
class HostIntents final : public Intents {
 public:
  struct Behaviour {
    bool donationFails = false;
    bool updateFails = false;
    double donationDelay = 0.0;
  };
  HostIntents(EventLoop& loop, Timeline& timeline, const std::filesystem::path& stateFolder,
              Behaviour behaviour);

  void donateInteraction(const INInteraction& interaction, ErrorCompletion completion) override;
  Update contentByUpdating(const UNNotificationContent& content,
                           const INSendMessageIntent& provider) override;

  const std::vector<Donation>& donations() const { return donations_; }
  const std::string& failure() const { return failure_; }

 private:
  EventLoop& loop_;
  Timeline& timeline_;
  std::filesystem::path file_;
  Behaviour behaviour_;
  std::vector<Donation> donations_;
  std::string failure_;
};

}  // namespace orvanta
