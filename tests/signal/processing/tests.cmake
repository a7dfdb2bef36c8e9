sig5d_test(dct signal/processing/dct/transforms_test.cpp frame/dct_handles_test.cpp support/heap.cpp)
sig5d_test(fir signal/processing/fir/single_test.cpp signal/processing/fir/multi_test.cpp frame/fir_handles_test.cpp
           support/heap.cpp)
sig5d_test(companding signal/processing/companding/companding_test.cpp)
sig5d_test(correlation signal/processing/correlation/correlation_test.cpp signal/processing/correlation/convolution_test.cpp
           signal/processing/correlation/sizes_test.cpp)
sig5d_test(random signal/processing/generators/random_test.cpp)
sig5d_test(goertzel signal/processing/goertzel/goertzel_test.cpp)
sig5d_test(median signal/processing/median/median_test.cpp frame/median_handles_test.cpp support/heap.cpp)
sig5d_test(sampling signal/processing/sampling/sampling_test.cpp)
sig5d_test(iir signal/processing/iir/filter_test.cpp signal/processing/iir/state_test.cpp)
sig5d_test(sorting signal/processing/sorting/sorting_test.cpp)
# The sorting of each body, to play against it.
sig5d_test(misleading_keys signal/processing/sorting/misleading_test.cpp)
foreach(body ${SIG5D_BODIES_signal_processing_sorting_sort.kernels.cpp})
    list(FIND SIG5D_VARIANTS ${body} level)
    add_library(sig5d_misleading_${body} OBJECT signal/processing/sorting/misleading.cpp)
    target_include_directories(sig5d_misleading_${body} PRIVATE . ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/include
                                                              ${SIG5D_GENERATED})
    target_compile_definitions(sig5d_misleading_${body} PRIVATE SIG5D_VARIANT=${body} SIG5D_LEVEL=${level})
    target_compile_options(sig5d_misleading_${body} PRIVATE -O2 ${SIG5D_FLAGS_${body}})
    target_link_libraries(misleading_keys_test PRIVATE sig5d_misleading_${body})
endforeach()
sig5d_test(statistics signal/processing/statistics/sums_test.cpp signal/processing/statistics/deviation_test.cpp
           signal/processing/statistics/extremes_test.cpp signal/processing/statistics/integers_test.cpp)

# The transforms of each body, which no export shows.
add_library(sig5d_fft_bodies INTERFACE)
target_include_directories(sig5d_fft_bodies INTERFACE . ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/include
                                                      ${CMAKE_SOURCE_DIR}/tools/registry ${SIG5D_GENERATED})
foreach(body ${SIG5D_BODIES_signal_processing_fft})
    list(FIND SIG5D_VARIANTS ${body} level)
    add_library(sig5d_fft_${body} OBJECT signal/processing/fft/body.cpp)
    target_include_directories(sig5d_fft_${body} PRIVATE $<TARGET_PROPERTY:sig5d_fft_bodies,INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(sig5d_fft_${body} PRIVATE SIG5D_VARIANT=${body} SIG5D_LEVEL=${level})
    target_link_libraries(sig5d_fft_bodies INTERFACE $<TARGET_OBJECTS:sig5d_fft_${body}>)
endforeach()
sig5d_internal_test(fft signal/processing/fft/transforms_test.cpp)
target_link_libraries(fft_test PRIVATE sig5d_fft_bodies)

sig5d_test(windows signal/processing/windows/windows_test.cpp)
sig5d_test(test_signals signal/processing/generators/test_signals_test.cpp)
# What no call can ask for, of the plain body.
sig5d_internal_test(far_elements signal/processing/windows/weights_test.cpp signal/processing/generators/far_test.cpp)
target_compile_definitions(far_elements_test PRIVATE SIG5D_VARIANT=px SIG5D_LEVEL=0)
