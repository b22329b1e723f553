# Makes a zip of the built tree for Windows: what `cmake --install` puts together, the connection example, built from just
# that and ready to be started, the reference, and a list of all files with their checksums.
#   cmake -DBUILD_DIR=... -DVERSION=... -DOUTPUT_DIR=... [-DREFERENCE_DIR=...] -P package.cmake
cmake_minimum_required(VERSION 3.21)
include(${CMAKE_CURRENT_LIST_DIR}/client.cmake)
set(name DialogControlsOW-${VERSION}-x64)
set(root ${OUTPUT_DIR}/${name})
file(REMOVE_RECURSE ${root} ${root}.zip)

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${root} --strip)
set(example ${OUTPUT_DIR}/connection-packed)
build_client(${root}/examples/connection ${example} ${root})
run(${CMAKE_COMMAND} --install ${example} --prefix ${root} --strip)
if(REFERENCE_DIR)
  file(COPY ${REFERENCE_DIR}/ DESTINATION ${root}/docs/reference PATTERN *.log EXCLUDE PATTERN *.txt EXCLUDE)
endif()

file(GLOB_RECURSE files RELATIVE ${root} ${root}/*)
list(SORT files)
set(list "")
foreach(file IN LISTS files)
  file(SHA256 ${root}/${file} sum)
  string(APPEND list "${sum}  ${file}\n")
endforeach()
file(WRITE ${root}/SHA256SUMS "${list}")

execute_process(COMMAND ${CMAKE_COMMAND} -E tar cf ${name}.zip --format=zip ${name}
  WORKING_DIRECTORY ${OUTPUT_DIR} COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${root})
