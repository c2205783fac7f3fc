# The library brings no CMake package of its own: xlsxwriter::xlsxwriter. Installed with lzJxc, whose hosts need it too.
find_library(xlsxwriter_LIBRARY xlsxwriter)
find_path(xlsxwriter_INCLUDE_DIR xlsxwriter.h)
mark_as_advanced(xlsxwriter_LIBRARY xlsxwriter_INCLUDE_DIR)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(xlsxwriter REQUIRED_VARS xlsxwriter_LIBRARY xlsxwriter_INCLUDE_DIR)
if(xlsxwriter_FOUND AND NOT TARGET xlsxwriter::xlsxwriter)
  add_library(xlsxwriter::xlsxwriter UNKNOWN IMPORTED)
  set_target_properties(xlsxwriter::xlsxwriter PROPERTIES IMPORTED_LOCATION "${xlsxwriter_LIBRARY}"
                                                          INTERFACE_INCLUDE_DIRECTORIES "${xlsxwriter_INCLUDE_DIR}")
endif()
