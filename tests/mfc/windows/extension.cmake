# An extension module for the tests of the chain, which they load by hand.
add_library(mfc_test_extension SHARED mfc/windows/ext/TestExtension.cpp mfc/windows/ext/TestExtension.rc)
set_target_properties(mfc_test_extension PROPERTIES PREFIX "" IMPORT_PREFIX "")
target_compile_definitions(mfc_test_extension PRIVATE $<$<COMPILE_LANGUAGE:CXX>:_AFXEXT>)
target_link_libraries(mfc_test_extension PRIVATE ${OW_MFC_TARGET})
add_dependencies(test_mfc_windows mfc_test_extension)
