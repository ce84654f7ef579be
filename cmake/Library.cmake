# orvanta_library(<target> AREA <area> FOLDER <folder> [FAST <source>...] [SMALL <source>...]
#                 [OTHER <source>...] [LINK <target>...]
#                 [PACKAGE <name> HEADERS <header>... [COMPONENT <component>]])
#
# A static library of the sources below <folder>; a source may be a pattern such as "Push/*.cc". A
# release compiles FAST sources for speed and SMALL ones for size; OTHER ones are not the library's.
# One that is in none of the lists, or in two, ends the configuration.
#
# The folder's headers are included as "orvanta/<area>/<header>.h": include/<area>/ is an include
# root of this target alone, and include/<area>/orvanta/<area> a link to the folder. A target can
# include only what it links.
#
# With PACKAGE the library is also Orvanta::<name>, and is installed with HEADERS, its public headers
# and the internal ones that those need; a header may be a pattern. Packages with a COMPONENT have
# targets and dependencies of their own, which a consumer asks for by that name.
function(orvanta_library target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "AREA;FOLDER;PACKAGE;COMPONENT" "FAST;SMALL;OTHER;LINK;HEADERS")
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
  # An archive must fit into a consumer's shared object. Hidden symbols keep calls within the library
  # as direct as in position dependent code.
  set_target_properties(${target} PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  set(root "${PROJECT_SOURCE_DIR}/include/${arg_AREA}")
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${root}>")
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PUBLIC ${arg_LINK})
  if(arg_PACKAGE)
    orvanta_package(${target} "${arg_PACKAGE}" "${arg_COMPONENT}" "${root}" "orvanta/${arg_AREA}" "${arg_HEADERS}")
  endif()
endfunction()

# Gives a library its public name and its place in the installed package.
function(orvanta_package target name component root prefix headers)
  list(TRANSFORM headers PREPEND "${root}/${prefix}/")
  foreach(header IN LISTS headers)
    file(GLOB matches CONFIGURE_DEPENDS "${header}")
    if(NOT matches)
      message(FATAL_ERROR "${target}: no header ${header}")
    endif()
    list(APPEND files ${matches})
  endforeach()
  add_library(Orvanta::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${root}" FILES ${files})
  if(ORVANTA_INSTALL)
    install(TARGETS ${target} EXPORT Orvanta${component}Targets
      ARCHIVE COMPONENT development
      FILE_SET HEADERS COMPONENT development)
  endif()
endfunction()
