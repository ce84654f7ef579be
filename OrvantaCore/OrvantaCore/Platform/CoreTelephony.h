#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Object.h"

namespace orvanta {

/// The network operator of a SIM.
class CTCarrier : public Object {
 public:
  static Ref<CTCarrier> carrierWithName(std::optional<std::string> name) {
    return Ref<CTCarrier>::adopt(new CTCarrier(std::move(name)));
  }
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  /// UTF-8; nullopt if the system does not report it.
  const std::optional<std::string>& carrierName() const { return carrierName_; }

 private:
  explicit CTCarrier(std::optional<std::string> name) : carrierName_(std::move(name)) {}
  static constexpr ClassObject kClass{"CTCarrier", nullptr};
  std::optional<std::string> carrierName_;
};

/// The carrier and the radio technology of the cellular network.
///
/// Called by OrvantaAppDeviceInfoUtil on its caller's thread: one of the two carrier methods,
/// depending on the system's version, and the radio technology if "pdp_ip0" has an IPv4 address.
///
/// Requirements for implementers:
/// - Read the current state on every call, as a new CTTelephonyNetworkInfo does.
/// - Report a missing fact by the return value. An orvanta::Exception may be thrown: it reaches the
///   caller of the carrier methods, and ends the search of `connectionType`.
class CTTelephonyNetworkInfo {
 public:
  virtual ~CTTelephonyNetworkInfo() = default;
  /// iOS 12.0 and later: the values of the platform's dictionary, one per SIM, in the dictionary's
  /// order. The first one counts.
  virtual std::vector<Ref<CTCarrier>> serviceSubscriberCellularProviders() = 0;
  /// Before iOS 12.0. Returns nil without a SIM.
  virtual Ref<CTCarrier> subscriberCellularProvider() = 0;
  /// Returns the value of a CTRadioAccessTechnology constant, which equals the constant's name
  /// ("CTRadioAccessTechnologyLTE"); nullopt without a cellular connection.
  virtual std::optional<std::string> currentRadioAccessTechnology() = 0;
};

}  // namespace orvanta
