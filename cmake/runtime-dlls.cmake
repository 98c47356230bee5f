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
set_property(GLOBAL PROPERTY BARWRIGHT_RESOURCES ${CMAKE_CURRENT_LIST_DIR})
