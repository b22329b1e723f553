# The modules that the library stands on, taken from an add-on of your own in place of the stand-ins:
#
#   cmake --preset msvc-real-modules -DADDON_SDK_DIR=C:/addon/sdk -DHOST_SDK_DIR=C:/host/sdk
#   cmake --build --preset msvc-real-modules --target DialogControlsOW
#
# Each is a folder of headers and an import library. The library includes, by these names: acdocman.h, aced.h and
# rxmfcapi.h of the host; Translator.h, ComplexUnit.h, MixedFont.h and MsgHook.h of BaseSvcOW; FormatJedinice.h and
# FormatTekstaKote.h of SettingsOW; FontManager.h and epgFont.h of AcadOleSvcOW. Where a real header has
# another name, a header of one line leads to it. What the library calls of them stands in the stand-ins' headers below
# platform/, and nothing more is needed.
set(ADDON_SDK_DIR "" CACHE PATH "Where include/ and lib/ of BaseSvcOW, SettingsOW and AcadOleSvcOW are")
set(HOST_SDK_DIR "" CACHE PATH "Where include/ and lib/ of the host are")

function(add_real_module name include library)
  foreach(needed ${include} ${library})
    if(NOT EXISTS ${needed})
      message(FATAL_ERROR "${name}: ${needed} is not there")
    endif()
  endforeach()
  add_library(${name} SHARED IMPORTED GLOBAL)
  set_target_properties(${name} PROPERTIES IMPORTED_IMPLIB ${library})
  target_include_directories(${name} INTERFACE ${include})
  target_link_libraries(${name} INTERFACE ${OW_MFC_TARGET} ${ARGN})
endfunction()

set(suffix ${CMAKE_IMPORT_LIBRARY_SUFFIX})
add_real_module(acadhost ${HOST_SDK_DIR}/include ${HOST_SDK_DIR}/lib/acadhost${suffix})
add_real_module(BaseSvcOW ${ADDON_SDK_DIR}/include/BaseSvcOW ${ADDON_SDK_DIR}/lib/BaseSvcOW${suffix})
add_real_module(SettingsOW ${ADDON_SDK_DIR}/include/SettingsOW ${ADDON_SDK_DIR}/lib/SettingsOW${suffix} BaseSvcOW)
add_real_module(AcadOleSvcOW ${ADDON_SDK_DIR}/include/AcadOleSvcOW ${ADDON_SDK_DIR}/lib/AcadOleSvcOW${suffix})
