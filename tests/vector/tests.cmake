sig5d_test(vector vector/complex_division_test.cpp)
