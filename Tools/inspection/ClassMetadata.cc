#include "orvanta/Inspection/ClassMetadata.h"

#include "orvanta/Model/Events/OrvantaEvent.h"
#include "orvanta/Model/Requests/OrvantaEventRequest.h"

namespace orvanta::inspection {

ClassMetadata::ClassMetadata(const Class& cls) {
  const Value model = makeModel(cls, nullptr);
  if (const auto* event = model.as<OrvantaEvent>()) {
    isEvent = true;
    const PropertyValue<String> code = event->eventKey();
    if (code.get()) eventCode.emplace(*code.get());
    priority = event->priority();
  }
  if (const auto* request = model.as<OrvantaBaseRequest>()) {
    isRequest = true;
    pathCode = request->path();
    path = OrvantaRequestPathStringForType(pathCode);
    method = OrvantaHTTPMethodStringForType(request->HTTPMethod());
    responseClass = request->responseClass().get();
    if (!cls.isSubclassOf(OrvantaEventRequest::classObject())) priority = request->priority();
  }
}

}  // namespace orvanta::inspection
