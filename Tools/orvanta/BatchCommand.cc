#include <algorithm>
#include <ostream>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Requests/OrvantaEventRequest.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/LineReader.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

std::size_t eventCount(const OrvantaEventRequest& request) {
  const Array* events = request.events().get();
  return events != nullptr ? events->size() : 0;
}

/// A value in a message.
std::string shown(const Value& value) {
  constexpr std::size_t kLongest = 80;
  std::string text;
  const bool isScalar = value.array() == nullptr && value.dictionary() == nullptr;
  if (!isScalar || !writeJSON(value, text, {.escapeSlashes = false})) {
    return value.isNil() ? "missing" : std::string(value.kindName());
  }
  return text.size() > kLongest ? text.substr(0, kLongest) + "…" : text;
}

/// The request of a line, or why there is none.
Ref<OrvantaEventRequest> restored(const LineReader& line, std::string& reason) {
  const auto refuse = [&](std::string why) {
    reason = std::move(why);
    return nullptr;
  };
  const Class& cls = OrvantaEventRequest::classObject();
  if (line.isTooLong()) {
    return refuse("the line has more than " + std::to_string(LineReader::kMaxLineBytes) + " bytes");
  }
  JSONError error;
  const Value value = parseJSON(line.text(), &error);
  const Dictionary* dictionary = value.dictionary();
  if (value.isNil()) {
    return refuse("column " + std::to_string(error.offset + 1) + ": " + std::string(error.reason));
  }
  if (dictionary == nullptr) {
    return refuse("the line is " + std::string(value.kindName()) + ", not a JSON object");
  }
  const Value& klazz = (*dictionary)["klazz"];
  if (!klazz.isNil() && klazz != Value(cls.name)) {
    return refuse("\"klazz\" is " + shown(klazz) + ", not " + std::string(cls.name));
  }
  const RefusalRecorder recorder;
  auto request = make<OrvantaEventRequest>(*dictionary);
  if (!request) return refuse(rejectionReason(recorder, cls));
  if (eventCount(*request) == 0) {
    const Value& events = (*dictionary)["events"];
    return refuse("\"events\" is " + (events.array() != nullptr ? "empty" : shown(events)) +
                  ", not an array of events");
  }
  if (!isValidJSONObject(request->dictionaryValue())) {
    return refuse("it holds a number without a JSON text, such as an infinite one");
  }
  request->setStorageId(line.number());
  return request;
}

/// Tells what is taken as it stands, but may be meant in another way.
void warn(const LineReader& line, const OrvantaEventRequest& request, std::ostream& err) {
  const auto tell = [&](const std::string& text) {
    err << "orvanta: " << line.location() << ": warning: " << text << '\n';
  };
  if (const std::string duplicate = duplicateKeyWarning(line.text()); !duplicate.empty()) {
    tell(duplicate);
  }
  const Array& events = *request.events().get();
  const auto strangers = std::count_if(events.begin(), events.end(), [](const Value& element) {
    return element.as<OrvantaEvent>() == nullptr;
  });
  if (strangers != 0) {
    tell(std::to_string(strangers) +
         " of \"events\" name no event class under \"klazz\": they are sent as they stand, under "
         "the identifiers of the batch");
  }
}

/// Folds requests into the leading one, and prints it when it is full.
class Folding {
 public:
  explicit Folding(std::ostream& out) : out_(out) {}

  void take(Ref<OrvantaEventRequest> request) {
    if (!leader_) return lead(std::move(request));
    bool limitReached = false;
    leader_->mergeEventsFromEventRequest(*request, limitReached);
    if (!limitReached) return;
    if (const auto* identifiers = request->identifiers().get()) {
      // Those that the moved events share are stripped when the batch is printed.
      request->setIdentifiers(make<OrvantaIdentifiers>(identifiers->dictionaryValue()));
    }
    print();
    if (eventCount(*request) != 0) lead(std::move(request));
  }

  /// Prints what leads still.
  void finish() {
    if (leader_) print();
  }

 private:
  void lead(Ref<OrvantaEventRequest> request) {
    leader_ = std::move(request);
    if (eventCount(*leader_) >= OrvantaEventRequest::kBatchLimit) print();
  }

  void print() {
    const Value priority = leader_->priority().value_or(0);
    const Dictionary batch{{"storageId", leader_->storageId().value()},
                           {"idsContained", leader_->idsContained().value()},
                           {"events", eventCount(*leader_)},
                           {"priority", priority},
                           {"spec", specDictionary(*leader_->requestSpec())}};
    leader_ = nullptr;
    printJSON(batch, out_, /*pretty=*/false);
    out_.flush();  // whoever follows a growing file waits for it
  }

  std::ostream& out_;
  Ref<OrvantaEventRequest> leader_;
};

}  // namespace

ExitCode batch(const BatchOptions& options, const Streams& streams) {
  LineReader lines(options.files.empty() ? std::vector<std::string>{"-"} : options.files, streams);
  Folding folding(streams.out);
  std::uint64_t badLines = 0;
  while (streams.out && lines.next()) {
    if (lines.text().find_first_not_of(" \t") == std::string::npos) continue;
    std::string reason;
    if (auto request = restored(lines, reason)) {
      warn(lines, *request, streams.err);
      folding.take(std::move(request));
    } else {
      streams.err << "orvanta: " << lines.location() << ": " << escapeForTerminal(reason) << '\n';
      ++badLines;
    }
  }
  folding.finish();
  if (badLines == 0) return ExitCode::done;
  streams.err << "orvanta: " << badLines << (badLines == 1 ? " line was" : " lines were")
              << " left out\n";
  return ExitCode::rejected;
}

}  // namespace orvanta::tool
