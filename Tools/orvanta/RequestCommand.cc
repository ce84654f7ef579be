#include <ostream>
#include <sstream>

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

Dictionary specDictionary(const OrvantaRequestSpec& spec) {
  const auto orNull = [](const PropertyValue<String>& text) {
    return text.isPresent() ? text.raw() : Value::null();
  };
  return {{"baseURL", orNull(spec.baseURL)},
          {"path", orNull(spec.path)},
          {"HTTPMethod", orNull(spec.HTTPMethod)},
          {"HTTPHeaders", spec.HTTPHeaders},
          {"HTTPBody", spec.HTTPBody},
          {"timeoutInterval", spec.timeoutInterval},
          {"queuePriority", spec.queuePriority}};
}

ExitCode request(const RequestOptions& options, const Streams& streams) {
  const Class& cls = classForArgument(options.className);
  if (!cls.isSubclassOf(OrvantaBaseRequest::classObject())) {
    throw CommandError(ExitCode::usage, std::string(cls.name) + " is no request class");
  }
  const Input input = readInput(options.file, streams);
  const RefusalRecorder recorder;
  const auto model = makeModel(cls, &input.object);
  const auto* request = Value(model).as<OrvantaBaseRequest>();
  if (request == nullptr) throw CommandError(ExitCode::rejected, rejectionReason(recorder, cls));
  const auto spec = request->requestSpec();
  if (options.text) {
    std::istringstream lines(spec->description().substr(1));
    for (std::string line; std::getline(lines, line);)
      streams.out << escapeForTerminal(line) << '\n';
    return ExitCode::done;
  }
  checkWritable(spec->HTTPBody, cls);
  Dictionary call = specDictionary(*spec);
  const auto priority = request->priority();
  call.set("priority", priority ? Value(*priority) : Value::null());
  printJSON(call, streams.out, /*pretty=*/true);
  return ExitCode::done;
}

}  // namespace orvanta::tool
