# Builds the example with its walk from the package, and walks: once to enter and keep values, and once more, as a program
# of its own, to find them again.
include(${SOURCE_DIR}/cmake/connection.cmake)
file(REMOVE_RECURSE ${WORK_DIR}/values)
file(MAKE_DIRECTORY ${SHOTS_DIR})
foreach(step enter again)
  run(${EMULATOR} ${WORK_DIR}/build/bin/connection_walk.exe ${step} ${WORK_DIR}/values ${SHOTS_DIR})
endforeach()
