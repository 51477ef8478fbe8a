#include "platform/Descriptors.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vasker {

bool canOpenDescriptors(int count) {
    std::vector<int> opened(static_cast<std::size_t>(count));
    std::ranges::generate(opened, [] { return ::eventfd(0, EFD_CLOEXEC); });
    const bool canOpen = std::ranges::find(opened, -1) == opened.end();
    for (const int descriptor : opened) {
        if (descriptor >= 0) {
            ::close(descriptor);
        }
    }
    return canOpen;
}

} // namespace vasker
