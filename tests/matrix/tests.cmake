sig5d_test(matrix matrix/transpose_test.cpp matrix/blocks_test.cpp matrix/bits_test.cpp)
