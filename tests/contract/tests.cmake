sig5d_test(contract contract/exports_test.cpp contract/calls_test.cpp contract/checks_test.cpp contract/index_test.cpp
           contract/checked_call_test.cpp contract/stage_test.cpp)
sig5d_test(variants variants/equality.cpp variants/equality_test.cpp variants/streams.cpp variants/streams_test.cpp
           variants/slots_test.cpp variants/digest_test.cpp)
set_source_files_properties(variants/equality.cpp PROPERTIES COMPILE_OPTIONS -O2) # millions of calls

# The same calls in surroundings that hosts have: modes, exceptions, large arrays, little stack. Sanitizers have their
# own stack and variables.
if(NOT SIG5D_SANITIZE)
    sig5d_test(surroundings variants/exceptions_test.cpp variants/rounding_modes_test.cpp
               variants/streaming_test.cpp variants/footprint_test.cpp variants/subject.cpp support/module.cpp)
    set(map ${CMAKE_BINARY_DIR}/Numlab.Sig5d.map)
    if(SIG5D_STATIC)
        set(map ${CMAKE_BINARY_DIR}/surroundings_test.map)
        target_link_options(surroundings_test PRIVATE -Wl,-Map,${map})
        target_compile_definitions(surroundings_test PRIVATE SIG5D_STATIC)
    endif()
    target_compile_definitions(surroundings_test PRIVATE SIG5D_MAP="${map}")
endif()

# What no program of the library's own can see: the built objects.
if(NOT SIG5D_SANITIZE AND NOT SIG5D_COVERAGE)
    add_test(NAME ${build}/objects COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/tools/objcheck.py --build ${CMAKE_BINARY_DIR}
                                  --objdump ${CMAKE_OBJDUMP} --nm ${CMAKE_NM})
endif()

# What is the same in all builds: the committed files, the rules for sources, the formatting.
if(build STREQUAL linux)
    foreach(name committed contract_witness description documentation arrows objects_checker)
        add_test(NAME ${build}/${name} COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/contract/${name}_test.py)
    endforeach()
    add_test(NAME ${build}/generator COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/apigen/generator_test.py)
    add_test(NAME ${build}/lint COMMAND ${CMAKE_SOURCE_DIR}/tools/lint --quick)
endif()

# The library as a file. A sanitizer's build has other imports.
if(NOT SIG5D_STATIC AND NOT SIG5D_SANITIZE AND NOT SIG5D_COVERAGE)
    add_test(NAME ${build}/image
             COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/contract/image_test.py --image $<TARGET_FILE:sig5d>
                     --map ${CMAKE_BINARY_DIR}/Numlab.Sig5d.map --commands ${CMAKE_BINARY_DIR}/compile_commands.json
                     --version ${PROJECT_VERSION})
    # The DLL as a whole; of a second platform's files one variant's, since each build without a cache takes minutes.
    set(extent --sample)
    if(WIN32)
        unset(extent)
    endif()
    add_test(NAME ${build}/reproducible COMMAND ${CMAKE_SOURCE_DIR}/tools/check-reproducible ${extent} ${build})
endif()
