# Makes the package, unpacks it into a folder with a blank in its name, holds every file against its checksum, builds the
# client of examples/client against it, runs it, and looks whether the gallery starts.
#   cmake -DBUILD_DIR=... -DVERSION=... -DPACKAGE_SCRIPT=... -DWORK_DIR=... -DEMULATOR=... [-DZIP=...] -P client.cmake
# With ZIP that package is taken, and none is made.
cmake_minimum_required(VERSION 3.21)
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(REPLACE ";" " " command "${ARGN}")
    message(FATAL_ERROR "failed: ${command}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

set(name DialogControlsOW-${VERSION}-x64)
if(NOT ZIP)
  run(${CMAKE_COMMAND} -DBUILD_DIR=${BUILD_DIR} -DVERSION=${VERSION} -DOUTPUT_DIR=${WORK_DIR} -P ${PACKAGE_SCRIPT})
  set(ZIP ${WORK_DIR}/${name}.zip)
endif()
file(ARCHIVE_EXTRACT INPUT ${ZIP} DESTINATION "${WORK_DIR}/add on")
set(root "${WORK_DIR}/add on/${name}")

# What is listed is there as it was, and nothing else is.
file(STRINGS ${root}/SHA256SUMS sums)
file(GLOB_RECURSE files RELATIVE ${root} ${root}/*)
list(REMOVE_ITEM files SHA256SUMS)
foreach(line IN LISTS sums)
  string(SUBSTRING "${line}" 0 64 listed)
  string(SUBSTRING "${line}" 66 -1 file)
  file(SHA256 "${root}/${file}" sum)
  if(NOT sum STREQUAL listed)
    message(FATAL_ERROR "${file} is not the file that was packed")
  endif()
  list(REMOVE_ITEM files "${file}")
endforeach()
if(files)
  message(FATAL_ERROR "not in the list of files: ${files}")
endif()
foreach(needed bin/gallery.exe bin/libstdc++-6.dll licences/GPL-3.txt CHANGELOG.md examples/gallery/main.cpp)
  if(NOT EXISTS ${root}/${needed})
    message(FATAL_ERROR "${needed} is missing")
  endif()
endforeach()

set(package "${root}/lib/cmake/DialogControlsOW")
set(build "${WORK_DIR}/add on/client-build")
run(${CMAKE_COMMAND} -S ${root}/examples/client -B ${build} -G Ninja
  -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=${package}/mingw-w64-x86_64.cmake
  -DDialogControlsOW_DIR=${package})
run(${CMAKE_COMMAND} --build ${build})
run(${EMULATOR} ${build}/client.exe --check)

string(REPLACE "\r" "" output "${output}")
if(NOT output STREQUAL "box 1: I\nbox 1: IP\nbox 1: IPE\n")
  message(FATAL_ERROR "the client printed:\n${output}")
endif()
