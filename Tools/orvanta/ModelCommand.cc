#include <algorithm>
#include <ostream>

#include "orvanta/Inspection/Models.h"
#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

/// How an update ended: its result, or an exception.
enum class Outcome { yes, no, thrown };

template <class Update>
Outcome outcomeOf(Update&& update) {
  try {
    return update() ? Outcome::yes : Outcome::no;
  } catch (const Exception&) {
    return Outcome::thrown;
  }
}

void printRejection(const RefusalRecorder& recorder, const Class& cls, const Streams& streams) {
  streams.err << "orvanta: " << escapeForTerminal(inspection::rejectionReason(recorder, cls))
              << '\n';
}

}  // namespace

ExitCode model(const ModelOptions& options, const Streams& streams) {
  const Class& cls = inspection::classNamed(options.className);
  const auto readsStandardIn = std::count(options.updates.begin(), options.updates.end(), "-") +
                               (!options.init && options.file == "-" ? 1 : 0);
  if (readsStandardIn > 1) {
    throw CommandError(ExitCode::usage, "standard input can be read only once");
  }

  RefusalRecorder recorder;
  const auto object = Ref<OrvantaBaseModel>::adopt(cls.alloc());
  const Outcome initialized = outcomeOf([&] {
    if (options.init) return object->init();
    const Input input = readInput(options.file, streams);
    return object->initWithDictionary(&input.object);
  });
  if (initialized != Outcome::yes) {
    printRejection(recorder, cls, streams);
    return ExitCode::rejected;
  }
  for (const std::string& file : options.updates) {
    const Input input = readInput(file, streams);
    recorder.reset();
    const Outcome updated = outcomeOf([&] { return object->updateWithDictionary(&input.object); });
    if (updated == Outcome::yes) continue;
    printRejection(recorder, cls, streams);
    if (updated == Outcome::thrown) return ExitCode::rejected;
  }
  const Dictionary result = object->dictionaryValueWithPolicy(options.classInfo);
  inspection::checkWritable(result, cls);
  printJSON(result, streams.out, options.pretty);
  return ExitCode::done;
}

}  // namespace orvanta::tool
