#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

// Fuzz targets. A target takes arbitrary bytes and throws if an invariant is violated. Each is
// linked into a libFuzzer program of its own and into the tests.

namespace orvanta::fuzzing {

void json(std::string_view input);
void mapping(std::string_view input);
void pipeline(std::string_view input);

inline void require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

}  // namespace orvanta::fuzzing

/// Defines libFuzzer's entry point; used once, at the end of a target's source.
#ifdef ORVANTA_LIBFUZZER
#define ORVANTA_FUZZER(target_)                                                               \
  extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {         \
    ::orvanta::fuzzing::target_(std::string_view(reinterpret_cast<const char*>(data), size)); \
    return 0;                                                                                 \
  }
#else
#define ORVANTA_FUZZER(target_)
#endif
