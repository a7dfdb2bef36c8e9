# The scripts that a user meets first. Those of the Windows build are tested where its programs are.
if(WIN32)
    add_test(NAME ${build}/run_windows COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/tools/run_windows_test.py
                                               ${CMAKE_BINARY_DIR})
    add_test(NAME ${build}/setup COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/tools/setup_test.py)
endif()
