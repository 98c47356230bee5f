# Libraries that we use and do not write. scripts/setup puts their sources where they are looked for here.
set(DEPS_DIR ${PROJECT_SOURCE_DIR}/.deps)

# Boost is headers only; the folder holds nothing but boost/, so that no host header reaches the cross compiler.
add_library(boost_headers INTERFACE)
target_include_directories(boost_headers SYSTEM INTERFACE ${DEPS_DIR}/boost-include)

# So is the JSON library.
add_library(json_headers INTERFACE)
target_include_directories(json_headers SYSTEM INTERFACE ${DEPS_DIR}/json-include)

add_library(pugixml STATIC ${DEPS_DIR}/pugixml/src/pugixml.cpp)
target_include_directories(pugixml SYSTEM PUBLIC ${DEPS_DIR}/pugixml/src)
target_compile_options(pugixml PRIVATE -w)

set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)

set(BENCHMARK_ENABLE_TESTING OFF CACHE BOOL "" FORCE)
set(BENCHMARK_ENABLE_INSTALL OFF CACHE BOOL "" FORCE)
set(BENCHMARK_ENABLE_WERROR OFF CACHE BOOL "" FORCE)
set(HAVE_STD_REGEX ON CACHE BOOL "" FORCE)
set(HAVE_STEADY_CLOCK ON CACHE BOOL "" FORCE)
set(HAVE_POSIX_REGEX OFF CACHE BOOL "" FORCE)
set(HAVE_GNU_POSIX_REGEX OFF CACHE BOOL "" FORCE)
add_subdirectory(${DEPS_DIR}/benchmark ${PROJECT_BINARY_DIR}/benchmark EXCLUDE_FROM_ALL)
