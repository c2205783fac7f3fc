# One static library per folder of the house; all share the warning level and one precompiled header.

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG") # -O3 compiles half as fast again, and the databases set the pace anyway
find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${CCACHE})
endif()

add_library(jxc_options INTERFACE)
# g++ 12 warns of impossible overflows inside std::string's operator+ when it is inlined.
target_compile_options(jxc_options INTERFACE -Wall -Wextra -Wno-stringop-overflow -Wno-restrict -Wno-array-bounds
                                             $<$<BOOL:${JXC_WERROR}>:-Werror>
                                             $<$<BOOL:${CCACHE}>:-fpch-preprocess>)
target_include_directories(jxc_options INTERFACE ${PROJECT_SOURCE_DIR})
if(JXC_SANITIZE)
  target_compile_options(jxc_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
  target_link_options(jxc_options INTERFACE -fsanitize=address,undefined)
endif()

# jxc_folder(NAME [LINK libraries...] [EXCLUDE parts...]): the library jxc_NAME of every source below NAME/
# but for the files and folders excluded.
function(jxc_folder name)
  cmake_parse_arguments(ARG "" "" "LINK;EXCLUDE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${name}/*.cpp)
  foreach(part IN LISTS ARG_EXCLUDE)
    list(FILTER sources EXCLUDE REGEX "^${PROJECT_SOURCE_DIR}/${name}/${part}($|/)")
  endforeach()
  if(NOT sources)
    add_library(jxc_${name} INTERFACE)
    target_link_libraries(jxc_${name} INTERFACE jxc_options ${ARG_LINK})
    return()
  endif()
  add_library(jxc_${name} STATIC ${sources})
  target_link_libraries(jxc_${name} PUBLIC jxc_options ${ARG_LINK})
  if(name STREQUAL base)
    target_precompile_headers(jxc_base PRIVATE ${PROJECT_SOURCE_DIR}/cmake/standard_headers.h)
  else()
    target_precompile_headers(jxc_${name} REUSE_FROM jxc_base)
  endif()
endfunction()
