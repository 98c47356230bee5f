# Installs the build TREE below BINARY, copies the examples out of the package, and configures and builds each there with
# the package's own tool chain file: whatever one takes from the library's tree is an error. The small host is then clicked by
# TESTS, and the viewer draws a picture of itself. The tools that come with the library run from where they were installed.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${BINARY})
set(prefix ${BINARY}/prefix)

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${what} failed (${code}):\n${output}")
  endif()
endfunction()

# build_example(FOLDER FLAGS FILE...): the files must then lie beside the program.
function(build_example folder flags)
  set(project ${BINARY}/${folder})
  file(COPY ${prefix}/share/barwright/examples/${folder}/ DESTINATION ${project})
  run("configuring the ${folder}" ${CMAKE_COMMAND} -S ${project} -B ${project}/build -G Ninja -DCMAKE_MAKE_PROGRAM=${NINJA}
      -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=${flags} --toolchain ${prefix}/share/barwright/mingw-w64.cmake
      -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)
  file(READ ${project}/build/compile_commands.json commands)
  cmake_path(GET TREE PARENT_PATH tree)
  cmake_path(GET tree PARENT_PATH tree)
  string(REPLACE ${BINARY} "" commands "${commands}")
  if(commands MATCHES ${tree})
    message(FATAL_ERROR "the ${folder} uses files of the library's tree:\n${commands}")
  endif()
  run("the build of the ${folder}" ${CMAKE_COMMAND} --build ${project}/build)
  foreach(file barwright.dll bwframework.dll varnhold.dll tovasque.dll libstdc++-6.dll pic/skin/silver ${ARGN})
    if(NOT EXISTS ${project}/build/bin/${file})
      message(SEND_ERROR "there is no ${file} beside the ${folder}")
    endif()
  endforeach()
endfunction()

run("the installation" ${CMAKE_COMMAND} --install ${TREE} --prefix ${prefix})
# The tools for configurators, with the DLLs that lie beside them.
run("the installed checker" ${WINE_RUN} --null ${prefix}/bin/barcheck.exe ${prefix}/share/barwright/examples/viewer --strict)
run("the installed preview" ${WINE_RUN} --null ${prefix}/bin/barview.exe --help)
run("the check of the guides' links" ${CMAKE_CURRENT_LIST_DIR}/../scripts/package-docs --check ${prefix})
build_example(host -O2 example_host.exe cfg/ribbon.xml)
build_example(viewer -O0 viewer.exe cfg/ribbon.xml lang/en lang/zh-CN lang/he data/coast.bin pic/skin/icon)

string(REPLACE "/" "\\" program "Z:${BINARY}/host/build/bin/example_host.exe")
run("the small host" ${CMAKE_COMMAND} -E env BARWRIGHT_EXAMPLE_HOST=${program} ${WINE_RUN} --null ${TESTS})
set(picture ${BINARY}/viewer/picture.png)
run("the viewer" ${WINE_RUN} ${BINARY}/viewer/build/bin/viewer.exe --lang en --screenshot ${picture})
if(NOT EXISTS ${picture})
  message(FATAL_ERROR "the viewer wrote no picture")
endif()
