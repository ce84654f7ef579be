#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Simulator/SimulationReport.h"

namespace orvanta {

/// Rewrites paths of one run in a string, so that reports of different runs compare equal.
using PathRewriter = std::function<std::string(std::string_view)>;

/// Returns the report for programs, format 2: {"format", "launch", "events", "deliveries", "shown",
/// "categories", "donations", "log"}. `log` has the entries that the component wrote.
Dictionary reportAsJSON(const SimulationReport& report, const std::vector<std::string>& log,
                        const PathRewriter& rewritePaths);

}  // namespace orvanta
