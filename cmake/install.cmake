# What `cmake --install` leaves for people (the program, its manual page) and for hosts (libraries, headers and a CMake
# package). A host includes "session/lzjxc.h" and the like below include/lzjxc/.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/lzJxc)

install(TARGETS jxc RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES docs/jxc.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# jxc_install_library(TARGET NAME SET): the library as lzJxc::NAME, its headers, and its targets in the file SET.cmake.
function(jxc_install_library target name set)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
  install(TARGETS ${target} EXPORT ${set} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
          FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/lzjxc)
  install(EXPORT ${set} NAMESPACE lzJxc:: DESTINATION ${package_folder})
endfunction()
jxc_install_library(lzjxc_core core lzJxcCore)
install(FILES cmake/Findutf8proc.cmake cmake/Findsodium.cmake DESTINATION ${package_folder})
if(JXC_VIEW)
  jxc_install_library(lzjxc_qt qt lzJxcQt)
  install(FILES cmake/Findxlsxwriter.cmake cmake/Findzint.cmake DESTINATION ${package_folder})
endif()

write_basic_package_version_file(lzJxcConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES cmake/lzJxcConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/lzJxcConfigVersion.cmake
        DESTINATION ${package_folder})
