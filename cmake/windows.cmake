# The windows: view/ (screens, message boxes, printing) and host/window/ (the program's main window). Their own
# precompiled header, because the toolkit's flags differ from the core's.
find_package(Qt6 REQUIRED COMPONENTS Widgets UiTools PrintSupport)
find_library(XLSXWRITER xlsxwriter REQUIRED)

function(jxc_windows name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
  add_library(jxc_${name} STATIC ${sources})
  target_precompile_headers(jxc_${name} PRIVATE ${PROJECT_SOURCE_DIR}/view/qt_headers.h)
  target_link_libraries(jxc_${name} PUBLIC ${ARGN})
endfunction()

jxc_windows(view view jxc_stock Qt6::Widgets Qt6::UiTools Qt6::PrintSupport ${XLSXWRITER})
jxc_windows(window host/window jxc_host jxc_view)

# Every .ui file goes into the program under :/ui.
file(GLOB forms CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/view/ui/*.ui)
qt_add_resources(jxc_view forms PREFIX /ui BASE ${PROJECT_SOURCE_DIR}/view/ui FILES ${forms})
