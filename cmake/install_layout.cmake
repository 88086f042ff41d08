# Where an installation puts each product (GNU folders under the prefix), and
# the relative paths between them that the installed programs and libraries use
# to find each other wherever the prefix is:
#   bin/orrery                          the shell
#   lib/liborrery_platform.so           the platform library
#   lib/orrery/libdiagnostic.so         the module, opened by its hosts
#   lib/orrery/catalogue/root.res       the compiled message catalogue
#   include/orrery/                     the platform's public headers
#   include/orrery-diagnostic/diagnostic/  the module's exported headers
#   lib/cmake/OrreryPlatform/, lib/pkgconfig/orrery-platform.pc
include(GNUInstallDirs)

set(ORRERY_INSTALL_MODULE_DIR ${CMAKE_INSTALL_LIBDIR}/orrery)
set(ORRERY_INSTALL_MODULE ${ORRERY_INSTALL_MODULE_DIR}/libdiagnostic.so)
set(ORRERY_INSTALL_MODULE_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/orrery-diagnostic)
set(ORRERY_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/OrreryPlatform)
set(ORRERY_INSTALL_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# orrery_install_relative(VAR FROM TO): the path from one installed folder to an
# installed folder or file, both given relative to the prefix.
function(orrery_install_relative var from to)
  set(root /orrery-prefix)
  file(RELATIVE_PATH relative ${root}/${from} ${root}/${to})
  string(REGEX REPLACE "/$" "" relative "${relative}")
  if(relative STREQUAL "")
    set(relative .)
  endif()
  set(${var} ${relative} PARENT_SCOPE)
endfunction()

orrery_install_relative(ORRERY_MODULE_FROM_BINDIR ${CMAKE_INSTALL_BINDIR} ${ORRERY_INSTALL_MODULE})
orrery_install_relative(ORRERY_LIBDIR_FROM_BINDIR ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR})
orrery_install_relative(ORRERY_LIBDIR_FROM_MODULE_DIR ${ORRERY_INSTALL_MODULE_DIR} ${CMAKE_INSTALL_LIBDIR})
orrery_install_relative(ORRERY_PREFIX_FROM_PKGCONFIGDIR ${ORRERY_INSTALL_PKGCONFIGDIR} .)
