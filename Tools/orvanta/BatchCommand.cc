#include <algorithm>
#include <ostream>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Inspection/Models.h"
#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Requests/EventBatchQueue.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/LineReader.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

/// Describes a value in a message: a scalar as JSON, anything else by its kind.
std::string excerpt(const Value& value) {
  constexpr std::size_t kMaxBytes = 80;
  std::string text;
  const bool isScalar = value.array() == nullptr && value.dictionary() == nullptr;
  if (!isScalar || !writeJSON(value, text, {.escapeSlashes = false})) {
    return value.isNil() ? "missing" : std::string(value.kindName());
  }
  return text.size() > kMaxBytes ? text.substr(0, kMaxBytes) + "…" : text;
}

/// Restores the request of the current line. Returns nil and sets `reason` if there is none.
Ref<OrvantaEventRequest> restoreRequest(const LineReader& reader, std::string& reason) {
  const auto reject = [&](std::string why) {
    reason = std::move(why);
    return nullptr;
  };
  const Class& cls = OrvantaEventRequest::classObject();
  if (reader.isTooLong()) {
    return reject("the line has more than " + std::to_string(LineReader::kMaxLineBytes) + " bytes");
  }
  JSONError error;
  const Value value = parseJSON(reader.text(), &error);
  const Dictionary* dictionary = value.dictionary();
  if (value.isNil()) {
    return reject("column " + std::to_string(error.offset + 1) + ": " + std::string(error.reason));
  }
  if (dictionary == nullptr) {
    return reject("the line is " + std::string(value.kindName()) + ", not a JSON object");
  }
  const Value& klazz = (*dictionary)["klazz"];
  if (!klazz.isNil() && klazz != Value(cls.name)) {
    return reject("\"klazz\" is " + excerpt(klazz) + ", not " + std::string(cls.name));
  }
  const RefusalRecorder recorder;
  auto request = make<OrvantaEventRequest>(*dictionary);
  if (!request) return reject(inspection::rejectionReason(recorder, cls));
  if (eventCount(*request) == 0) {
    const Value& events = (*dictionary)["events"];
    return reject("\"events\" is " + (events.array() != nullptr ? "empty" : excerpt(events)) +
                  ", not an array of events");
  }
  if (!isValidJSONObject(request->dictionaryValue())) {
    return reject("it holds a number without a JSON text, such as an infinite one");
  }
  request->setStorageId(reader.number());
  return request;
}

/// Warns about input that is accepted but is probably a mistake.
void warn(const LineReader& reader, const OrvantaEventRequest& request, std::ostream& err) {
  const auto print = [&](const std::string& warning) {
    err << "orvanta: " << reader.location() << ": warning: " << warning << '\n';
  };
  if (const std::string duplicate = duplicateKeyWarning(reader.text()); !duplicate.empty()) {
    print(duplicate);
  }
  const Array& events = *request.events().get();
  const auto unnamed = std::count_if(events.begin(), events.end(), [](const Value& element) {
    return element.as<OrvantaEvent>() == nullptr;
  });
  if (unnamed != 0) {
    print(std::to_string(unnamed) +
          " of \"events\" name no event class under \"klazz\": they are sent as they stand, under "
          "the identifiers of the batch");
  }
}

void printBatch(const OrvantaEventRequest& batch, std::ostream& out) {
  printJSON(Dictionary{{"storageId", batch.storageId().raw()},
                       {"idsContained", batch.idsContained().raw()},
                       {"events", eventCount(batch)},
                       {"priority", batch.priority().value_or(0)},
                       {"spec", inspection::specDictionary(*batch.requestSpec())}},
            out, /*pretty=*/false);
  out.flush();  // a reader may be following a growing file
}

}  // namespace

ExitCode batch(const BatchOptions& options, const Streams& streams) {
  LineReader reader(options.files.empty() ? std::vector<std::string>{"-"} : options.files, streams);
  EventBatchQueue queue;
  std::uint64_t badLines = 0;
  while (streams.out && reader.next()) {
    if (reader.text().find_first_not_of(" \t") == std::string::npos) continue;
    std::string reason;
    if (auto request = restoreRequest(reader, reason)) {
      warn(reader, *request, streams.err);
      for (const auto& complete : queue.add(std::move(request))) printBatch(*complete, streams.out);
    } else {
      streams.err << "orvanta: " << reader.location() << ": " << escapeForTerminal(reason) << '\n';
      ++badLines;
    }
  }
  if (const auto rest = queue.finish()) printBatch(*rest, streams.out);
  if (badLines == 0) return ExitCode::done;
  streams.err << "orvanta: " << badLines << (badLines == 1 ? " line was" : " lines were")
              << " left out\n";
  return ExitCode::rejected;
}

}  // namespace orvanta::tool
