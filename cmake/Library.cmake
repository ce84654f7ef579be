# orvanta_library(<target> AREA <area> FOLDER <folder> [FAST <source>...] [SMALL <source>...]
#                 [OTHER <source>...] [LINK <target>...])
#
# A static library of the sources below <folder>; a source may be a pattern such as "Push/*.cc". A
# release compiles FAST sources for speed and SMALL ones for size; OTHER ones are not the library's.
# One that is in none of the lists, or in two, ends the configuration.
#
# The folder's headers are included as "orvanta/<area>/<header>.h": include/<area>/ is an include
# root of this target alone, and include/<area>/orvanta/<area> a link to the folder. A target can
# include only what it links.
function(orvanta_library target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "AREA;FOLDER" "FAST;SMALL;OTHER;LINK")
  foreach(list IN ITEMS FAST SMALL OTHER)
    list(TRANSFORM arg_${list} PREPEND "${arg_FOLDER}/")
    set(${list})
    if(arg_${list})
      file(GLOB ${list} CONFIGURE_DEPENDS ${arg_${list}})
    endif()
  endforeach()
  file(GLOB_RECURSE unlisted CONFIGURE_DEPENDS "${arg_FOLDER}/*.cc")
  set(listed ${FAST} ${SMALL} ${OTHER})
  list(LENGTH listed entries)
  list(REMOVE_ITEM unlisted ${listed})
  list(REMOVE_DUPLICATES listed)
  list(LENGTH listed sources)
  if(unlisted OR NOT entries EQUAL sources)
    message(FATAL_ERROR "${target}: each source must be in one list; in none: ${unlisted}")
  endif()

  add_library(${target} STATIC ${FAST} ${SMALL})
  orvanta_warnings(${target})
  set_source_files_properties(${SMALL} PROPERTIES COMPILE_OPTIONS "$<$<CONFIG:Release>:-Os>")
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/include/${arg_AREA}")
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PUBLIC ${arg_LINK})
endfunction()
