#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Simulator/Report/JSONReport.h"
#include "orvanta/Simulator/SimulationReport.h"

namespace orvanta {

/// A payload as a report names it.
struct PayloadSource {
  std::string name;   // of a file, safe to print
  std::size_t bytes;  // of its JSON
  const Dictionary& payload;
};

/// Writes the report for people: whether the system would start the extension, what the payload
/// asks for, each event with its time, the notification as presented, and why anything that was
/// asked for is missing. Strings of the payload are escaped for a terminal.
void writeTextReport(const PayloadSource& source, const SimulationReport& report,
                     const PathRewriter& rewritePaths, std::ostream& out);

}  // namespace orvanta
