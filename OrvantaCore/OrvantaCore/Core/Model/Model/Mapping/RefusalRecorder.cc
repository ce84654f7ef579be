#include "orvanta/Model/Mapping/RefusalRecorder.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/Class.h"
#include "orvanta/Model/Mapping/internal/MappingPlan.h"

namespace orvanta {

std::string Refusal::description() const {
  std::string line;
  for (const Step& step : steps) {
    if (!line.empty()) line += " > ";
    line.append(step.cls->name);
    if (step.keyPath.empty()) continue;
    line.append(" \"").append(step.keyPath).append("\" (").append(step.property).append(")");
  }
  return line.append(": ").append(kind).append(", ").append(reason);
}

namespace {

/// Returns the value at a path, or the first value on the way that has no keys; `reason` then names
/// the key. In an array on the way the first such element counts.
Value reachedAt(const Value& from, std::span<const Value> path, std::string& reason) {
  if (path.empty()) return from;
  if (const Array* array = from.array()) {
    for (const Value& element : *array) {
      Value reached = reachedAt(element, path, reason);
      if (!reason.empty()) return reached;
    }
    return from;
  }
  try {
    return reachedAt(valueForKeyPath(from, path.first(1)), path.subspan(1), reason);
  } catch (const Exception&) {
    reason = std::string("which has no key \"").append(*path.front().string()).append("\"");
    return from;
  }
}

std::string_view rejectionReason(const MappingEntry& entry) {
  switch (entry.converter) {
    case Converter::boolean:
      return "but a boolean is read from numbers and text only";
    case Converter::url:
      return "but a URL is read from text only";
    case Converter::date:
      return "but a date is read from a number of milliseconds only";
    case Converter::none:
      break;
  }
  return entry.property == nullptr ? "for a property that the class does not have"
                                   : "but a number is read from numbers and text only";
}

}  // namespace

void RefusalRecorder::record(const Class& cls, std::string_view keyPath, std::string_view property,
                             std::string_view kind, std::string_view reason) {
  if (!refusal_) refusal_.emplace(Refusal{{}, std::string(kind), std::string(reason)});
  refusal_->steps.insert(refusal_->steps.begin(),
                         {&cls, std::string(keyPath), std::string(property)});
}

void RefusalRecorder::record(const Class& cls, const MappingEntry& entry,
                             const Dictionary& dictionary) {
  const std::string_view keyPath = *entry.key.string();
  std::string reason;
  const Value value = reachedAt(dictionary, splitKeyPath(keyPath), reason);
  if (reason.empty()) reason = rejectionReason(entry);
  record(cls, keyPath, *entry.propertyName.string(), value.kindName(), reason);
}

void RefusalRecorder::recordUndefinedKey(const Class& cls, std::span<const Value> keyPath,
                                         std::string_view property, const Dictionary& dictionary) {
  std::string reason;
  const Value value = reachedAt(dictionary, keyPath, reason);
  reset();  // this ends the update, whatever failed before
  record(cls, joinedKeyPath(keyPath), property, value.kindName(), reason);
}

}  // namespace orvanta
