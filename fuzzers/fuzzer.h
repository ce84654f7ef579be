#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

// What the targets share. A target is a function that takes any bytes and throws when something
// that always holds did not; libFuzzer runs it from a program of its own, the tests from theirs.

namespace orvanta::fuzzing {

void json(std::string_view input);
void mapping(std::string_view input);
void pipeline(std::string_view input);

inline void require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

}  // namespace orvanta::fuzzing

/// Stands once at the end of a target's source.
#ifdef ORVANTA_LIBFUZZER
#define ORVANTA_FUZZER(target_)                                                               \
  extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {         \
    ::orvanta::fuzzing::target_(std::string_view(reinterpret_cast<const char*>(data), size)); \
    return 0;                                                                                 \
  }
#else
#define ORVANTA_FUZZER(target_)
#endif
