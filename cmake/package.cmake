# Makes a zip of the built tree for Windows: what `cmake --install` puts together, the reference, and a list of all files
# with their checksums.
#   cmake -DBUILD_DIR=... -DVERSION=... -DOUTPUT_DIR=... [-DREFERENCE_DIR=...] -P package.cmake
cmake_minimum_required(VERSION 3.21)
set(name DialogControlsOW-${VERSION}-x64)
set(root ${OUTPUT_DIR}/${name})
file(REMOVE_RECURSE ${root} ${root}.zip)

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${root} --strip
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
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
