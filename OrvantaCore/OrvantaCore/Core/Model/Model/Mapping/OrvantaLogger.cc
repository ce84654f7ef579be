#include "orvanta/Model/Mapping/OrvantaLogger.h"

#include <string>

#include "orvanta/Platform/Platform.h"

namespace orvanta {

void writeLogLine(std::string_view glyph, const LogSite& site, std::string_view message) {
  SystemLog* log = Platform::current().systemLog();
  if (log == nullptr) return;
  std::string entry = "\n\n";
  entry.append(glyph).append(" ").append(site.method).append(" (").append(site.file).append(":");
  entry.append(std::to_string(site.line)).append(") ").append(glyph).append("\n");
  entry.append(message).append("\n\n");
  log->write(entry);
}

}  // namespace orvanta
