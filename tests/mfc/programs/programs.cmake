# Small programs as clients write them, one for each source in clients/, with the .rc file of its name where there is
# one. The test starts them and works on their windows with real input.
file(GLOB clients CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/mfc/programs/clients/*.cpp)
foreach(source IN LISTS clients)
  get_filename_component(name ${source} NAME_WE)
  file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/mfc/programs/clients/${name}.rc)
  add_executable(mfc_${name} WIN32 ${source} ${resources})
  target_include_directories(mfc_${name} PRIVATE mfc/programs/clients)
  if(OW_MFC STREQUAL bundled)
    target_link_libraries(mfc_${name} PRIVATE mfcow_main)
  endif()
  add_dependencies(test_mfc_programs mfc_${name})
endforeach()
