#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// ASCII letters in lower case.
std::string lowered(std::string_view text);

/// Without white space at both ends.
std::string_view trimmed(std::string_view text);

/// The text with a question mark for each byte that is no UTF-8 or belongs to a control character.
std::string printable(std::string_view text);

/// The value of a Content-Type header as a response's MIME type: lower case, without parameters;
/// none when it is empty or no "type/subtype" of RFC 9110 tokens of up to 127 characters each.
std::optional<std::string> mimeTypeOfHeader(std::string_view contentType);

}  // namespace orvanta
