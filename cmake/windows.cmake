# lzJxc::qt: view/, the windows in which a host shows the screens. jxc_window: host/window/, the program's main window.
# Both have their own precompiled header, because the toolkit's flags differ from the core's.
find_package(Qt6 REQUIRED COMPONENTS Widgets UiTools PrintSupport)
find_package(xlsxwriter REQUIRED)
find_package(zint REQUIRED)

# The .ui files go into the library under :/ui; the view brings them into use (Q_INIT_RESOURCE).
file(GLOB forms CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/view/ui/*.ui)
list(TRANSFORM forms REPLACE "(.*/)([^/]+)" "<file alias=\"\\2\">\\1\\2</file>" OUTPUT_VARIABLE entries)
list(JOIN entries "\n" entries)
file(CONFIGURE OUTPUT lzjxc_forms.qrc CONTENT "<RCC><qresource prefix=\"/ui\">\n@entries@\n</qresource></RCC>\n" @ONLY)
qt_add_resources(form_sources ${CMAKE_CURRENT_BINARY_DIR}/lzjxc_forms.qrc)
set_source_files_properties(${form_sources} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)

file(GLOB view_sources CONFIGURE_DEPENDS view/*.cpp)
file(GLOB view_headers CONFIGURE_DEPENDS view/*.h)
add_library(lzjxc_qt STATIC ${view_sources} ${form_sources})
add_library(lzJxc::qt ALIAS lzjxc_qt)
target_sources(lzjxc_qt PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${view_headers})
target_precompile_headers(lzjxc_qt PRIVATE ${PROJECT_SOURCE_DIR}/view/qt_headers.h)
target_link_libraries(lzjxc_qt PUBLIC lzjxc_core Qt6::Widgets PRIVATE Qt6::UiTools Qt6::PrintSupport
                                                                      xlsxwriter::xlsxwriter zint::zint)

file(GLOB window_sources CONFIGURE_DEPENDS host/window/*.cpp)
add_library(jxc_window STATIC ${window_sources})
target_precompile_headers(jxc_window PRIVATE ${PROJECT_SOURCE_DIR}/view/qt_headers.h)
target_link_libraries(jxc_window PUBLIC lzjxc_qt)
