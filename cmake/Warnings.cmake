option(ORVANTA_WARNINGS_AS_ERRORS "A warning ends the build" ON)

# Strict warnings for one of our own targets; third-party code is never compiled with them.
function(orvanta_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    # A property that is declared by its macro may implement a protocol's accessor.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-inconsistent-missing-override>)
  if(ORVANTA_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
