# Libraries that we use and do not write. scripts/setup puts their sources where they are looked for here; a project that
# takes this one in may have its own copies, and names them.
set(DEPS_DIR ${PROJECT_SOURCE_DIR}/.deps)
set(BARWRIGHT_BOOST_INCLUDE ${DEPS_DIR}/boost-include CACHE PATH "The folder that holds Boost's folder boost/, and nothing of another system")
set(BARWRIGHT_PUGIXML ${DEPS_DIR}/pugixml/src CACHE PATH "The folder of pugixml's sources, version 1.13 or later")
foreach(part "BARWRIGHT_BOOST_INCLUDE;boost/shared_ptr.hpp" "BARWRIGHT_PUGIXML;pugixml.cpp")
  list(GET part 0 folder)
  list(GET part 1 file)
  if(NOT EXISTS ${${folder}}/${file})
    message(FATAL_ERROR "There is no ${${folder}}/${file}: run ${PROJECT_SOURCE_DIR}/scripts/setup, or name the folder "
                        "of your own copy with -D${folder}=...")
  endif()
endforeach()

# Boost is headers only; the folder holds nothing but boost/, so that no host header reaches the cross compiler.
add_library(boost_headers INTERFACE)
target_include_directories(boost_headers SYSTEM INTERFACE $<BUILD_INTERFACE:${BARWRIGHT_BOOST_INCLUDE}>)

add_library(pugixml STATIC ${BARWRIGHT_PUGIXML}/pugixml.cpp)
target_include_directories(pugixml SYSTEM PUBLIC ${BARWRIGHT_PUGIXML})
target_compile_options(pugixml PRIVATE -w)

# The rest is for our own programs.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

# The JSON library is headers only, too.
add_library(json_headers INTERFACE)
target_include_directories(json_headers SYSTEM INTERFACE ${DEPS_DIR}/json-include)

# The tests' library comes compiled for this machine, and as sources for the other.
if(WIN32)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
else()
  find_package(GTest REQUIRED CONFIG)
endif()

set(BENCHMARK_ENABLE_TESTING OFF CACHE BOOL "" FORCE)
set(BENCHMARK_ENABLE_INSTALL OFF CACHE BOOL "" FORCE)
set(BENCHMARK_ENABLE_WERROR OFF CACHE BOOL "" FORCE)
set(HAVE_STD_REGEX ON CACHE BOOL "" FORCE)
set(HAVE_STEADY_CLOCK ON CACHE BOOL "" FORCE)
set(HAVE_POSIX_REGEX OFF CACHE BOOL "" FORCE)
set(HAVE_GNU_POSIX_REGEX OFF CACHE BOOL "" FORCE)
add_subdirectory(${DEPS_DIR}/benchmark ${PROJECT_BINARY_DIR}/benchmark EXCLUDE_FROM_ALL)
