sig5d_test(elementwise_bits signal/copy_test.cpp signal/logic_test.cpp signal/bit_string_test.cpp)

# Kernels compiled for this test alone, which sets when they stream.
foreach(width 16 32)
    set(elementwise ${CMAKE_SOURCE_DIR}/src/signal/elementwise)
    add_library(sig5d_stream${width} OBJECT ${elementwise}/copy.kernels.cpp ${elementwise}/logic.kernels.cpp
                                            ${elementwise}/flip.kernels.cpp)
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

sig5d_test(fir signal/fir_single_test.cpp signal/fir_multi_test.cpp frame/fir_handles_test.cpp)

sig5d_test(polar signal/polar_test.cpp)
if(TARGET libm_mpfr_test) # where MPFR is
    sig5d_test(polar_mpfr signal/polar_mpfr_test.cpp)
    target_link_libraries(polar_mpfr_test PRIVATE ${SIG5D_MPFR} ${SIG5D_GMP})
endif()
