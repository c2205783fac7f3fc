# lzJxc::core: everything but the windows, the one library that a host links. Its folders, lowest floor first; a folder
# includes from the folders before it in this list only.
set(floors base database controls session forms settings master documents close stock plans robot host)

find_package(SQLite3 REQUIRED)
find_package(PostgreSQL REQUIRED)
find_package(muparser REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(utf8proc REQUIRED)
find_package(sodium REQUIRED)

add_library(lzjxc_core STATIC)
add_library(lzJxc::core ALIAS lzjxc_core)
foreach(floor IN LISTS floors)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${floor}/*.cpp)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${floor}/*.h)
  list(FILTER sources EXCLUDE REGEX "/host/(program|window)/") # the program's own
  list(FILTER headers EXCLUDE REGEX "/host/(program|window)/")
  target_sources(lzjxc_core PRIVATE ${sources}
                            PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
endforeach()
target_compile_features(lzjxc_core PUBLIC cxx_std_20)
target_precompile_headers(lzjxc_core PRIVATE ${PROJECT_SOURCE_DIR}/cmake/standard_headers.h)
target_link_libraries(lzjxc_core PUBLIC SQLite::SQLite3 PostgreSQL::PostgreSQL muparser::muparser
                                        nlohmann_json::nlohmann_json utf8proc::utf8proc sodium::sodium)
