# For scripts that use the package as a client does.

# Runs a command, and leaves in `output` what it prints. A failure ends the script.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result
    OUTPUT_VARIABLE output ERROR_VARIABLE output ECHO_OUTPUT_VARIABLE ECHO_ERROR_VARIABLE)
  if(NOT result EQUAL 0)
    string(REPLACE ";" " " command "${ARGN}")
    message(FATAL_ERROR "failed: ${command}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# Builds a client's sources in a folder of their own against the package that stands in another.
function(build_client sources build package)
  set(config ${package}/lib/cmake/DialogControlsOW)
  run(${CMAKE_COMMAND} -S ${sources} -B ${build} -G Ninja -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_TOOLCHAIN_FILE=${config}/mingw-w64-x86_64.cmake -DDialogControlsOW_DIR=${config})
  run(${CMAKE_COMMAND} --build ${build})
endfunction()
