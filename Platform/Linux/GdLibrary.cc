#include "orvanta/Linux/GdLibrary.h"

#include <dlfcn.h>

#include <cstdarg>
#include <stdexcept>
#include <string>

namespace orvanta {

namespace {

void ignoreMessage(int, const char*, std::va_list) {}

void* orThrow(void* symbol) {
  if (symbol == nullptr) {
    throw std::runtime_error(std::string("no picture can be read: ") + dlerror());
  }
  return symbol;
}

GdLibrary load() {
  void* const library = orThrow(dlopen("libgd.so.3", RTLD_NOW | RTLD_LOCAL));
  GdLibrary functions{};
#define ORVANTA_GD_FUNCTION(name) \
  functions.name = reinterpret_cast<decltype(&::name)>(orThrow(dlsym(library, #name)));
  ORVANTA_GD_FUNCTIONS(ORVANTA_GD_FUNCTION)
#undef ORVANTA_GD_FUNCTION
  functions.gdSetErrorMethod(ignoreMessage);
  return functions;
}

}  // namespace

const GdLibrary& GdLibrary::loaded() {
  static const GdLibrary library = load();
  return library;
}

}  // namespace orvanta
