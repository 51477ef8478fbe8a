#include "app/ProcessSetup.h"

#include "map/scene/Graphics.h"
#include "platform/Memory.h"

#include <QtGlobal>

namespace vasker {

void setUpProcess() {
    returnFreedImages();
    returnThreadsMemory();
    // Qt asks once, when it starts, whether there is a screen reader: one may be started later.
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    // Code that Qt 6.4 compiles at run time leaves a bare 1 on the engine's stack, which its
    // collector takes for an object: that ended the program.
    qputenv("QV4_FORCE_INTERPRETER", "1");
    shortenFrameDelay();
}

} // namespace vasker
