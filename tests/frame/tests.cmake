sig5d_test(frame frame/features_test.cpp frame/status_test.cpp frame/memory_test.cpp frame/system_test.cpp)
sig5d_test(first_call frame/first_call_test.cpp)

# Detection is tested on recorded processors.
sig5d_internal_test(detection frame/detection_test.cpp frame/recorded_processors.cpp)
