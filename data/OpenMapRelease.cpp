#include "data/OpenMapRelease.h"

namespace vasker {

const char* OpenMapRelease::Refusal::what() const noexcept {
    return errorDescription(m_invalid).data();
}

} // namespace vasker
