# barwright_use_framework_prefix(TARGET): compiles the target with the framework's headers precompiled.
function(barwright_use_framework_prefix target)
  target_precompile_headers(${target} REUSE_FROM framework_prefix)
  # GCC 12 sees bounds overstepped where a string becomes one character, and says so of headers that come precompiled.
  target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
endfunction()

# barwright_object_library(NAME SOURCES... [LIBS ...]): one library folder, compiled once, linked into the DLL and into
# the unit tests that reach its private classes.
function(barwright_object_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;WINDOWS_SOURCES" ${ARGN})
  set(sources ${ARG_SOURCES})
  if(WIN32)
    list(APPEND sources ${ARG_WINDOWS_SOURCES})
  endif()
  add_library(${name} OBJECT ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE barwright_options PUBLIC barwright_usage boost_headers ${ARG_LIBS})
  target_compile_definitions(${name} PRIVATE BARWRIGHT_BUILD)
  if(WIN32)
    barwright_use_framework_prefix(${name})
  endif()
endfunction()

# barwright_test(NAME SOURCES... [LIBS ...] [LABELS ...] [DESKTOP] [ALONE] [APART] [SINGLE] [TIMEOUT s])
# DESKTOP: the test owns focus, cursor and foreground window, so no two such tests run at once.
# ALONE: the test uses the real pointer or keyboard, or asks the system for the window under a point, so no other program
# may show one meanwhile. A test that only must not lose the foreground links test_own_desktop instead and runs beside
# others.
# A suite of tests is one ctest entry and one process. APART: each case is one, because what they test happens once a
# process. SINGLE: the whole program is one.
function(barwright_test name)
  cmake_parse_arguments(ARG "DESKTOP;ALONE;APART;SINGLE" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE barwright_options boost_headers ${ARG_LIBS} GTest::gmock_main)
  if(TARGET window_test_prefix AND ARG_LIBS MATCHES "framework|test_support|barwright|commands|varnhold|tovasque")
    target_precompile_headers(${name} REUSE_FROM window_test_prefix)
  else()
    target_precompile_headers(${name} REUSE_FROM test_prefix)
  endif()
  target_compile_options(${name} PRIVATE -O0) # tests are compiled more often than they run
  if(TARGET framework)
    add_dependencies(${name} runtime_dlls)
  endif()
  set(properties TIMEOUT ${ARG_TIMEOUT})
  if(ARG_LABELS)
    list(APPEND properties LABELS "${ARG_LABELS}")
  endif()
  if(ARG_DESKTOP)
    list(APPEND properties RESOURCE_LOCK desktop)
  endif()
  if(ARG_ALONE)
    list(APPEND properties RUN_SERIAL TRUE)
  endif()
  if(ARG_SINGLE)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ${properties})
    return()
  endif()
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}_suites.cmake)
  file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}_discovery.cmake CONTENT
"set(NAME ${name})
set(PROGRAM $<TARGET_FILE:${name}>)
set(EMULATOR ${CMAKE_CROSSCOMPILING_EMULATOR})
set(LIST ${list})
set(APART ${ARG_APART})
set(PROPERTIES ${properties})
include(${PROJECT_SOURCE_DIR}/cmake/discover_suites.cmake)
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}_discovery.cmake)
endfunction()

# Every folder below DIR that has a CMakeLists.txt of its own.
function(barwright_add_subdirectories)
  file(GLOB lists CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*/CMakeLists.txt)
  foreach(list ${lists})
    get_filename_component(folder ${list} DIRECTORY)
    add_subdirectory(${folder})
  endforeach()
endfunction()
