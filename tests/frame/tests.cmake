sig5d_test(frame frame/features_test.cpp frame/status_test.cpp frame/memory_test.cpp frame/system_test.cpp)
sig5d_test(first_call frame/first_call_test.cpp)

# Detection is tested on recorded processors, with the library's own sources.
sig5d_test(detection frame/detection_test.cpp frame/recorded_processors.cpp)
target_include_directories(detection_test PRIVATE ${CMAKE_SOURCE_DIR}/src)
if(NOT SIG5D_STATIC)
    foreach(source cpuid features cache_size core_count frequency)
        target_sources(detection_test PRIVATE ${CMAKE_SOURCE_DIR}/src/frame/${source}.cpp)
    endforeach()
endif()
target_include_directories(detection_test PRIVATE ${SIG5D_GENERATED})
