# Two extension modules for the tests of the chain, from one source: the program imports the first, which is
# therefore attached before AfxWinInit, and loads the second by hand.
foreach(which early late)
  set(module mfc_test_extension_${which})
  add_library(${module} SHARED mfc/windows/ext/TestExtension.cpp mfc/windows/ext/TestExtension_${which}.rc)
  set_target_properties(${module} PROPERTIES PREFIX "" IMPORT_PREFIX "")
  target_compile_definitions(${module} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:_AFXEXT>)
  target_link_libraries(${module} PRIVATE ${OW_MFC_TARGET})
  add_dependencies(test_mfc_windows ${module})
endforeach()
target_include_directories(test_mfc_windows PRIVATE mfc/windows/ext)
target_link_libraries(test_mfc_windows PRIVATE mfc_test_extension_early)
