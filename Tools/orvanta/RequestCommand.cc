#include <ostream>
#include <sstream>

#include "orvanta/Inspection/Models.h"
#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

ExitCode request(const RequestOptions& options, const Streams& streams) {
  const Class& cls = inspection::classNamed(options.className);
  inspection::checkIsRequest(cls);
  const Input input = readInput(options.file, streams);
  if (!options.text) {
    printJSON(inspection::requestCall(cls, input.object), streams.out, /*pretty=*/true);
    return ExitCode::done;
  }
  const auto request = inspection::restoredRequest(cls, input.object);
  std::istringstream lines(request->requestSpec()->description().substr(1));
  for (std::string line; std::getline(lines, line);) {
    streams.out << escapeForTerminal(line) << '\n';
  }
  return ExitCode::done;
}

}  // namespace orvanta::tool
