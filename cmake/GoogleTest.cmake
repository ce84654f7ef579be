set(ORVANTA_GOOGLETEST_SOURCE "" CACHE PATH
  "GoogleTest's sources, built with the tests; empty: the installed library is used")

if(ORVANTA_GOOGLETEST_SOURCE)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory("${ORVANTA_GOOGLETEST_SOURCE}" googletest EXCLUDE_FROM_ALL SYSTEM)
  if(NOT TARGET GTest::gtest)
    add_library(GTest::gtest ALIAS gtest)
    add_library(GTest::gtest_main ALIAS gtest_main)
  endif()
else()
  find_package(GTest QUIET)
endif()
