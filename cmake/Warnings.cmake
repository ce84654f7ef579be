# Strict warnings for one of our own targets; third-party code is never compiled with them.
function(orvanta_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
endfunction()
