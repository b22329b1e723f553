# Every exported class can be found from the guide, and every link of the documents leads somewhere.
#
#     cmake -DSOURCE_DIR=... -P guide.cmake

file(READ ${SOURCE_DIR}/docs/guide.md guide)

file(GLOB_RECURSE headers ${SOURCE_DIR}/src/*.h)
set(count 0)
foreach(header IN LISTS headers)
  file(STRINGS ${header} lines REGEX "^class OW_DIALOGCONTROLS_API ")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^class OW_DIALOGCONTROLS_API ([A-Za-z0-9_]+).*" "\\1" name "${line}")
    if(NOT guide MATCHES "[^A-Za-z0-9_]${name}[^A-Za-z0-9_]")
      message(SEND_ERROR "docs/guide.md does not name ${name} (${header})")
    endif()
    math(EXPR count "${count} + 1")
  endforeach()
endforeach()
if(count LESS 50)
  message(SEND_ERROR "only ${count} exported classes were found")
endif()

include(${CMAKE_CURRENT_LIST_DIR}/links.cmake)
file(GLOB pages ${SOURCE_DIR}/docs/guide.md ${SOURCE_DIR}/docs/tasks/*.md ${SOURCE_DIR}/examples/*/*.md
  ${SOURCE_DIR}/README.md ${SOURCE_DIR}/CONTRIBUTING.md ${SOURCE_DIR}/CHANGELOG.md)
foreach(page IN LISTS pages)
  check_links(${page})
endforeach()
