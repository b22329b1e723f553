# Settings and helpers that every target of the tree shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# What a target links for MFC; the compiler's own comes by itself.
if(OW_MFC STREQUAL bundled)
  set(OW_MFC_TARGET mfcow)
else()
  set(OW_MFC_TARGET)
  set(CMAKE_MFC_FLAG 2)
  add_compile_definitions(_AFXDLL)
endif()

add_compile_definitions(UNICODE _UNICODE $<$<CONFIG:Debug>:_DEBUG>)
if(MSVC)
  add_compile_options(/W4 /WX /utf-8 /EHsc)
else()
  add_compile_options(-Wall -Wextra -Werror $<$<CXX_COMPILER_ID:Clang>:-ferror-limit=0> -finput-charset=UTF-8)
  add_compile_definitions(WINVER=0x0600 _WIN32_WINNT=0x0600 _WIN32_IE=0x0700)
endif()
if(OW_CHECK)
  # What a fault in arithmetic or in the use of a container would only sometimes show, ends the program at once. Left
  # out: null, as MFC documents calls of GetSafeHwnd and the like through null pointers; vptr, which wants a run-time
  # library that this compiler does not bring.
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_compile_options(-g1 -fsanitize=undefined -fsanitize-undefined-trap-on-error -fno-sanitize=null,vptr)
  add_library(ow_heap_check OBJECT ${PROJECT_SOURCE_DIR}/tests/check/HeapCheck.cpp)
  link_libraries(ow_heap_check)
endif()
if(OW_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# Clang does not link by itself what the threads of the packaged GCC's library stand on.
if(MINGW AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  link_libraries(winpthread)
endif()

# Resource scripts as dialog editors write them.
if(MINGW AND NOT CMAKE_HOST_WIN32)
  string(APPEND CMAKE_RC_FLAGS " \"--preprocessor=${CMAKE_CURRENT_LIST_DIR}/rc-preprocessor\"")
endif()

# The sources of a target: every .cpp below the given folders of the current one.
function(ow_glob_sources out)
  set(patterns)
  foreach(dir IN LISTS ARGN)
    list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${dir}/*.cpp)
  endforeach()
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${patterns})
  set(${out} ${sources} PARENT_SCOPE)
endfunction()

# A DLL whose file name is exactly the module's name, with no "lib" in front, and which says its version.
function(ow_add_module name description)
  set(version ${CMAKE_CURRENT_BINARY_DIR}/${name}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${version} @ONLY)
  add_library(${name} SHARED ${ARGN} ${version})
  set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "")
  add_library(DialogControlsOW::${name} ALIAS ${name})
endfunction()

# MFC's headers are large: compiled once for each target.
function(ow_precompile_mfc target)
  target_precompile_headers(${target} PRIVATE <afxwin.h> <afxcmn.h> <afxtempl.h> ${ARGN})
endfunction()

# The compiler's run-time DLLs stand beside the programs and are not linked in:
# exceptions and dynamic_cast across DLLs need one copy of each for the process.
if(MINGW)
  if(NOT OW_GCC_DIR)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
      OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE)
    get_filename_component(OW_GCC_DIR ${libgcc} DIRECTORY)
  endif()
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    find_file(OW_${dll} ${dll} PATHS ${OW_GCC_DIR} /usr/x86_64-w64-mingw32/lib NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    if(NOT OW_${dll})
      message(FATAL_ERROR "The compiler's run-time DLL ${dll} was not found; is g++-mingw-w64-x86-64-posix installed?")
    endif()
    list(APPEND OW_RUNTIME_DLLS ${OW_${dll}})
  endforeach()
  file(COPY ${OW_RUNTIME_DLLS} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()
