# What `cmake --install` puts where; every place is found from another, so that the whole may be moved.
include(CMakePackageConfigHelpers)

set(NORVIK_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/corvane)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/corvane)

# The libraries, and the headers that a caller includes; of the internals those that a public class holds by value.
set_target_properties(norvik_platform corvane PROPERTIES INSTALL_RPATH $ORIGIN)
set_target_properties(norvik_platform PROPERTIES EXPORT_NAME platform)
target_include_directories(norvik_platform INTERFACE $<INSTALL_INTERFACE:${NORVIK_HEADER_DIR}>)
install(TARGETS norvik_platform EXPORT norvikTargets)
install(TARGETS corvane EXPORT corvaneTargets)
install(DIRECTORY data DESTINATION ${NORVIK_HEADER_DIR} FILES_MATCHING
        REGEX "/data/[a-z_]+\\.h$" REGEX "/detail/(row_cells|row_shape|shared)\\.h$")
install(DIRECTORY platform DESTINATION ${NORVIK_HEADER_DIR} FILES_MATCHING
        REGEX "/platform/(host_api|code_page|character_bounds|export)\\.h$")

# How other projects find them.
install(EXPORT norvikTargets NAMESPACE norvik:: DESTINATION ${package_dir})
install(EXPORT corvaneTargets NAMESPACE corvane:: DESTINATION ${package_dir})
configure_package_config_file(cmake/corvaneConfig.cmake.in ${PROJECT_BINARY_DIR}/corvaneConfig.cmake
                              INSTALL_DESTINATION ${package_dir} PATH_VARS NORVIK_PLUGIN_DIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/corvaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/corvaneConfig.cmake ${PROJECT_BINARY_DIR}/corvaneConfigVersion.cmake
        DESTINATION ${package_dir})
file(RELATIVE_PATH NORVIK_PREFIX_FROM_PC ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/corvane.pc.in ${PROJECT_BINARY_DIR}/corvane.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/corvane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(NORVIK_BUILD_MODULE)
  set_target_properties(NorvikQry PROPERTIES INSTALL_RPATH $ORIGIN/..)
  install(TARGETS NorvikQry DESTINATION ${NORVIK_PLUGIN_DIR})
endif()

if(NORVIK_BUILD_DEMOHOST)
  file(RELATIVE_PATH libraries_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(demohost PROPERTIES INSTALL_RPATH $ORIGIN/${libraries_from_bin})
  install(TARGETS demohost)
  install(DIRECTORY demohost/share/ demohost/scripts DESTINATION ${NORVIK_SHARE_DIR})
endif()
