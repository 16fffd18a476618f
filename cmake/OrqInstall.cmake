# Install rules and the CMake package an outside project finds with
# find_package(Orq CONFIG REQUIRED).
include(CMakePackageConfigHelpers)

install(TARGETS vantor_suite orq EXPORT OrqTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orq)
install(EXPORT OrqTargets NAMESPACE Orq:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orq)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/OrqConfig.cmake.in
                              ${CMAKE_CURRENT_BINARY_DIR}/OrqConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orq)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/OrqConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/OrqConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/OrqConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orq)
