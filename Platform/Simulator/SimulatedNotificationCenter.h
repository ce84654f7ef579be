#pragma once

#include <string>
#include <vector>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Platform/UserNotifications.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"
#include "orvanta/Simulator/StateStore.h"

namespace orvanta {

/// A notification center that keeps its categories in "categories.json" of the state.
class SimulatedNotificationCenter final : public UNUserNotificationCenter {
 public:
  /// Reads take `readDelay` seconds of virtual time. Throws std::runtime_error for a file that
  /// cannot be read or is not an array.
  SimulatedNotificationCenter(EventLoop& loop, EventLog& log, StateStore& state, double readDelay);

  /// Registers a category as the application would have done before.
  void addRegistered(UNNotificationCategory category) { categories_.insert(std::move(category)); }

  void getNotificationCategories(CategoriesCompletion completion) override;
  void setNotificationCategories(const UNNotificationCategorySet& categories) override;

  const UNNotificationCategorySet& categories() const { return categories_; }
  /// Whether anything was registered since the center was made.
  bool wasWritten() const { return wasWritten_; }
  /// Why the file could not be written; empty when it could.
  const std::string& failure() const { return failure_; }

 private:
  EventLoop& loop_;
  EventLog& log_;
  StateStore& state_;
  double readDelay_;
  UNNotificationCategorySet categories_;
  bool wasWritten_ = false;
  std::string failure_;
};

/// Return the JSON form: [{"identifier","actions":[{"identifier","title","options","textInput"}]}].
Array categoriesAsJSON(const UNNotificationCategorySet& categories);
Array actionsAsJSON(const std::vector<Ref<UNNotificationAction>>& actions);

}  // namespace orvanta
