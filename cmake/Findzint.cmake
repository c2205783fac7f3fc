# The library brings no CMake package of its own: zint::zint. Installed with lzJxc, whose hosts need it too.
find_library(zint_LIBRARY zint)
find_path(zint_INCLUDE_DIR zint.h)
mark_as_advanced(zint_LIBRARY zint_INCLUDE_DIR)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(zint REQUIRED_VARS zint_LIBRARY zint_INCLUDE_DIR)
if(zint_FOUND AND NOT TARGET zint::zint)
  add_library(zint::zint UNKNOWN IMPORTED)
  set_target_properties(zint::zint PROPERTIES IMPORTED_LOCATION "${zint_LIBRARY}"
                                                          INTERFACE_INCLUDE_DIRECTORIES "${zint_INCLUDE_DIR}")
endif()
