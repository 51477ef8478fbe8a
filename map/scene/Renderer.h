#pragma once

namespace vasker {

/// Whether frames are drawn by the processor and not by a graphics card. Render thread, while the
/// scene graph is synchronised.
[[nodiscard]] bool rendersInSoftware();

} // namespace vasker
