sig5d_test(image_filters image/filter_test.cpp image/border_test.cpp)
