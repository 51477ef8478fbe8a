#pragma once

namespace vasker {

/// Makes freed pictures go back to the system at once. By itself the allocator learns from the
/// first large block freed to keep such blocks, and a map that paints and drops pictures all day
/// would hold on to twice what it shows. Call it before threads are made.
void returnFreedPictures();

} // namespace vasker
