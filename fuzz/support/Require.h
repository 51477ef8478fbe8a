#pragma once
// What a target promises: where it does not hold, the input is a find.

#include <cstdlib>

namespace vasker {

inline void require(bool promise) {
    if (!promise) {
        std::abort();
    }
}

} // namespace vasker
