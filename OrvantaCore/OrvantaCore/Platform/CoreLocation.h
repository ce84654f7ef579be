#pragma once

#include "orvanta/Foundation/Date.h"

namespace orvanta {

/// A location fix: the part of the platform's class that OrvantaLocationUpdateEvent reads.
struct CLLocation {
  double horizontalAccuracy = 0.0;  // meters; negative if the coordinates are invalid
  Date timestamp;
};

}  // namespace orvanta
