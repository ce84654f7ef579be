# The package files of an installation: for find_package(Orvanta) and for pkg-config.
include(CMakePackageConfigHelpers)

set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/Orvanta)
install(EXPORT OrvantaTargets NAMESPACE Orvanta:: DESTINATION ${folder} COMPONENT development)
if(ORVANTA_BUILD_LINUX_HOST)
  install(EXPORT OrvantaLinuxHostTargets NAMESPACE Orvanta:: DESTINATION ${folder}
    COMPONENT development)
endif()

configure_package_config_file(cmake/OrvantaConfig.cmake.in ${PROJECT_BINARY_DIR}/OrvantaConfig.cmake
  INSTALL_DESTINATION ${folder}
  NO_SET_AND_CHECK_MACRO)
# Before 1.0 a minor version may change any interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrvantaConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/OrvantaConfig.cmake
  ${PROJECT_BINARY_DIR}/OrvantaConfigVersion.cmake
  DESTINATION ${folder}
  COMPONENT development)

# Relative to the file, as the prefix may be chosen when installing.
file(RELATIVE_PATH ORVANTA_PREFIX
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" ORVANTA_PREFIX ${ORVANTA_PREFIX})
configure_file(cmake/orvanta.pc.in ${PROJECT_BINARY_DIR}/orvanta.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/orvanta.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)
