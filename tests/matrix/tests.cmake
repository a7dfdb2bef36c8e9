sig5d_test(matrix matrix/transpose_test.cpp matrix/blocks_test.cpp matrix/bits_test.cpp)
sig5d_test(masks matrix/pack_test.cpp matrix/find_test.cpp matrix/histogram_test.cpp)
