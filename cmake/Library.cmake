# orvanta_library(<target> SOURCES <glob> INCLUDE <folder> LINK <targets>...)
#
# A static library of every source that <glob> matches at any depth below the calling folder.
# EXCLUDE <regex> leaves sources out. With no source yet the target is an INTERFACE library, so
# that the targets which link it configure all the same.
function(orvanta_library target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "SOURCES;EXCLUDE;INCLUDE" "LINK")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${arg_SOURCES}")
  if(arg_EXCLUDE)
    list(FILTER sources EXCLUDE REGEX "${arg_EXCLUDE}")
  endif()

  if(sources)
    set(scope PUBLIC)
    add_library(${target} STATIC ${sources})
    orvanta_warnings(${target})
  else()
    set(scope INTERFACE)
    add_library(${target} INTERFACE)
  endif()

  if(arg_INCLUDE)
    target_include_directories(${target} ${scope} "${arg_INCLUDE}")
  endif()
  target_compile_features(${target} ${scope} cxx_std_20)
  target_link_libraries(${target} ${scope} ${arg_LINK})
endfunction()
