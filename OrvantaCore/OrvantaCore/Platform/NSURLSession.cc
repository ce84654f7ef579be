#include "orvanta/Platform/NSURLSession.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"

namespace orvanta {

std::string NSURLResponse::description() const {
  const std::string url = " { URL: " + describe(parts_.url) + " }";
  if (!parts_.statusCode) return "<NSURLResponse>" + url;
  Dictionary fields;
  for (const auto& [name, value] : parts_.headers) fields.set(name, Array{Value(value)});
  std::string text = describe(fields);
  text.erase(0, 1);  // the dictionary's bracket is the format's
  return "<NSHTTPURLResponse>" + url + " { Status Code: " + std::to_string(*parts_.statusCode) +
         ", Headers {" + text + " }";
}

}  // namespace orvanta
