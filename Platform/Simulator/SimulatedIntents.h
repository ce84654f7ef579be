#pragma once

#include <string>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Platform/Intents.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"
#include "orvanta/Simulator/StateStore.h"

namespace orvanta {

/// One donated interaction and its outcome.
struct Donation {
  INInteraction interaction;
  bool failed;
};
/// Returns {"sender","senderHasImage","recipients","groupName","groupImage","outcome"}.
Dictionary donationAsJSON(const Donation& donation);

/// Intents that take virtual time and fail where asked to. Accepted donations are also appended to
/// "donations.jsonl" of the state.
class SimulatedIntents final : public Intents {
 public:
  struct Behavior {
    bool donationFails = false;
    bool updateFails = false;
    double donationDelay = 0.0;  // seconds
  };
  SimulatedIntents(EventLoop& loop, EventLog& log, StateStore& state, Behavior behavior)
      : loop_(loop), log_(log), state_(state), behavior_(behavior) {}

  void donateInteraction(const INInteraction& interaction, ErrorCompletion completion) override;
  Update contentByUpdating(const UNNotificationContent& content,
                           const INSendMessageIntent& provider) override;

  const std::vector<Donation>& donations() const { return donations_; }
  /// Why the file could not be written; empty when it could.
  const std::string& failure() const { return failure_; }

 private:
  EventLoop& loop_;
  EventLog& log_;
  StateStore& state_;
  Behavior behavior_;
  std::vector<Donation> donations_;
  std::string failure_;
};

}  // namespace orvanta
