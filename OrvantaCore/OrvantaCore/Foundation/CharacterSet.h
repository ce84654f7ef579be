#pragma once

#include <string>
#include <string_view>

namespace orvanta {

/// A set of ASCII characters.
class CharacterSet {
 public:
  constexpr explicit CharacterSet(std::string_view members) { add(members); }

  static constexpr CharacterSet alphanumerics() {
    return CharacterSet("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789");
  }
  /// The characters allowed in the host of a URL.
  static constexpr CharacterSet urlHostAllowed() {
    return alphanumerics().with("!$&'()*+,-.:;=[]_~");
  }

  constexpr CharacterSet with(std::string_view more) const {
    CharacterSet sum = *this;
    sum.add(more);
    return sum;
  }
  constexpr bool contains(char character) const {
    return members_[static_cast<unsigned char>(character)];
  }

 private:
  constexpr void add(std::string_view members) {
    for (const char character : members) members_[static_cast<unsigned char>(character)] = true;
  }

  bool members_[256] = {};
};

/// Returns a copy with '%' and two uppercase hex digits for each byte outside the set.
std::string percentEncoded(std::string_view string, const CharacterSet& allowed);
/// Returns a copy with the byte for each '%' and two hex digits. A '%' without them stays.
std::string percentDecoded(std::string_view string);

}  // namespace orvanta
