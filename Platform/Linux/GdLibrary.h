#pragma once

#include <gd.h>

namespace orvanta {

/// The functions of libgd in use, under their own names. libgd depends on some forty libraries, and
/// loading those takes longer than handling most notifications; so it is loaded with the first
/// image rather than with the program.
struct GdLibrary {
// clang-format off
#define ORVANTA_GD_FUNCTIONS(X)                                                           \
  X(gdFree) X(gdImageCreateFromGifPtr) X(gdImageCreateFromJpegPtrEx)                           \
  X(gdImageCreateFromWebpPtr) X(gdImageCreateTrueColor) X(gdImageDestroy)                      \
  X(gdImageJpegPtr) X(gdImagePaletteToTrueColor) X(gdSetErrorMethod)
// clang-format on
// NOLINTNEXTLINE(bugprone-macro-parentheses): a name
#define ORVANTA_GD_FUNCTION(name) decltype(&::name) name;
  ORVANTA_GD_FUNCTIONS(ORVANTA_GD_FUNCTION)
#undef ORVANTA_GD_FUNCTION

  /// Loads the library at the first call; throws std::runtime_error if it is not installed. libgd's
  /// messages, which it prints to stderr by default, are dropped.
  static const GdLibrary& loaded();
};

}  // namespace orvanta
