# The example of an add-on's dialog: its calculation by tables, and its windows, built from the installed package
# alone and driven by real input.
set(example ${CMAKE_SOURCE_DIR}/examples/connection)
add_library(connection_example STATIC
  ${example}/Steel.cpp ${example}/Model.cpp ${example}/Rules.cpp ${example}/Check.cpp ${example}/Parts.cpp)
target_include_directories(connection_example PUBLIC ${example})
ow_add_test(connection connection_example)

if(OW_INSTALL)
  add_test(NAME connection/walk COMMAND ${CMAKE_COMMAND}
    -DBUILD_DIR=${CMAKE_BINARY_DIR} -DSOURCE_DIR=${CMAKE_SOURCE_DIR} -DWORK_DIR=${CMAKE_BINARY_DIR}/connection
    -DSHOTS_DIR=${CMAKE_BINARY_DIR}/connection/shots -DEMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}
    -P ${CMAKE_CURRENT_SOURCE_DIR}/connection/walk.cmake)
  set_tests_properties(connection/walk PROPERTIES TIMEOUT 900)
endif()
