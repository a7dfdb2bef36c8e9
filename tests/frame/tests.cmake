sig5d_test(frame frame/features_test.cpp frame/status_test.cpp frame/memory_test.cpp frame/system_test.cpp
           support/heap.cpp)
sig5d_test(first_call frame/first_call_test.cpp)

# The library is loaded and unloaded again and again by a program that is not linked with it.
if(NOT SIG5D_STATIC AND NOT SIG5D_SANITIZE)
    add_executable(reload_test frame/reload_test.cpp)
    target_include_directories(reload_test PRIVATE ${CMAKE_SOURCE_DIR}/include)
    target_compile_definitions(reload_test PRIVATE SIG5D_LIBRARY="$<TARGET_FILE_NAME:sig5d>")
    target_link_libraries(reload_test PRIVATE GTest::gtest GTest::gtest_main ${CMAKE_DL_LIBS})
    add_dependencies(reload_test sig5d)
    if(WIN32)
        target_link_options(reload_test PRIVATE -static)
    endif()
    set_target_properties(reload_test PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR} BUILD_RPATH ${CMAKE_BINARY_DIR})
    add_test(NAME ${build}/reload COMMAND reload_test)
endif()

# Detection is tested on recorded processors.
sig5d_internal_test(detection frame/detection_test.cpp frame/frequency_test.cpp frame/recorded_processors.cpp)

# The frame's own sources on processors that the tests choose, with calls that come in between each other.
set(machine_sources selection detected features cache_size core_count cpuid frequency system)
list(TRANSFORM machine_sources PREPEND ${CMAKE_SOURCE_DIR}/src/frame/)
list(TRANSFORM machine_sources APPEND .cpp)
add_executable(
    machine_test
    frame/machine/machine.cpp frame/machine/queries_test.cpp frame/machine/interleaving_test.cpp
    frame/recorded_processors.cpp ${machine_sources})
target_include_directories(machine_test PRIVATE frame/machine . ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR}/src
                                                ${SIG5D_GENERATED})
target_compile_options(machine_test PRIVATE ${optimise} -Wall -Wextra -msse2 -mfpmath=sse)
target_link_libraries(machine_test PRIVATE GTest::gtest GTest::gtest_main)
if(WIN32)
    target_link_options(machine_test PRIVATE -static)
endif()
set_target_properties(machine_test PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
add_test(NAME ${build}/machine COMMAND machine_test)
