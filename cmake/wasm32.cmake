# Toolchain file for WebAssembly, with the emscripten that is on the path.
execute_process(COMMAND em-config EMSCRIPTEN_ROOT
  OUTPUT_VARIABLE root OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
include("${root}/cmake/Modules/Platform/Emscripten.cmake")
