// The library as it lies in memory: what it keeps between calls, by the names that the linker's map gives.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace support {

struct Variable {
    std::string name; // as the linker knows it
    uint8_t* at;
    size_t bytes;
};

// All that can be written to.
const std::vector<Variable>& libraryVariables();
// The one whose name ends like this; ends the program if there is none.
const Variable& libraryVariable(const std::string& name);

} // namespace support
