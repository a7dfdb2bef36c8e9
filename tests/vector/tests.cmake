sig5d_test(vector vector/complex_division_test.cpp vector/complex_power_test.cpp vector/mixed_test.cpp
           vector/running_sum_test.cpp)

# Exponential and logarithm, which no export shows as they are.
find_library(SIG5D_MPFR mpfr)
find_library(SIG5D_GMP gmp)
if(SIG5D_MPFR AND SIG5D_GMP AND NOT WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_library(sig5d_libm_exp OBJECT ${CMAKE_SOURCE_DIR}/src/kernel/libm_exp.cpp)
    target_link_libraries(sig5d_libm_exp PRIVATE sig5d_product)
    sig5d_test(powers_mpfr kernel/powers_mpfr_test.cpp $<TARGET_OBJECTS:sig5d_libm_exp>)
    target_include_directories(powers_mpfr_test PRIVATE ${CMAKE_SOURCE_DIR}/src ${SIG5D_GENERATED})
    target_link_libraries(powers_mpfr_test PRIVATE ${SIG5D_MPFR} ${SIG5D_GMP})
endif()
