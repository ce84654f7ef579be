#include "orvanta/Simulator/SimulatedPlatform.h"

namespace orvanta {

SimulatedPlatform::SimulatedPlatform(const HostServices& host, const Scenario& scenario,
                                     OperatingSystemVersion os, EventLoop& loop, EventLog& log)
    : host_(host),
      scenario_(scenario),
      os_(os),
      center_(std::make_shared<SimulatedNotificationCenter>(loop, log, host.state,
                                                            scenario.categoriesDelay)),
      session_(loop, log, host.files, host.downloader, scenario.media),
      tracingFiles_(host.files, log),
      attachments_(host.files),
      tracingAttachments_(attachments_, log),
      images_({scenario.images.begin(), scenario.images.end()}, host.images),
      tracingImages_(images_, log),
      intents_(loop, log, host.state,
               {.donationFails = scenario.donationFails,
                .updateFails = scenario.updateFails,
                .donationDelay = scenario.donationDelay}) {
  for (const std::string& identifier : scenario.categories) {
    center_->addRegistered({identifier, {}});
  }
}

}  // namespace orvanta
