# Installs the package into an empty folder, builds the client of examples/client against it, and runs it.
#   cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -DEMULATOR=... -P client.cmake
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(REPLACE ";" " " command "${ARGN}")
    message(FATAL_ERROR "failed: ${command}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

set(package ${WORK_DIR}/package/lib/cmake/DialogControlsOW)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/package)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/client -B ${WORK_DIR}/build -G Ninja
  -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=${package}/mingw-w64-x86_64.cmake
  -DDialogControlsOW_DIR=${package})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${EMULATOR} ${WORK_DIR}/build/client.exe --check)

string(REPLACE "\r" "" output "${output}")
if(NOT output STREQUAL "box 1: I\nbox 1: IP\nbox 1: IPE\n")
  message(FATAL_ERROR "the client printed:\n${output}")
endif()
