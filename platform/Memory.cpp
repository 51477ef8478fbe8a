#include "platform/Memory.h"

#include <malloc.h>

namespace vasker {

void returnFreedPictures() {
    constexpr int smallestPicture = 256 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, smallestPicture); // a threshold that is set stays where it is
    ::mallopt(M_TRIM_THRESHOLD, smallestPicture);
}

} // namespace vasker
