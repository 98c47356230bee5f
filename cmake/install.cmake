# make install and make package: libraries, headers, skins' pictures and a CMake package that a host finds with
# find_package(Barwright CONFIG). Nothing outside the installed folder is needed but a compiler of the same family.
include(CMakePackageConfigHelpers)

set(data_folder share/barwright)
set(package_folder lib/cmake/Barwright)
set(include_folder include/barwright)

# Each library's headers in a folder of their own, as they are included: <afxwin.h>, <varnhold/xml.h>, <ribbon_bar_ex.h>.
function(barwright_install_headers target folder)
  get_target_property(name ${target} NAME)
  install(DIRECTORY ${folder}/ DESTINATION ${include_folder}/${name} FILES_MATCHING PATTERN "*.h")
  target_include_directories(${target} SYSTEM INTERFACE $<INSTALL_INTERFACE:${include_folder}/${name}>)
endfunction()
barwright_install_headers(barwright ${PROJECT_SOURCE_DIR}/include)
foreach(library framework varnhold tovasque)
  barwright_install_headers(${library} ${PROJECT_SOURCE_DIR}/platform/${library}/include)
endforeach()

# Of Boost what our headers and hosts' reactors include, so that a host needs no Boost of its own.
set(boost_folder ${PROJECT_BINARY_DIR}/package/boost)
add_custom_command(OUTPUT ${boost_folder}.stamp
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/copy-boost ${CMAKE_CXX_COMPILER} ${BARWRIGHT_BOOST_INCLUDE} ${boost_folder}
  COMMAND ${CMAKE_COMMAND} -E touch ${boost_folder}.stamp
  DEPENDS ${PROJECT_SOURCE_DIR}/scripts/copy-boost VERBATIM)
# The guides, whose links into this tree lead to where the package has those files.
set(guides_folder ${PROJECT_BINARY_DIR}/package/guides)
file(GLOB_RECURSE guides CONFIGURE_DEPENDS docs/*)
add_custom_command(OUTPUT ${guides_folder}.stamp
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/package-docs ${guides_folder}
  COMMAND ${CMAKE_COMMAND} -E touch ${guides_folder}.stamp
  DEPENDS ${PROJECT_SOURCE_DIR}/scripts/package-docs ${guides} README.md cmake/package-readme.md CHANGELOG.md LICENSE
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} VERBATIM)
add_custom_target(package_files ALL DEPENDS ${boost_folder}.stamp ${guides_folder}.stamp)
add_dependencies(package_files demo_files) # the viewer's, which is installed as an example
install(DIRECTORY ${boost_folder}/ DESTINATION ${include_folder}/boost_headers)
target_include_directories(boost_headers SYSTEM INTERFACE $<INSTALL_INTERFACE:${include_folder}/boost_headers>)

set_target_properties(framework_main PROPERTIES EXPORT_NAME main)
install(TARGETS barwright framework varnhold tovasque framework_main barwright_usage boost_headers EXPORT BarwrightTargets
        RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
install(EXPORT BarwrightTargets NAMESPACE Barwright:: DESTINATION ${package_folder})
configure_package_config_file(cmake/BarwrightConfig.cmake.in ${PROJECT_BINARY_DIR}/package/BarwrightConfig.cmake
  INSTALL_DESTINATION ${package_folder} PATH_VARS data_folder)
# Before 1.0 every second number may ask for a new compilation.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/BarwrightConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/package/BarwrightConfig.cmake ${PROJECT_BINARY_DIR}/package/BarwrightConfigVersion.cmake
              cmake/host.cmake
        DESTINATION ${package_folder})

get_property(compiler_dlls GLOBAL PROPERTY BARWRIGHT_RUNTIME_FILES)
install(FILES ${compiler_dlls} DESTINATION bin)
get_property(pictures GLOBAL PROPERTY BARWRIGHT_SKIN_PICTURES)
install(DIRECTORY ${pictures}/ DESTINATION ${data_folder}/pic/skin)
install(FILES platform/framework/window/entry/win_main.cpp cmake/application.manifest cmake/mingw-w64.cmake
        DESTINATION ${data_folder})
install(DIRECTORY examples/host DESTINATION ${data_folder}/examples)

# The viewer with all that its build makes here from drawings and tables, so that a package's user needs none of our tools.
set(viewer_folder ${data_folder}/examples/viewer)
install(FILES examples/viewer/CMakeLists.txt DESTINATION ${viewer_folder})
install(DIRECTORY demo/ DESTINATION ${viewer_folder} FILES_MATCHING PATTERN "*.cpp" PATTERN "*.h" PATTERN "*.rc"
        PATTERN cfg EXCLUDE PATTERN data EXCLUDE PATTERN icons EXCLUDE PATTERN lang EXCLUDE)
install(DIRECTORY tools/dump DESTINATION ${viewer_folder} FILES_MATCHING PATTERN "*.cpp" PATTERN "*.h")
foreach(folder cfg lang data pic)
  install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder} DESTINATION ${viewer_folder}
          PATTERN skin/black EXCLUDE PATTERN skin/silver EXCLUDE)
endforeach()
install(DIRECTORY ${DEPS_DIR}/json-include/nlohmann/ DESTINATION ${viewer_folder}/json/nlohmann)
install(DIRECTORY ${guides_folder}/ DESTINATION share/doc/barwright)

# What the bought parts ask for: their licences go where they go.
function(barwright_install_licence name)
  foreach(file ${ARGN})
    if(EXISTS ${file})
      install(FILES ${file} DESTINATION share/doc/barwright/licences RENAME ${name}.txt)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "the licence of ${name} is not at ${ARGN}")
endfunction()
barwright_install_licence(pugixml ${BARWRIGHT_PUGIXML}/../LICENSE.md)
barwright_install_licence(boost ${BARWRIGHT_BOOST_INCLUDE}/LICENSE_1_0.txt /usr/share/doc/libboost-dev/copyright)
barwright_install_licence(nlohmann-json /usr/share/doc/nlohmann-json3-dev/copyright)
