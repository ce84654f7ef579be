#include "orvanta/Linux/PictureLibrary.h"

#include <dlfcn.h>

#include <cstdarg>
#include <stdexcept>
#include <string>

namespace orvanta {

namespace {

void ignoreMessage(int, const char*, std::va_list) {}

void* orThrow(void* found) {
  if (found == nullptr)
    throw std::runtime_error(std::string("no picture can be read: ") + dlerror());
  return found;
}

PictureLibrary load() {
  void* const library = orThrow(dlopen("libgd.so.3", RTLD_NOW | RTLD_LOCAL));
  PictureLibrary functions{};
#define ORVANTA_PICTURE_FUNCTION(name) \
  functions.name = reinterpret_cast<decltype(&::name)>(orThrow(dlsym(library, #name)));
  ORVANTA_PICTURE_FUNCTIONS(ORVANTA_PICTURE_FUNCTION)
#undef ORVANTA_PICTURE_FUNCTION
  functions.gdSetErrorMethod(ignoreMessage);
  return functions;
}

}  // namespace

const PictureLibrary& PictureLibrary::loaded() {
  static const PictureLibrary library = load();
  return library;
}

}  // namespace orvanta
