# What `cmake --install` puts under the prefix (layout in install_layout.cmake):
# the platform library with its public headers and a CMake package and
# pkg-config file for it, the module with its exported headers, the compiled
# catalogue, the shell and the embedding example.
include(CMakePackageConfigHelpers)

# The platform library, exported as Orrery::platform.
set_target_properties(orrery_platform PROPERTIES
  EXPORT_NAME platform VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
target_compile_features(orrery_platform PUBLIC cxx_std_20)
install(TARGETS orrery_platform EXPORT OrreryPlatformTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${ORRERY_INSTALL_MODULE_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/include/orrery DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# The module, which finds the platform library in the folder above its own, and
# the headers that declare what it exports (the names in diagnostic/exports.map).
set_target_properties(diagnostic PROPERTIES INSTALL_RPATH "$ORIGIN/${ORRERY_LIBDIR_FROM_MODULE_DIR}")
install(TARGETS diagnostic LIBRARY DESTINATION ${ORRERY_INSTALL_MODULE_DIR})
set(ORRERY_EXPORTED_MODULE_HEADERS
  module/export.hpp module/entry_points.hpp errors/error_builtins.hpp warnings/warning_builtins.hpp
  warnings/issued_warning_connection.hpp record/convert_warnings.hpp log/bn_warning_log.hpp)
foreach(header IN LISTS ORRERY_EXPORTED_MODULE_HEADERS)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/diagnostic/${header}
    DESTINATION ${ORRERY_INSTALL_MODULE_INCLUDEDIR}/diagnostic/${folder})
endforeach()

# The catalogue, which the platform library finds in orrery/catalogue beside itself.
install(FILES ${ORRERY_CATALOGUE_DIR}/root.res DESTINATION ${ORRERY_INSTALL_MODULE_DIR}/catalogue)

# The shell, which finds the platform library and the module from its own folder.
if(TARGET orrery)
  set_target_properties(orrery PROPERTIES INSTALL_RPATH "$ORIGIN/${ORRERY_LIBDIR_FROM_BINDIR}")
  install(TARGETS orrery RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The embedding example (docs/EMBEDDING.md), buildable from where it is installed.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/embedding DESTINATION ${CMAKE_INSTALL_DATADIR}/orrery/examples)

# find_package(OrreryPlatform): Orrery::platform and OrreryPlatform_MODULE.
install(EXPORT OrreryPlatformTargets NAMESPACE Orrery:: DESTINATION ${ORRERY_INSTALL_CMAKEDIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/OrreryPlatformConfig.cmake.in
  ${PROJECT_BINARY_DIR}/OrreryPlatformConfig.cmake
  INSTALL_DESTINATION ${ORRERY_INSTALL_CMAKEDIR} PATH_VARS ORRERY_INSTALL_MODULE)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrreryPlatformConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/OrreryPlatformConfig.cmake ${PROJECT_BINARY_DIR}/OrreryPlatformConfigVersion.cmake
  DESTINATION ${ORRERY_INSTALL_CMAKEDIR})

# pkg-config: orrery-platform, relocatable (paths relative to the file itself).
configure_file(${PROJECT_SOURCE_DIR}/cmake/orrery-platform.pc.in ${PROJECT_BINARY_DIR}/orrery-platform.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/orrery-platform.pc DESTINATION ${ORRERY_INSTALL_PKGCONFIGDIR})
