# What a program needs beside it to start: our DLLs and the compiler's own.
set(runtime_files)
get_filename_component(compiler_folder ${CMAKE_CXX_COMPILER} DIRECTORY)
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE path
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
  foreach(folder /usr/x86_64-w64-mingw32/lib ${compiler_folder})
    if(NOT IS_ABSOLUTE "${path}" AND EXISTS ${folder}/${dll})
      set(path ${folder}/${dll})
    endif()
  endforeach()
  if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
    message(FATAL_ERROR "${dll} of the cross compiler was not found; run scripts/setup")
  endif()
  list(APPEND runtime_files "${path}")
endforeach()

# So that our own bin/ runs as it stands.
if(PROJECT_IS_TOP_LEVEL)
  add_custom_target(runtime_dlls ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${runtime_files} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    VERBATIM)
endif()

# Known to barwright_host wherever it is called.
set_property(GLOBAL PROPERTY BARWRIGHT_RUNTIME_FILES "${runtime_files}")

# barwright_skin_pictures(NAME FOLDER): the program NAME finds the skins' pictures in FOLDER/pic/skin.
function(barwright_skin_pictures name folder)
  get_target_property(pictures skin_art PICTURES)
  get_target_property(rendered skin_art STAMP)
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}_skins.stamp)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${pictures} ${folder}/pic/skin
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS skin_art ${rendered} VERBATIM)
  add_custom_target(${name}_skins DEPENDS ${stamp})
  add_dependencies(${name} ${name}_skins)
endfunction()

# barwright_host(NAME [SKINS] [FOLDERS ...]): the program NAME is a host. It is linked with the library and the entry of a program
# with a global application object, and finds the DLLs beside it after each build. FOLDERS (cfg lang pic) are its
# installation files, given from the current source folder; they are copied beside it, too, whenever one of their files changes.
# SKINS: so are the pictures of the black and the silver skin.
function(barwright_host name)
  cmake_parse_arguments(ARG "SKINS" "" "FOLDERS" ${ARGN})
  get_property(runtime_files GLOBAL PROPERTY BARWRIGHT_RUNTIME_FILES)
  target_link_libraries(${name} PRIVATE barwright framework_main)
  add_custom_command(TARGET ${name} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_RUNTIME_DLLS:${name}> ${runtime_files} $<TARGET_FILE_DIR:${name}>
    COMMAND_EXPAND_LISTS VERBATIM)
  if(ARG_SKINS)
    barwright_skin_pictures(${name} $<TARGET_FILE_DIR:${name}>)
  endif()
  if(NOT ARG_FOLDERS)
    return()
  endif()
  list(TRANSFORM ARG_FOLDERS APPEND /* OUTPUT_VARIABLE patterns)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${patterns})
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}_files.stamp)
  set(copies)
  foreach(folder ${ARG_FOLDERS})
    list(APPEND copies COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_CURRENT_SOURCE_DIR}/${folder}
                               $<TARGET_FILE_DIR:${name}>/${folder})
  endforeach()
  add_custom_command(OUTPUT ${stamp} ${copies} COMMAND ${CMAKE_COMMAND} -E touch ${stamp} DEPENDS ${files} VERBATIM)
  add_custom_target(${name}_files DEPENDS ${stamp})
  add_dependencies(${name} ${name}_files)
endfunction()
