# Installs the package, builds the example with its walk against it, and walks: once to enter and keep values, and once
# more, as a program of its own, to find them again.
file(REMOVE_RECURSE ${WORK_DIR}/package ${WORK_DIR}/values)
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(REPLACE ";" " " command "${ARGN}")
    message(FATAL_ERROR "failed: ${command}\n${output}")
  endif()
endfunction()

set(package ${WORK_DIR}/package/lib/cmake/DialogControlsOW)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/package)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/connection/walk -B ${WORK_DIR}/build -G Ninja
  -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=${package}/mingw-w64-x86_64.cmake
  -DDialogControlsOW_DIR=${package})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
file(MAKE_DIRECTORY ${SHOTS_DIR})
foreach(step enter again)
  run(${EMULATOR} ${WORK_DIR}/build/bin/connection_walk.exe ${step} ${WORK_DIR}/values ${SHOTS_DIR})
endforeach()
