#include "platform/ThreadPriority.h"

#include <sys/resource.h>
#include <unistd.h>

namespace vasker {

namespace {

/// Frames and input go first; but whoever holds a lock that they wait for must come to its end.
constexpr int niceness = 10;

} // namespace

void lowerThreadPriority() {
    // Linux gives each thread a priority of its own.
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
}

} // namespace vasker
