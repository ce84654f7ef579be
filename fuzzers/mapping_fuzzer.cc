#include <cmath>
#include <string>

#include "fuzzer.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Events/OrvantaErrorEvent.h"
#include "orvanta/Model/Events/OrvantaPushOpenedEvent.h"
#include "orvanta/Model/Events/OrvantaWebViewActionEvent.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "orvanta/Model/Requests/EventBatchQueue.h"
#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"

// The first line of the input names a model class (any other line selects one), the rest is a
// dictionary as JSON.

namespace orvanta::fuzzing {

namespace {

const Class& selectClass(std::string_view line) {
  if (const Class* named = modelClassNamed(line)) return *named;
  const auto classes = modelClasses();
  std::size_t sum = 0;
  for (const char c : line) sum += static_cast<unsigned char>(c);
  return *classes[sum % classes.size()];
}

/// Returns whether a model in the value, at any depth, satisfies the predicate. Dictionaries
/// contain no models.
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

/// Returns whether a date does not survive a round trip: dates are stored in seconds and truncated,
/// so one can lose a millisecond.
bool isInexact(const Date& date) {
  return Date::fromMilliseconds(date.milliseconds()).milliseconds() != date.milliseconds();
}

/// Replaces each inexact date of a model by a whole second, or by 1970 if that is inexact too, so
/// that the rest of the model can be compared.
bool makeDatesExact(OrvantaBaseModel& model) {
  for (const Class* cls = &model.isa(); cls->parent() != nullptr; cls = cls->parent()) {
    for (const Property& property : cls->properties) {
      const auto date = property.valueIn(model).date();
      if (!date || !isInexact(*date)) continue;
      const Date second{std::trunc(date->secondsSince1970)};
      property.assignTo(model, isInexact(second) ? Date{} : second);
    }
  }
  return false;  // continue with the next model
}

/// Returns whether a value that was read is not written: the marker of an unset integer.
bool isLost(const Property& property, const OrvantaBaseModel& model,
            const OrvantaBaseModel& fresh) {
  const Value value = property.valueIn(model);
  const Value initial = property.valueIn(fresh);
  return isUnsetInteger(value) && !isUnsetInteger(initial) && !initial.isNil();
}

/// Returns whether writing a model loses data: dotted keys are written flat, error events read
/// nothing, and unset integers are left out.
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

/// The free-form fields of a web view event can name a class other than the event's own.
bool isNamedFreely(const OrvantaBaseModel& model) {
  return model.isKindOf(OrvantaWebViewActionEvent::classObject());
}

/// Reads a model; returns nil if it rejects the dictionary. Only push objects may throw, and only
/// for an undefined key.
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

/// Merges another request that is read from the same dictionary into the first.
void requireMerged(OrvantaEventRequest& first, const Dictionary& dictionary) {
  const auto second = read(first.isa(), dictionary);
  auto& merged = static_cast<OrvantaEventRequest&>(*second);
  const std::size_t before = eventCount(first);
  bool limitReached = false;
  first.mergeEventsFromEventRequest(merged, limitReached);
  require(eventCount(first) + eventCount(merged) == 2 * before, "no event is lost");
  require(limitReached == (eventCount(first) == OrvantaEventRequest::kBatchLimit),
          "a full batch is told");
  first.requestSpec();
  first.priority();
}

/// Calls what some classes offer beyond reading and writing.
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
  const auto model = read(selectClass(input.substr(0, line)), *dictionary);
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
