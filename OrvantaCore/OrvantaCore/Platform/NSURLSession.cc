#include "orvanta/Platform/NSURLSession.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"

namespace orvanta {

std::string NSURLResponse::description() const {
  const std::string url = " { URL: " + describe(parts_.url) + " }";
  if (!parts_.statusCode) return "<NSURLResponse>" + url;
  Dictionary fields;
  for (const auto& [name, value] : parts_.headers) fields.set(name, Array{Value(value)});
  std::string headers = describe(fields);
  headers.erase(0, 1);  // the opening brace is part of the format below
  return "<NSHTTPURLResponse>" + url + " { Status Code: " + std::to_string(*parts_.statusCode) +
         ", Headers {" + headers + " }";
}

}  // namespace orvanta
