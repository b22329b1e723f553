# The package: a client finds it with find_package(DialogControlsOW) and links DialogControlsOW::DialogControlsOW.
# With the bundled MFC it carries the whole ground, so that a client builds and runs with nothing else.
include(CMakePackageConfigHelpers)

set(package_dir lib/cmake/DialogControlsOW)
set(modules DialogControlsOW)
if(NOT OW_GROUND)
  list(APPEND modules acadhost BaseSvcOW SettingsOW AcadOleSvcOW)
endif()
if(OW_MFC STREQUAL bundled)
  list(APPEND modules mfcow mfcow_main)
  install(DIRECTORY platform/mfc/include/ DESTINATION include/mfcow)
endif()

install(TARGETS ${modules} EXPORT DialogControlsOWTargets
  RUNTIME DESTINATION bin LIBRARY DESTINATION bin ARCHIVE DESTINATION lib)
install(FILES ${OW_RUNTIME_DLLS} DESTINATION bin)
install(EXPORT DialogControlsOWTargets NAMESPACE DialogControlsOW:: DESTINATION ${package_dir})

if(NOT OW_GROUND)
  install(DIRECTORY platform/acad/include/ DESTINATION include/acad)
  foreach(sibling BaseSvcOW SettingsOW AcadOleSvcOW)
    install(DIRECTORY platform/siblings/${sibling}/include/ DESTINATION include/${sibling})
  endforeach()
  install(DIRECTORY platform/siblings/locale/ DESTINATION bin/locale FILES_MATCHING PATTERN *.po)
endif()

# What the library keeps to itself is left out.
install(DIRECTORY src/ DESTINATION include/DialogControlsOW
  FILES_MATCHING PATTERN *.h
  PATTERN resources EXCLUDE
  PATTERN ExtensionModule.h EXCLUDE
  PATTERN HostResourceScope.h EXCLUDE
  PATTERN Initialize.h EXCLUDE
  PATTERN DialogControlsInterface.h EXCLUDE)

configure_package_config_file(cmake/DialogControlsOWConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/DialogControlsOWConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/DialogControlsOWConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/DialogControlsOWConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/DialogControlsOWConfigVersion.cmake
  cmake/mingw-w64-x86_64.cmake
  DESTINATION ${package_dir})
install(PROGRAMS cmake/rc-preprocessor DESTINATION ${package_dir})

# The gallery, ready to be started, and the examples with their sources.
install(TARGETS gallery RUNTIME DESTINATION bin)
install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/locale/gallery_en.po DESTINATION bin/locale)
install(DIRECTORY examples/ DESTINATION examples)
install(DIRECTORY apps/gallery/ DESTINATION examples/gallery
  PATTERN walk EXCLUDE PATTERN CMakeLists.txt EXCLUDE)
install(FILES docs/package/README.md CHANGELOG.md DESTINATION .)

# The guide, with links to where the package has things.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/guide.md)
file(READ docs/guide.md guide)
string(REPLACE "](../src/" "](../include/DialogControlsOW/" guide "${guide}")
string(REPLACE "](../apps/" "](../examples/" guide "${guide}")
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/guide.md "${guide}")
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/guide.md docs/mfc.md DESTINATION docs)

# What the compiler's run-time DLLs are given under.
foreach(package gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev)
  if(EXISTS /usr/share/doc/${package}/copyright)
    install(FILES /usr/share/doc/${package}/copyright DESTINATION licences RENAME ${package}.txt)
  endif()
endforeach()
if(EXISTS /usr/share/common-licenses/GPL-3)
  install(FILES /usr/share/common-licenses/GPL-3 DESTINATION licences RENAME GPL-3.txt)
endif()
