sig5d_test(elementwise_bits signal/copy_test.cpp signal/logic_test.cpp signal/bit_string_test.cpp)
sig5d_test(elementwise_float signal/arith_float_test.cpp signal/root_test.cpp)
sig5d_test(elementwise_scaled signal/scaled_test.cpp)
sig5d_test(threshold signal/threshold_test.cpp)
sig5d_test(convert signal/convert_test.cpp)
sig5d_test(fir signal/fir_single_test.cpp signal/fir_multi_test.cpp frame/fir_handles_test.cpp
           support/heap.cpp)

# The transforms of each body, which no export shows, behind one table.
add_library(sig5d_fft_bodies INTERFACE)
target_include_directories(sig5d_fft_bodies INTERFACE . ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/include ${SIG5D_GENERATED})
set(bodies px w7 g9)
set(levels 0 1 4)
foreach(body level IN ZIP_LISTS bodies levels)
    add_library(sig5d_fft_${body} OBJECT support/fft_body.cpp)
    target_include_directories(sig5d_fft_${body} PRIVATE $<TARGET_PROPERTY:sig5d_fft_bodies,INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(sig5d_fft_${body} PRIVATE SIG5D_VARIANT=${body} SIG5D_LEVEL=${level})
    target_link_libraries(sig5d_fft_bodies INTERFACE $<TARGET_OBJECTS:sig5d_fft_${body}>)
endforeach()
sig5d_internal_test(fft signal/processing/fft_test.cpp)
target_link_libraries(fft_test PRIVATE sig5d_fft_bodies)

sig5d_test(polar signal/polar_test.cpp)
if(TARGET libm_mpfr_test) # where MPFR is
    sig5d_test(polar_mpfr signal/polar_mpfr_test.cpp)
    target_link_libraries(polar_mpfr_test PRIVATE ${SIG5D_MPFR} ${SIG5D_GMP})
endif()
