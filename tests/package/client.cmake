# Makes the package, unpacks it into a folder with a blank in its name, holds every file against its checksum, builds the
# client of examples/client against it, runs it, and starts what is ready to be started.
#   cmake -DBUILD_DIR=... -DVERSION=... -DPACKAGE_SCRIPT=... -DWORK_DIR=... -DEMULATOR=... -DSTARTS=package_starts.exe
#     [-DZIP=...] -P client.cmake
# With ZIP that package is taken, and none is made.
cmake_minimum_required(VERSION 3.21)
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/client.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/../docs/links.cmake)
file(REMOVE_RECURSE ${WORK_DIR})

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
foreach(needed bin/gallery.exe bin/locale/gallery_en.po bin/connection.exe bin/locale/connection_en.po
    bin/libstdc++-6.dll licences/GPL-3.txt CHANGELOG.md examples/gallery/main.cpp examples/connection/main.cpp)
  if(NOT EXISTS ${root}/${needed})
    message(FATAL_ERROR "${needed} is missing")
  endif()
endforeach()

foreach(page README.md CHANGELOG.md docs/guide.md examples/connection/README.md)
  check_links(${root}/${page})
endforeach()

set(build "${WORK_DIR}/add on/client-build")
build_client(${root}/examples/client ${build} ${root})
run(${EMULATOR} ${build}/client.exe --check)

string(REPLACE "\r" "" output "${output}")
if(NOT output STREQUAL "box 1: I\nbox 1: IP\nbox 1: IPE\n")
  message(FATAL_ERROR "the client printed:\n${output}")
endif()

run(${EMULATOR} ${STARTS} "Dialog controls" ${root}/bin/gallery.exe)
run(${EMULATOR} ${STARTS} "Beam to column connection" ${root}/bin/connection.exe en)
