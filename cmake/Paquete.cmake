# What `cmake --install` leaves: the program, the library, its headers and the CMake package ZELVisorEsquemas.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# The program finds the library wherever the two are moved together.
file(RELATIVE_PATH de_bin_a_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(zelvisor PROPERTIES INSTALL_RPATH "$ORIGIN/${de_bin_a_lib}")
# And both find a Qt that is not the system's.
set_target_properties(zelvisor ZELVisorEsquemas PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)

set(carpeta_del_paquete ${CMAKE_INSTALL_LIBDIR}/cmake/ZELVisorEsquemas)
configure_file(${CMAKE_CURRENT_LIST_DIR}/ZELVisorEsquemasConfig.cmake.in
               ${PROJECT_BINARY_DIR}/ZELVisorEsquemasConfig.cmake @ONLY)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZELVisorEsquemasConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)

install(TARGETS zelvisor)
install(TARGETS ZELVisorEsquemas EXPORT ZELVisorEsquemasTargets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT ZELVisorEsquemasTargets NAMESPACE ZEL:: DESTINATION ${carpeta_del_paquete})
install(FILES ${PROJECT_BINARY_DIR}/ZELVisorEsquemasConfig.cmake
              ${PROJECT_BINARY_DIR}/ZELVisorEsquemasConfigVersion.cmake DESTINATION ${carpeta_del_paquete})
install(FILES ${zel_cabeceras} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ZELVisorEsquemas)
