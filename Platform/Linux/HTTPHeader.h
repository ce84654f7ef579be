#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

/// Returns a copy with '?' in place of each byte of a control character (C0, DEL, C1) and each byte
/// that is not valid UTF-8.
std::string replaceUnprintable(std::string_view string);

/// Parses a Content-Type header as a response's MIME type: in lower case, without parameters. None
/// unless it is a "type/subtype" of RFC 9110 tokens of up to 127 characters each.
std::optional<std::string> mimeTypeOfHeader(std::string_view contentType);

/// Whether each of the codings that a Content-Encoding or Transfer-Encoding header lists is one
/// that a transfer undoes: gzip, deflate, chunked, or none at all.
bool hasSupportedCodings(std::string_view headerValue);

}  // namespace orvanta
