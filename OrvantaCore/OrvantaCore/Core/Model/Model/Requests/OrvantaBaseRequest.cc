#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

#include "orvanta/Foundation/Description.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBaseRequest)

namespace {

PropertyValue<String> stringOrNil(std::optional<std::string_view> string) {
  return string ? PropertyValue<String>(*string) : nullptr;
}

}  // namespace

bool OrvantaBaseRequest::initWithDictionary(const Dictionary* dictionary) {
  if (!Super::initWithDictionary(dictionary)) return false;
  setUp();
  return true;
}

void OrvantaBaseRequest::setUp() {
  idsContained_ = Array();
  responseClass_ = OrvantaBaseResponseModel::classObject();
  HTTPMethod_ = OrvantaHTTPMethodTypePost;
}

Ref<OrvantaRequestSpec> OrvantaBaseRequest::requestSpec() const {
  constexpr double kTimeout = 20.0;
  auto spec = Ref<OrvantaRequestSpec>::adopt(new OrvantaRequestSpec);
  spec->HTTPBody = dictionaryValue();
  spec->HTTPMethod = stringOrNil(OrvantaHTTPMethodStringForType(HTTPMethod_));
  spec->path = stringOrNil(OrvantaRequestPathStringForType(path_));
  spec->queuePriority = queuePriority_;
  spec->timeoutInterval = kTimeout;
  return spec;
}

std::string OrvantaBaseRequest::description() const {
  return formatted(
      "Spec : %@\nStorage Id : %@\nContained Ids : %@",
      {requestSpec()->description(), describe(storageId_.raw()), describe(idsContained_.raw())});
}

}  // namespace orvanta
