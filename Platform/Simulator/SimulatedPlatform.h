#pragma once

#include <memory>

#include "orvanta/Platform/Platform.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"
#include "orvanta/Simulator/HostServices.h"
#include "orvanta/Simulator/Scenario.h"
#include "orvanta/Simulator/ScenarioImages.h"
#include "orvanta/Simulator/SimulatedAttachments.h"
#include "orvanta/Simulator/SimulatedIntents.h"
#include "orvanta/Simulator/SimulatedNotificationCenter.h"
#include "orvanta/Simulator/SimulatedURLSession.h"
#include "orvanta/Simulator/StringsFile.h"
#include "orvanta/Simulator/Tracing.h"
#include "orvanta/Simulator/UniformTypes.h"

namespace orvanta {

/// The platform of one run: the host's services as a scenario changes them, with everything that
/// happens recorded. What is passed must outlive it. Throws std::runtime_error for a state that
/// cannot be read.
class SimulatedPlatform final : public Platform {
 public:
  SimulatedPlatform(const HostServices& host, const Scenario& scenario, OperatingSystemVersion os,
                    EventLoop& loop, EventLog& log);

  SystemLog* systemLog() override { return host_.log; }
  Clock* clock() override { return host_.clock; }
  std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() override {
    return scenario_.centerGone ? nullptr : center_;
  }
  NSURLSession* sharedSession() override { return &session_; }
  NSFileManager* defaultManager() override { return &tracingFiles_; }
  TypeIdentifiers* typeIdentifiers() override { return &types_; }
  UNNotificationAttachmentFactory* attachments() override { return &tracingAttachments_; }
  Images* images() override { return &tracingImages_; }
  Intents* intents() override { return &intents_; }
  NSBundle* mainBundle() override { return host_.bundle != nullptr ? host_.bundle : &noStrings_; }
  OperatingSystemVersion operatingSystemVersion() override { return os_; }

  const SimulatedNotificationCenter& center() const { return *center_; }
  const SimulatedIntents& simulatedIntents() const { return intents_; }
  SimulatedURLSession& session() { return session_; }

 private:
  const HostServices& host_;
  const Scenario& scenario_;
  OperatingSystemVersion os_;
  SimulatedBundle noStrings_;
  std::shared_ptr<SimulatedNotificationCenter> center_;
  SimulatedURLSession session_;
  TracingFileManager tracingFiles_;
  UniformTypes types_;
  SimulatedAttachments attachments_;
  TracingAttachments tracingAttachments_;
  ScenarioImages images_;
  TracingImages tracingImages_;
  SimulatedIntents intents_;
};

}  // namespace orvanta
