# The programs of examples/. They load the library, so the static build has none.
if(NOT SIG5D_STATIC)
    add_test(NAME ${build}/first_steps COMMAND first_steps)
    set_tests_properties(${build}/first_steps PROPERTIES PASS_REGULAR_EXPRESSION "^1 2 1 0 2 4 2 0 ippStsNoErr: No errors\\.\r?\n$")
    add_test(NAME ${build}/demo COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/examples/demo_test.py
                                        ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:demo>)
endif()
add_test(NAME ${build}/readme COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/examples/readme_test.py)
