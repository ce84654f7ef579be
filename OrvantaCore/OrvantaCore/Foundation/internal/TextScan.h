#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvanta {

template <class T>
inline std::uint64_t loadAs(const char* at) {
  T loaded;
  std::memcpy(&loaded, at, sizeof loaded);
  return loaded;
}

/// Fewer than eight bytes as a number, the first one lowest.
inline std::uint64_t loadUpToSeven(const char* at, std::size_t size) {
  if (size >= 4) {
    return loadAs<std::uint32_t>(at) | loadAs<std::uint32_t>(at + size - 4) << (8 * (size - 4));
  }
  if (size == 0) return 0;
  return loadAs<std::uint8_t>(at) | loadAs<std::uint8_t>(at + size / 2) << (8 * (size / 2)) |
         loadAs<std::uint8_t>(at + size - 1) << (8 * (size - 1));
}

/// Of eight bytes, the first one lowest: marks those that a JSON string cannot hold as they are
/// (below a space, a quote, a backslash), or that are `other`, or above ASCII where that is asked
/// for. The lowest mark is right; there may be wrong ones above it, but never without it.
template <char kOther, bool kAboveASCII>
inline std::uint64_t specialsOfEight(std::uint64_t eight) {
  constexpr std::uint64_t kOnes = 0x0101010101010101U;
  constexpr std::uint64_t kHighs = 0x8080808080808080U;
  // Subtracting marks the high bit of bytes below the subtrahend. A borrow may mark bytes behind
  // the first marked one, never before it. A byte above ASCII is none of those looked for.
  std::uint64_t marked = (eight - kOnes * ' ') | ((eight ^ (kOnes * '"')) - kOnes) |
                         ((eight ^ (kOnes * '\\')) - kOnes);
  if constexpr (kOther != 0) {
    marked |= (eight ^ (kOnes * static_cast<unsigned char>(kOther))) - kOnes;
  }
  marked &= ~eight;
  if constexpr (kAboveASCII) marked |= eight;
  return marked & kHighs;
}

/// The place of the first of them, 8 for none.
template <char kOther, bool kAboveASCII>
inline std::size_t firstSpecialOfEight(const char* at) {
  const std::uint64_t marked = specialsOfEight<kOther, kAboveASCII>(loadAs<std::uint64_t>(at));
  return marked == 0 ? 8 : static_cast<std::size_t>(std::countr_zero(marked)) / 8;
}

}  // namespace orvanta
