#include "platform/Memory.h"

#include <malloc.h>

namespace vasker {

void returnFreedImages() {
    constexpr int smallestImage = 256 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, smallestImage); // a threshold that is set stays where it is
    ::mallopt(M_TRIM_THRESHOLD, smallestImage);
}

void returnThreadsMemory() {
    ::mallopt(M_MXFAST, 0); // each thread's own cache of freed blocks stays
}

std::size_t freedBytesKept() noexcept {
    return ::mallinfo2().fordblks;
}

void returnFreedMemory() noexcept {
    ::malloc_trim(0);
}

} // namespace vasker
