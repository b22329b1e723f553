# A small program as clients write them. The test starts it and works on its windows with real input.
set(clients mfc/programs/clients)
add_executable(mfc_property_sheet WIN32 ${clients}/property_sheet.cpp ${clients}/property_sheet.rc)
target_include_directories(mfc_property_sheet PRIVATE ${clients})
if(OW_MFC STREQUAL bundled)
  target_link_libraries(mfc_property_sheet PRIVATE mfcow_main)
endif()
add_dependencies(test_mfc_programs mfc_property_sheet)
