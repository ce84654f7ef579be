#include <ostream>

#include "Commands.h"
#include "Foundation/JSON.h"
#include "Lines.h"
#include "Requests/OrvantaEventRequest.h"
#include "Text.h"

namespace orvanta::tool {

namespace {

std::size_t eventCount(const OrvantaEventRequest& request) {
  const Array* events = request.events().get();
  return events != nullptr ? events->size() : 0;
}

/// The request of a line, or why there is none.
Ref<OrvantaEventRequest> restored(const Lines& line, std::string& reason) {
  const auto refuse = [&](std::string why) {
    reason = std::move(why);
    return nullptr;
  };
  const Class& cls = OrvantaEventRequest::classObject();
  if (line.isTooLong()) {
    return refuse("the line has more than " + std::to_string(Lines::kLongestLine) + " bytes");
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
    return refuse(R"("klazz" is not )" + std::string(cls.name));
  }
  const RefusalRecorder recorder;
  auto request = make<OrvantaEventRequest>(*dictionary);
  if (!request) return refuse(refusalText(recorder, cls));
  if (eventCount(*request) == 0) return refuse("\"events\" holds no event");
  if (!isValidJSONObject(request->dictionaryValue())) {
    return refuse("it holds a number without a JSON text, such as an infinite one");
  }
  request->setStorageId(line.number());
  return request;
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
  }

  std::ostream& out_;
  Ref<OrvantaEventRequest> leader_;
};

}  // namespace

ExitCode batch(const BatchOptions& options, const Streams& streams) {
  Lines lines(options.files.empty() ? std::vector<std::string>{"-"} : options.files, streams);
  Folding folding(streams.out);
  std::uint64_t badLines = 0;
  while (streams.out && lines.next()) {
    if (lines.text().find_first_not_of(" \t") == std::string::npos) continue;
    std::string reason;
    if (auto request = restored(lines, reason)) {
      folding.take(std::move(request));
    } else {
      streams.err << "orvanta: " << lines.place() << ": " << printable(reason) << '\n';
      ++badLines;
    }
  }
  folding.finish();
  if (badLines == 0) return ExitCode::done;
  streams.err << "orvanta: " << badLines << (badLines == 1 ? " line was" : " lines were")
              << " left out\n";
  return ExitCode::notMade;
}

}  // namespace orvanta::tool
