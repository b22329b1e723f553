# Public headers include <afxtempl.h> where they use its templates, as not every MFC's <afxwin.h> brings it along.
# What others they need comes out as each is compiled alone.
#   cmake -DSOURCE_DIR=... -DHEADERS="room/Header.h ..." -P includes.cmake
string(REPLACE " " ";" HEADERS "${HEADERS}")
set(faults)
foreach(header IN LISTS HEADERS)
  file(READ ${SOURCE_DIR}/${header} code)
  string(REGEX REPLACE "//[^\n]*" "" code "${code}")
  if(NOT code MATCHES "#include <afxtempl.h>" AND code MATCHES "[^A-Za-z_0-9](C(Array|List|Map|TypedPtr[A-Za-z]+))[^A-Za-z_0-9]")
    string(APPEND faults "${header} uses ${CMAKE_MATCH_1} and does not include <afxtempl.h>\n")
  endif()
  if(code MATCHES "#include <windows.h>")
    string(APPEND faults "${header} includes <windows.h>, which MFC wants to include itself\n")
  endif()
endforeach()
if(faults)
  message(FATAL_ERROR "${faults}")
endif()
