# Builds the example of an add-on's dialog, and the walk through it, with the package of a built tree:
#   cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -P connection.cmake
# The programs come to WORK_DIR/build/bin.
include(${CMAKE_CURRENT_LIST_DIR}/client.cmake)
file(REMOVE_RECURSE ${WORK_DIR}/package)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/package)
build_client(${SOURCE_DIR}/tests/connection/walk ${WORK_DIR}/build ${WORK_DIR}/package)
