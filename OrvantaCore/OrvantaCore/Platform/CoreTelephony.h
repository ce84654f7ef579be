#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Object.h"

namespace orvanta {

/// The operator behind a SIM.
class CTCarrier : public Object {
 public:
  static Ref<CTCarrier> carrierWithName(std::optional<std::string> name) {
    return Ref<CTCarrier>::adopt(new CTCarrier(std::move(name)));
  }
  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  /// UTF-8; none when the system does not tell.
  const std::optional<std::string>& carrierName() const { return carrierName_; }

 private:
  explicit CTCarrier(std::optional<std::string> name) : carrierName_(std::move(name)) {}
  static constexpr ClassObject kClass{"CTCarrier", nullptr};
  std::optional<std::string> carrierName_;
};

/// The cellular network. Each call answers like one on an object that was just made, on the
/// caller's thread; it may throw an orvanta::Exception.
class CTTelephonyNetworkInfo {
 public:
  virtual ~CTTelephonyNetworkInfo() = default;
  /// From iOS 12.0 on: the values of the dictionary, one per SIM, in its own order.
  virtual std::vector<Ref<CTCarrier>> serviceSubscriberCellularProviders() = 0;
  /// Before iOS 12.0; nil without a SIM.
  virtual Ref<CTCarrier> subscriberCellularProvider() = 0;
  /// The value of a CTRadioAccessTechnology constant, which equals its name, such as
  /// "CTRadioAccessTechnologyLTE"; none without a cellular connection.
  virtual std::optional<std::string> currentRadioAccessTechnology() = 0;
};

}  // namespace orvanta
