#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvanta {

/// The place of the first byte in eight that a JSON string cannot hold as it is (below a space, a
/// quote, a backslash), or that is `other`, or above ASCII where that is asked for; 8 for none.
template <char kOther, bool kAboveASCII>
inline std::size_t firstSpecialOfEight(const char* at) {
  constexpr std::uint64_t kOnes = 0x0101010101010101U;
  constexpr std::uint64_t kHighs = 0x8080808080808080U;
  std::uint64_t word;
  std::memcpy(&word, at, sizeof word);
  // Subtracting marks the high bit of bytes below the subtrahend. A borrow may mark bytes behind
  // the first marked one, never before it. A byte above ASCII is none of those looked for.
  std::uint64_t marked =
      (word - kOnes * ' ') | ((word ^ (kOnes * '"')) - kOnes) | ((word ^ (kOnes * '\\')) - kOnes);
  if constexpr (kOther != 0) {
    marked |= (word ^ (kOnes * static_cast<unsigned char>(kOther))) - kOnes;
  }
  marked &= ~word;
  if constexpr (kAboveASCII) marked |= word;
  marked &= kHighs;
  return marked == 0 ? 8 : static_cast<std::size_t>(std::countr_zero(marked)) / 8;
}

}  // namespace orvanta
