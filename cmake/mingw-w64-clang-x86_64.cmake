# The same target as mingw-w64-x86_64.cmake with the other compiler: clang, against the headers, libraries and
# run-time DLLs of the packaged GCC (posix threads), which it does not find by itself on Debian.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-x86_64.cmake)

file(GLOB gcc_dirs /usr/lib/gcc/x86_64-w64-mingw32/*-posix)
if(NOT gcc_dirs)
  message(FATAL_ERROR "No GCC for x86_64-w64-mingw32 with posix threads; is g++-mingw-w64-x86-64-posix installed?")
endif()
list(GET gcc_dirs -1 OW_GCC_DIR)

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_FLAGS_INIT "-isystem ${OW_GCC_DIR}/include/c++ -isystem ${OW_GCC_DIR}/include/c++/x86_64-w64-mingw32")
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-L${OW_GCC_DIR} -fuse-ld=/usr/bin/x86_64-w64-mingw32-ld")
endforeach()
