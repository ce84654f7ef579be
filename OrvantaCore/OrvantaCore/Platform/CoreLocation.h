#pragma once

#include "orvanta/Foundation/Date.h"

namespace orvanta {

/// One fix of the device's position, as far as the library looks at it.
struct CLLocation {
  double horizontalAccuracy = 0.0;  // metres; negative when the coordinates are not valid
  Date timestamp;
};

}  // namespace orvanta
