option(ORVANTA_WARNINGS_AS_ERRORS "A warning ends the build" ${PROJECT_IS_TOP_LEVEL})

# Strict warnings for one of our own targets; third-party code is never compiled with them.
function(orvanta_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
  if(ORVANTA_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
