#pragma once

#include <cstring>
#include <type_traits>

namespace orvanta {

/// std::bit_cast, which some C++ libraries lack.
template <class To, class From>
requires(sizeof(To) == sizeof(From) && std::is_trivially_copyable_v<From>) inline To
    bitCast(const From& from) noexcept {
  To to;
  std::memcpy(&to, &from, sizeof(From));
  return to;
}

}  // namespace orvanta
