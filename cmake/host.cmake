# What a host asks for by one call, in the library's tree and with an installed package alike.

# barwright_skin_pictures(NAME FOLDER): the program NAME finds the skins' pictures in FOLDER/pic/skin.
function(barwright_skin_pictures name folder)
  get_property(pictures GLOBAL PROPERTY BARWRIGHT_SKIN_PICTURES)
  set(rendered) # in an installed package they are there, in the library's tree they are made
  if(TARGET skin_art)
    get_target_property(rendered skin_art STAMP)
    list(PREPEND rendered skin_art)
  endif()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}_skins.stamp)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${pictures} ${folder}/pic/skin
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${rendered} VERBATIM)
  add_custom_target(${name}_skins DEPENDS ${stamp})
  add_dependencies(${name} ${name}_skins)
endfunction()

# barwright_host(NAME [SKINS] [FOLDERS ...]): the program NAME is a host. It is linked with the library and the entry of a program
# with a global application object, its resource script finds application.manifest, and it finds the DLLs beside it after each build. FOLDERS (cfg lang pic) are its
# installation files, given from the current source folder; they are copied beside it, too, whenever one of their files changes.
# SKINS: so are the pictures of the black and the silver skin.
function(barwright_host name)
  cmake_parse_arguments(ARG "SKINS" "" "FOLDERS" ${ARGN})
  get_property(runtime_files GLOBAL PROPERTY BARWRIGHT_RUNTIME_FILES)
  get_property(resources GLOBAL PROPERTY BARWRIGHT_RESOURCES)
  target_link_libraries(${name} PRIVATE Barwright::barwright Barwright::main)
  target_include_directories(${name} PRIVATE ${resources})
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
