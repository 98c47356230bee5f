# The version stands in one place, a header that hosts and resource scripts read too.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/../include/barwright_version.h numbers REGEX "^#define BARWRIGHT_VERSION_[A-Z]+ [0-9]+$")
list(TRANSFORM numbers REPLACE "^.* " "")
list(JOIN numbers "." BARWRIGHT_VERSION)
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/../include/barwright_version.h text REGEX "^#define BARWRIGHT_VERSION \"${BARWRIGHT_VERSION}\"$")
if(NOT text)
  message(FATAL_ERROR "include/barwright_version.h: the numbers say ${BARWRIGHT_VERSION}, the text says something else")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS include/barwright_version.h)

# barwright_version_resource(TARGET DESCRIPTION): the DLL carries the version where the system shows it.
function(barwright_version_resource target description)
  set(DESCRIPTION "${description}")
  set(FILE_NAME "$<TARGET_FILE_NAME:${target}>")
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${script}.in @ONLY)
  file(GENERATE OUTPUT ${script} INPUT ${script}.in TARGET ${target})
  target_sources(${target} PRIVATE ${script})
  set_source_files_properties(${script} TARGET_DIRECTORY ${target} PROPERTIES GENERATED TRUE
    OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/include/barwright_version.h)
endfunction()
