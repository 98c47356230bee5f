# Installs the build TREE below BINARY, copies the example out of the package, and configures and builds it there with the
# package's own tool chain file: whatever it takes from the library's tree is an error. The program is then clicked by TESTS.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${BINARY})
set(prefix ${BINARY}/prefix)
set(project ${BINARY}/project)

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "${what} failed (${code}):\n${output}")
  endif()
endfunction()

run("the installation" ${CMAKE_COMMAND} --install ${TREE} --prefix ${prefix})
file(COPY ${prefix}/share/barwright/examples/host/ DESTINATION ${project})
run("configuring" ${CMAKE_COMMAND} -S ${project} -B ${project}/build -G Ninja -DCMAKE_MAKE_PROGRAM=${NINJA} -DCMAKE_BUILD_TYPE=Release
    --toolchain ${prefix}/share/barwright/mingw-w64.cmake -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)

file(READ ${project}/build/compile_commands.json commands)
cmake_path(GET TREE PARENT_PATH tree)
cmake_path(GET tree PARENT_PATH tree)
string(REPLACE ${BINARY} "" commands "${commands}")
if(commands MATCHES ${tree})
  message(FATAL_ERROR "the project uses files of the library's tree:\n${commands}")
endif()

run("the build" ${CMAKE_COMMAND} --build ${project}/build)
foreach(file example_host.exe barwright.dll bwframework.dll varnhold.dll tovasque.dll libstdc++-6.dll cfg/ribbon.xml
        pic/skin/silver)
  if(NOT EXISTS ${project}/build/bin/${file})
    message(SEND_ERROR "there is no ${file} beside the program")
  endif()
endforeach()
string(REPLACE "/" "\\" program "Z:${project}/build/bin/example_host.exe")
run("the program" ${CMAKE_COMMAND} -E env BARWRIGHT_EXAMPLE_HOST=${program} ${WINE_RUN} --null ${TESTS})
