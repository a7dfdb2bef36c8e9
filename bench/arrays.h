// The arrays that a case works on: page-touched, aligned, filled with tame values, and kept from disturbing each other.
#pragma once
#include "registry.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bench {

enum class Access { read, written, updated };

struct Array {
    std::string name;
    uint8_t* data;
    size_t bytes;
    Access access;
};

class Memory
{
public:
    // New arrays may take the place of all earlier ones.
    void reset() { arrays_.clear(), used_ = 0, reads_ = 0, writes_ = 0; }

    uint8_t* array(const std::string& name, size_t elements, registry::Element element, Access access);
    uint8_t* scratch(size_t bytes); // neither filled nor counted as traffic
    void refillUpdated();

    const std::vector<Array>& arrays() const { return arrays_; }
    size_t traffic() const; // bytes read plus bytes written

    static size_t limit(); // bytes that one case may ask for

    size_t misalignment = 0; // of each array, from 64 bytes

private:
    struct Block {
        std::unique_ptr<uint8_t[]> bytes;
        size_t size = 0;
    };
    uint8_t* place(size_t bytes, size_t offset);

    std::vector<Block> blocks_;
    size_t used_ = 0, reads_ = 0, writes_ = 0;
    std::vector<Array> arrays_;
    std::vector<std::vector<uint8_t>> content_; // of each array: what it is filled with, again and again
};

} // namespace bench
