#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvanta {

/// Loads a T from any address, low byte first.
template <class T>
inline std::uint64_t loadAs(const char* at) {
  T loaded;
  std::memcpy(&loaded, at, sizeof loaded);
  return loaded;
}

/// Loads fewer than eight bytes, low byte first, without a loop: loads that overlap.
inline std::uint64_t loadUpToSeven(const char* at, std::size_t size) {
  if (size >= 4) {
    return loadAs<std::uint32_t>(at) | loadAs<std::uint32_t>(at + size - 4) << (8 * (size - 4));
  }
  if (size == 0) return 0;
  return loadAs<std::uint8_t>(at) | loadAs<std::uint8_t>(at + size / 2) << (8 * (size / 2)) |
         loadAs<std::uint8_t>(at + size - 1) << (8 * (size - 1));
}

/// Marks the bytes among eight (low byte first) that a JSON string contains only escaped: control
/// characters, quotes and backslashes, also kOther, and bytes above ASCII if kAboveASCII. The mark
/// is the byte's high bit. Only the lowest mark is exact; there may be false ones above it.
template <char kOther, bool kAboveASCII>
inline std::uint64_t specialsOfEight(std::uint64_t eight) {
  constexpr std::uint64_t kOnes = 0x0101010101010101U;
  constexpr std::uint64_t kHighs = 0x8080808080808080U;
  // A subtraction sets the high bit of bytes less than the subtrahend. Its borrow can set false
  // marks only above a true one. Bytes above ASCII, whose high bit is set anyway, are masked out.
  std::uint64_t marked = (eight - kOnes * ' ') | ((eight ^ (kOnes * '"')) - kOnes) |
                         ((eight ^ (kOnes * '\\')) - kOnes);
  if constexpr (kOther != 0) {
    marked |= (eight ^ (kOnes * static_cast<unsigned char>(kOther))) - kOnes;
  }
  marked &= ~eight;
  if constexpr (kAboveASCII) marked |= eight;
  return marked & kHighs;
}

/// Returns the index of the first such byte, 8 if there is none.
template <char kOther, bool kAboveASCII>
inline std::size_t firstSpecialOfEight(const char* at) {
  const std::uint64_t marked = specialsOfEight<kOther, kAboveASCII>(loadAs<std::uint64_t>(at));
  return marked == 0 ? 8 : static_cast<std::size_t>(std::countr_zero(marked)) / 8;
}

}  // namespace orvanta
