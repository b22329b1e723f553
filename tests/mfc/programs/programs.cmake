# A program as a wizard makes it, which starts, shows its window and ends.
add_executable(mfc_wizard_dialog WIN32 mfc/programs/wizard_dialog.cpp mfc/programs/wizard_dialog.rc)
if(OW_MFC STREQUAL bundled)
  target_link_libraries(mfc_wizard_dialog PRIVATE mfcow_main)
endif()
add_test(NAME mfc/programs COMMAND package_starts "Wizard's dialog" $<TARGET_FILE:mfc_wizard_dialog>)
