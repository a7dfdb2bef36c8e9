sig5d_test(elementwise_bits signal/copy_test.cpp signal/logic_test.cpp signal/bit_string_test.cpp)
sig5d_test(elementwise_float signal/arith_float_test.cpp signal/root_test.cpp)
sig5d_test(elementwise_scaled signal/scaled_test.cpp)
sig5d_test(threshold signal/threshold_test.cpp)
sig5d_test(convert signal/convert_test.cpp)

# Kernels compiled for this test alone, which sets when they stream.
set(streaming_kernels
    signal/elementwise/copy
    signal/elementwise/logic
    signal/elementwise/flip
    signal/elementwise/arith_complex
    signal/elementwise/divide
    signal/elementwise/complex_parts
    signal/elementwise/scaled_sums
    matrix/submatrix
    matrix/transpose)
list(TRANSFORM streaming_kernels PREPEND ${CMAKE_SOURCE_DIR}/src/)
list(TRANSFORM streaming_kernels APPEND .kernels.cpp)
set_source_files_properties(${streaming_kernels} PROPERTIES COMPILE_OPTIONS -fno-stack-protector) # the guard is the DLL's
foreach(width 16 32)
    add_library(sig5d_stream${width} OBJECT ${streaming_kernels})
    target_link_libraries(sig5d_stream${width} PRIVATE sig5d_product)
endforeach()
target_compile_definitions(sig5d_stream16 PRIVATE SIG5D_VARIANT=stream16 SIG5D_LEVEL=1)
target_compile_options(sig5d_stream16 PRIVATE ${SIG5D_FLAGS_w7})
target_compile_definitions(sig5d_stream32 PRIVATE SIG5D_VARIANT=stream32 SIG5D_LEVEL=5)
target_compile_options(sig5d_stream32 PRIVATE ${SIG5D_FLAGS_h9})
sig5d_test(stream kernel/stream_test.cpp $<TARGET_OBJECTS:sig5d_stream16> $<TARGET_OBJECTS:sig5d_stream32>)
target_include_directories(stream_test PRIVATE ${CMAKE_SOURCE_DIR}/src ${SIG5D_GENERATED})
target_compile_definitions(stream_test PRIVATE $<$<BOOL:${SIG5D_STATIC}>:SIG5D_STATIC>)

sig5d_test(fft signal/processing/fft_test.cpp)
target_link_libraries(fft_test PRIVATE sig5d_test_internal)

sig5d_test(fir signal/fir_single_test.cpp signal/fir_multi_test.cpp frame/fir_handles_test.cpp
           support/heap.cpp)

# Conversions and complex thresholds in the same way; the narrow body is that of SSSE3, which packs bytes.
foreach(width 16 32)
    set(elementwise ${CMAKE_SOURCE_DIR}/src/signal/elementwise)
    add_library(sig5d_convertstream${width} OBJECT ${elementwise}/convert_24.kernels.cpp
                ${elementwise}/convert_round.kernels.cpp ${elementwise}/swap_bytes.kernels.cpp
                ${elementwise}/threshold_complex.kernels.cpp)
    target_link_libraries(sig5d_convertstream${width} PRIVATE sig5d_product)
endforeach()
target_compile_definitions(sig5d_convertstream16 PRIVATE SIG5D_VARIANT=convertstream16 SIG5D_LEVEL=2)
target_compile_options(sig5d_convertstream16 PRIVATE ${SIG5D_FLAGS_s8})
target_compile_definitions(sig5d_convertstream32 PRIVATE SIG5D_VARIANT=convertstream32 SIG5D_LEVEL=5)
target_compile_options(sig5d_convertstream32 PRIVATE ${SIG5D_FLAGS_h9})
sig5d_test(convert_stream kernel/convert_stream_test.cpp $<TARGET_OBJECTS:sig5d_convertstream16>
           $<TARGET_OBJECTS:sig5d_convertstream32>)
target_include_directories(convert_stream_test PRIVATE ${CMAKE_SOURCE_DIR}/src ${SIG5D_GENERATED})
target_compile_definitions(convert_stream_test PRIVATE $<$<BOOL:${SIG5D_STATIC}>:SIG5D_STATIC>)
if(NOT SIG5D_STATIC)
    target_link_libraries(convert_stream_test PRIVATE $<$<BOOL:${WIN32}>:ssp>)
endif()

sig5d_test(polar signal/polar_test.cpp)
if(TARGET libm_mpfr_test) # where MPFR is
    sig5d_test(polar_mpfr signal/polar_mpfr_test.cpp)
    target_link_libraries(polar_mpfr_test PRIVATE ${SIG5D_MPFR} ${SIG5D_GMP})
endif()
