#include "AllocatedBytes.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> bytes{0};

}  // namespace

namespace vantorel {

std::size_t allocatedBytes()
{
    return bytes;
}

}  // namespace vantorel

void* operator new(std::size_t size)
{
    bytes += size;
    if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}

// `std::stable_sort` uses it with some compilers. All forms must take memory from the same place,
// since all is returned there.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    bytes += size;
    return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
