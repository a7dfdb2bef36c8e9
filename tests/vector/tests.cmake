sig5d_test(integers vector/rounding_test.cpp vector/integer_division_test.cpp vector/bytes_test.cpp)
