include(GoogleTest)

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
  target_link_libraries(${name} PUBLIC barwright_options boost_headers ${ARG_LIBS})
  target_compile_definitions(${name} PRIVATE BARWRIGHT_BUILD)
endfunction()

# barwright_test(NAME SOURCES... [LIBS ...] [LABELS ...] [DESKTOP] [ALONE] [SINGLE] [TIMEOUT s])
# DESKTOP: the test owns focus, cursor and foreground window, so no two such tests run at once.
# ALONE: the test uses the real pointer or keyboard, or asks the system for the window under a point, so no other program
# may show one meanwhile. A test that only must not lose the foreground links test_own_desktop instead and runs beside
# others.
# SINGLE: the whole program is one ctest entry instead of one entry per test case.
function(barwright_test name)
  cmake_parse_arguments(ARG "DESKTOP;ALONE;SINGLE" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE barwright_options boost_headers ${ARG_LIBS} GTest::gmock_main)
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
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
  endif()
endfunction()

# Every folder below DIR that has a CMakeLists.txt of its own.
function(barwright_add_subdirectories)
  file(GLOB lists CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*/CMakeLists.txt)
  foreach(list ${lists})
    get_filename_component(folder ${list} DIRECTORY)
    add_subdirectory(${folder})
  endforeach()
endfunction()

# The compiler's run-time DLLs beside our own, so that bin/ runs as it stands.
if(WIN32)
  set(runtime_files)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
      set(path /usr/x86_64-w64-mingw32/lib/${dll})
    endif()
    if(NOT EXISTS "${path}")
      message(FATAL_ERROR "${dll} of the cross compiler was not found; run scripts/setup")
    endif()
    list(APPEND runtime_files "${path}")
  endforeach()
  add_custom_target(runtime_dlls ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${runtime_files} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    VERBATIM)
endif()
