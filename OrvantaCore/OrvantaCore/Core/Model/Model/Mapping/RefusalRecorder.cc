#include "orvanta/Model/Mapping/RefusalRecorder.h"

#include "orvanta/Model/Mapping/Class.h"

namespace orvanta {

std::string Refusal::description() const {
  std::string text;
  for (const Step& step : steps) {
    if (!text.empty()) text += " > ";
    text.append(step.cls->name);
    if (step.keyPath.empty()) continue;
    text.append(" \"").append(step.keyPath).append("\" (").append(step.property).append(")");
  }
  return text.append(": ").append(kind).append(", ").append(reason);
}

void RefusalRecorder::record(const Class& cls, std::string_view keyPath, std::string_view property,
                             std::string_view kind, std::string_view reason) {
  if (!refusal_) refusal_.emplace(Refusal{{}, std::string(kind), std::string(reason)});
  refusal_->steps.insert(refusal_->steps.begin(),
                         {&cls, std::string(keyPath), std::string(property)});
}

}  // namespace orvanta
