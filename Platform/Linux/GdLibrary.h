#pragma once

#include <gd.h>

namespace orvanta {

/// The functions of libgd that are used, under their names. The library brings some forty others
/// along, and loading those takes longer than most notifications do; so it is loaded when the first
/// picture is.
struct GdLibrary {
// clang-format off
#define ORVANTA_GD_FUNCTIONS(X)                                                           \
  X(gdFree) X(gdImageCreateFromGifPtr) X(gdImageCreateFromJpegPtrEx)                           \
  X(gdImageCreateFromWebpPtr) X(gdImageCreateTrueColor) X(gdImageDestroy)                      \
  X(gdImageFilledRectangle) X(gdImageJpegPtr) X(gdImagePaletteToTrueColor) X(gdSetErrorMethod)
// clang-format on
// NOLINTNEXTLINE(bugprone-macro-parentheses): a name
#define ORVANTA_GD_FUNCTION(name) decltype(&::name) name;
  ORVANTA_GD_FUNCTIONS(ORVANTA_GD_FUNCTION)
#undef ORVANTA_GD_FUNCTION

  /// Loaded at the first call; throws std::runtime_error when the library is not installed. It
  /// prints nothing.
  static const GdLibrary& loaded();
};

}  // namespace orvanta
