#pragma once

#include <functional>
#include <memory>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Platform/UserNotifications.h"
#include "orvanta/Simulator/HostServices.h"
#include "orvanta/Simulator/Scenario.h"
#include "orvanta/Simulator/SimulationReport.h"

namespace orvanta {

/// Configuration of simulated runs.
struct SimulationOptions {
  OperatingSystemVersion os{17, 0, 0};  // where the scenario has none
  Scenario scenario;
  double timeBudget = 30.0;  // seconds from a request to serviceExtensionTimeWillExpire
};

/// Does what the system does with a remote notification: makes its content, creates the extension,
/// hands it the request, gives it a budget of time and takes what it delivers. Everything runs on
/// the calling thread, on one serial queue in virtual time.
///
///     InMemoryDeviceFiles files;
///     InMemoryStateStore state;
///     NotificationSimulator simulator(
///         [] { return std::make_shared<OrvantaNotificationServiceExtension>(); },
///         {.files = files, .state = state}, {});
///     const SimulationReport report = simulator.run(payload);
///
/// The extension runs whatever the launch decision is. The virtual clock makes a run give the same
/// result every time; a real transfer adds the time that it took.
class NotificationSimulator {
 public:
  using ExtensionFactory = std::function<std::shared_ptr<UNNotificationServiceExtension>()>;

  NotificationSimulator(ExtensionFactory makeExtension, HostServices host,
                        SimulationOptions options)
      : makeExtension_(std::move(makeExtension)),
        host_(std::move(host)),
        options_(std::move(options)) {}

  /// Throws std::runtime_error for files or a state that cannot be used.
  SimulationReport run(const Dictionary& payload) const;

 private:
  ExtensionFactory makeExtension_;
  HostServices host_;
  SimulationOptions options_;
};

}  // namespace orvanta
