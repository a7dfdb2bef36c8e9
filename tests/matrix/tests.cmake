sig5d_test(masks matrix/pack_test.cpp matrix/find_test.cpp matrix/histogram_test.cpp)
