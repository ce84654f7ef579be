#include <cmath>
#include <string>

#include "fuzzer.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Events/OrvantaErrorEvent.h"
#include "orvanta/Model/Events/OrvantaPushOpenedEvent.h"
#include "orvanta/Model/Events/OrvantaWebViewActionEvent.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Model/Requests/OrvantaEventRequest.h"
#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"

// The input's first line names a model class (any other text picks one), the rest is the JSON text
// of a dictionary.

namespace orvanta::fuzzing {

namespace {

const Class& pickedClass(std::string_view line) {
  if (const Class* named = modelClassNamed(line)) return *named;
  const auto classes = modelClasses();
  std::size_t sum = 0;
  for (const char c : line) sum += static_cast<unsigned char>(c);
  return *classes[sum % classes.size()];
}

/// Whether a model that a value holds, at any depth, fits; dictionaries hold none.
template <class Fits>
bool anyModel(const Value& value, const Fits& fits) {
  if (const Array* array = value.array()) {
    for (const Value& element : *array) {
      if (anyModel(element, fits)) return true;
    }
  }
  auto* model = value.as<OrvantaBaseModel>();
  if (model == nullptr) return false;
  if (fits(*model)) return true;
  for (const Class* cls = &model->isa(); cls->parent() != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      if (anyModel(property.valueIn(*model), fits)) return true;
    }
  }
  return false;
}

/// Whether a date is read back as another one: it may lose a millisecond, since it is kept in
/// seconds and truncated.
bool isInexact(const Date& date) {
  return Date::fromMilliseconds(date.milliseconds()).milliseconds() != date.milliseconds();
}

/// Puts a whole second, or 1970 where that is inexact too, in the place of each inexact date of a
/// model, so that all the rest of it can be compared.
bool makeDatesExact(OrvantaBaseModel& model) {
  for (const Class* cls = &model.isa(); cls->parent() != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      const auto date = property.valueIn(model).date();
      if (!date || !isInexact(*date)) continue;
      const Date second{std::trunc(date->secondsSince1970)};
      property.assignTo(model, isInexact(second) ? Date{} : second);
    }
  }
  return false;  // on to the next model
}

/// Whether a property's value is not written though it was read: the marker of an integer that was
/// not given.
bool isLost(const Property& property, const OrvantaBaseModel& model,
            const OrvantaBaseModel& fresh) {
  const Value value = property.valueIn(model);
  const Value initial = property.valueIn(fresh);
  return isUnsetInteger(value) && !isUnsetInteger(initial) && !initial.isNil();
}

/// Dotted keys are written flat, and an error event reads nothing.
bool isLostInWriting(const OrvantaBaseModel& model) {
  if (model.isKindOf(OrvantaPushObject::classObject()) ||
      model.isKindOf(OrvantaErrorEvent::classObject())) {
    return true;
  }
  const auto fresh = makeModel(model.isa(), nullptr);
  for (const Class* cls = &model.isa(); cls->parent() != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      if (isLost(property, model, *fresh)) return true;
    }
  }
  return false;
}

/// The free fields of a web view's event may name a class that the event is not of.
bool isNamedFreely(const OrvantaBaseModel& model) {
  return model.isKindOf(OrvantaWebViewActionEvent::classObject());
}

/// A model of a dictionary, nil when that is refused. Only push objects may throw, and one thing.
Ref<OrvantaBaseModel> read(const Class& cls, const Dictionary& dictionary) {
  const RefusalRecorder recorder;
  Ref<OrvantaBaseModel> model;
  try {
    model = makeModel(cls, &dictionary);
  } catch (const Exception& exception) {
    require(cls.isSubclassOf(OrvantaPushObject::classObject()) &&
                exception.name() == Exception::kUndefinedKey,
            "only a push object's undefined key is thrown");
  }
  require(model || recorder.refusal().has_value(), "what refuses a dictionary tells why");
  if (!model) require(!recorder.refusal()->description().empty(), "a reason has a text");
  return model;
}

void requireReadBack(const OrvantaBaseModel& model, const Dictionary& written) {
  const auto back = read(model.isa(), written);
  require(bool(back), "what was written can be read");
  require(Value(back->dictionaryValue()) == Value(written), "what was read is written the same");
  const auto copy = model.copyWithZone();
  require(copy && model.isEqual(copy) && copy->isEqual(Value(&model)), "a copy is equal");
  require(copy->hash() == model.hash(), "a copy hashes alike");
}

void requireReadBackWithClasses(const OrvantaBaseModel& model) {
  const Dictionary written = model.dictionaryValueWithClassInfo();
  require(written["klazz"] == Value(model.isa().name), "an object names its class");
  const auto back = read(model.isa(), written);
  require(back && Value(back->dictionaryValueWithClassInfo()) == Value(written),
          "what was read is written the same, with classes");
}

std::size_t eventCount(const OrvantaEventRequest& request) {
  const Array* events = request.events().get();
  return events != nullptr ? events->size() : 0;
}

/// Folds a request of the same dictionary into the first.
void requireMerged(OrvantaEventRequest& first, const Dictionary& dictionary) {
  const auto second = read(first.isa(), dictionary);
  auto& folded = static_cast<OrvantaEventRequest&>(*second);
  const std::size_t before = eventCount(first);
  bool limitReached = false;
  first.mergeEventsFromEventRequest(folded, limitReached);
  require(eventCount(first) + eventCount(folded) == 2 * before, "no event is lost");
  require(limitReached == (eventCount(first) == OrvantaEventRequest::kBatchLimit),
          "a full batch is told");
  first.requestSpec();
  first.priority();
}

/// What some classes do with what they hold.
void use(const Value& value) {
  if (const auto* request = value.as<OrvantaBaseRequest>()) {
    const auto spec = request->requestSpec();
    require(bool(spec), "a request has a spec");
    spec->description();
    request->priority();
  }
  if (auto* push = value.as<OrvantaPushObject>()) {
    push->setInteractiveActionIdentifier("a");
    OrvantaPushOpenedEvent::eventWithPushObject(push)->dictionaryValue();
  }
  if (const auto* counts = value.as<OrvantaInboxCountResponse>()) counts->countForStatus(7);
}

}  // namespace

void mapping(std::string_view input) {
  const std::size_t line = input.find('\n');
  if (line == std::string_view::npos) return;
  const Value parsed = parseJSON(input.substr(line + 1));
  const Dictionary* dictionary = parsed.dictionary();
  if (dictionary == nullptr) return;
  const auto model = read(pickedClass(input.substr(0, line)), *dictionary);
  if (!model) return;

  const Value value(model);
  anyModel(value, makeDatesExact);
  const Dictionary written = model->dictionaryValue();
  if (!anyModel(value, isLostInWriting)) {
    requireReadBack(*model, written);
    if (!anyModel(value, isNamedFreely)) requireReadBackWithClasses(*model);
  }
  require(model->isEqual(value) && model->hash() == written.hash(), "an object equals itself");
  model->copyWithZone();
  model->description();
  model->debugDescription();
  use(value);
  if (auto* request = value.as<OrvantaEventRequest>()) requireMerged(*request, *dictionary);
}

}  // namespace orvanta::fuzzing

ORVANTA_FUZZER(mapping)
