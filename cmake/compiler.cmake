# How the sources of this folder are compiled. All of it is set for this folder only: a host that adds the folder to its
# project, or links the installed libraries, keeps its own warnings, flags and build type.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG") # -O3 compiles half as fast again, and the databases set the pace anyway

# g++ 12 warns of impossible overflows inside std::string's operator+ when it is inlined.
add_compile_options(-Wall -Wextra -Wno-stringop-overflow -Wno-restrict -Wno-array-bounds)
if(JXC_WERROR)
  add_compile_options(-Werror)
endif()
if(JXC_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(JXC_CCACHE ccache)
if(JXC_CCACHE)
  # What one build directory has compiled serves the others, and another checkout: the paths are taken as relative ones.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${JXC_CCACHE})
  add_compile_options(-fpch-preprocess) # without it ccache cannot tell which precompiled header was used
endif()
