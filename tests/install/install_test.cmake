# Registers the install test once, whichever folder includes this first.
get_property(quovara_install_test_added GLOBAL PROPERTY QUOVARA_INSTALL_TEST_ADDED)
if(NOT quovara_install_test_added AND QUOVARA_GUI)
    set_property(GLOBAL PROPERTY QUOVARA_INSTALL_TEST_ADDED TRUE)
    add_test(NAME install.DesktopIntegration
        COMMAND bash ${CMAKE_CURRENT_LIST_DIR}/check-install.sh ${CMAKE_COMMAND} ${CMAKE_BINARY_DIR})
    # 77: the desktop-file tools are missing; the test says so and counts as skipped.
    set_tests_properties(install.DesktopIntegration PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 120)
endif()
