#include "base/AllocationCounter.hpp"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t allocations = 0;

} // namespace

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size) {
    if (void* const memory = operator new(size, std::nothrow)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace kestrelfen {

std::uint64_t allocationCount() {
    return allocations;
}

} // namespace kestrelfen
