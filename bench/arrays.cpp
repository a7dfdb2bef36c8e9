#include "arrays.h"
#include "values.h"
#include <algorithm>
#include <cstring>

namespace bench {
namespace {

constexpr size_t page = 4096, patternElements = 1 << 16;

void tile(uint8_t* d, size_t bytes, const std::vector<uint8_t>& content)
{
    for (size_t at = 0; at < bytes; at += content.size())
        std::memcpy(d + at, content.data(), std::min(content.size(), bytes - at));
}

} // namespace

// A load waits for a store in flight whose address has the same last 12 bits. Most loops load ahead of where they
// store, so that what is written stands, modulo a page, a little below what is read: it meets those addresses last.
uint8_t* Memory::array(const std::string& name, size_t elements, registry::Element element, Access access)
{
    const size_t bytes = elements * static_cast<size_t>(registry::elementBytes(element));
    constexpr size_t apart = 384;
    const size_t offset = access == Access::read ? apart * (reads_++ % 4) : page - apart * (1 + writes_++ % 4);
    uint8_t* const data = place(bytes, offset + misalignment);

    const size_t n = arrays_.size();
    content_.resize(n + 1);
    registry::Random random(n + 1);
    const size_t pattern = std::max<size_t>(1, std::min(elements, patternElements));
    content_[n].assign(pattern * static_cast<size_t>(registry::elementBytes(element)), 0);
    if (access != Access::written)
        registry::fill(random, element, registry::Pattern::tame, content_[n].data(), pattern);
    tile(data, bytes, content_[n]);
    arrays_.push_back({name, data, bytes, access});
    return data;
}

uint8_t* Memory::scratch(size_t bytes)
{
    uint8_t* const data = place(bytes, page / 2);
    std::memset(data, 0, bytes);
    return data;
}

void Memory::refillUpdated()
{
    for (size_t i = 0; i < arrays_.size(); ++i)
        if (arrays_[i].access == Access::updated) tile(arrays_[i].data, arrays_[i].bytes, content_[i]);
}

size_t Memory::traffic() const
{
    size_t sum = 0;
    for (const Array& a : arrays_) sum += a.bytes * (a.access == Access::updated ? 2 : 1);
    return sum;
}

size_t Memory::limit() { return sizeof(void*) == 4 ? size_t(1000) << 20 : size_t(2000) << 20; }

uint8_t* Memory::place(size_t bytes, size_t offset)
{
    if (used_ == blocks_.size()) blocks_.emplace_back();
    Block& b = blocks_[used_++];
    const size_t size = bytes + 3 * page;
    if (b.size < size) {
        for (size_t i = used_ - 1; i < blocks_.size(); ++i) blocks_[i] = {}; // old and new need not fit together
        b.bytes.reset(new uint8_t[size]);
        b.size = size;
    }
    const uintptr_t start = (reinterpret_cast<uintptr_t>(b.bytes.get()) + page - 1) / page * page + offset;
    return reinterpret_cast<uint8_t*>(start);
}

} // namespace bench
