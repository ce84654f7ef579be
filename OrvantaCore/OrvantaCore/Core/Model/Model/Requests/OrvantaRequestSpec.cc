#include "orvanta/Model/Requests/OrvantaRequestSpec.h"

#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/RealText.h"

namespace orvanta {

std::string OrvantaRequestSpec::description() const {
  return formatted(
      "\nBase URL : %@\nPath : %@\nMethod : %@\nHeaders : %@\nBody : %@\nTimeout : %@\nPriority : "
      "%@",
      {describe(baseURL.raw()), describe(path.raw()), describe(HTTPMethod.raw()),
       describe(HTTPHeaders), describe(HTTPBody), realWithDecimals(timeoutInterval, 6),
       std::to_string(queuePriority)});
}

}  // namespace orvanta
