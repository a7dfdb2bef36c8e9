sig5d_test(contract contract/exports_test.cpp contract/calls_test.cpp contract/checks_test.cpp contract/index_test.cpp
           contract/checked_call_test.cpp contract/stage_test.cpp)
sig5d_test(variants variants/equality.cpp variants/equality_test.cpp variants/streams.cpp variants/streams_test.cpp
           variants/slots_test.cpp variants/digest_test.cpp)
set_source_files_properties(variants/equality.cpp PROPERTIES COMPILE_OPTIONS -O2) # millions of calls

# What no program of the library's own can see: the built objects, the committed generated files, their description.
if(NOT SIG5D_SANITIZE)
    add_test(NAME ${build}/objects COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/tools/objcheck.py --build ${CMAKE_BINARY_DIR}
                                  --objdump ${CMAKE_OBJDUMP})
    foreach(test committed description documentation contract_witness)
        add_test(NAME ${build}/${test} COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/contract/${test}_test.py)
    endforeach()
endif()

# The library as a file. A sanitizer's build has other imports.
if(NOT SIG5D_STATIC AND NOT SIG5D_SANITIZE)
    add_test(NAME ${build}/image
             COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/contract/image_test.py --image $<TARGET_FILE:sig5d>
                     --map ${CMAKE_BINARY_DIR}/Numlab.Sig5d.map --commands ${CMAKE_BINARY_DIR}/compile_commands.json
                     --version ${PROJECT_VERSION})
    add_test(NAME ${build}/reproducible COMMAND ${CMAKE_SOURCE_DIR}/tools/check-reproducible ${build})
endif()
