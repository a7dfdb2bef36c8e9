sig5d_test(integers vector/rounding_test.cpp vector/integer_division_test.cpp vector/bytes_test.cpp)
sig5d_test(vector vector/complex_division_test.cpp vector/complex_power_test.cpp vector/mixed_test.cpp
           vector/running_sum_test.cpp)
