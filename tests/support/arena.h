// Memory with an inaccessible page at either end, seen twice: as the function under test sees it (read-only where the
// function only reads) and as the test writes it.
#pragma once
#include <cstddef>
#include <cstdint>

namespace support {

class GuardedRegion
{
public:
    explicit GuardedRegion(size_t bytes);
    ~GuardedRegion(); // a 32-bit process has no addresses for the regions of a thousand functions
    GuardedRegion(const GuardedRegion&) = delete;
    GuardedRegion& operator=(const GuardedRegion&) = delete;

    size_t size() const { return size_; }
    uint8_t* own() const { return own_; }             // the test's view
    uint8_t* readWrite() const { return readWrite_; } // the function's views of the same memory
    uint8_t* readOnly() const { return readOnly_; }
    void lock(bool locked) const; // makes readWrite() read-only, for memory that holds addresses of itself

private:
    size_t size_;
    uint8_t *own_, *readWrite_, *readOnly_;
};

// Prints "what" and ends the test with a failure when the function touches a guarded page.
void onFault(const char* (*what)());

} // namespace support
