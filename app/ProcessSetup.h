#pragma once
// What the program asks of Qt and of the allocator. Benches ask the same.

namespace vasker {

/// Call it first of all: before threads are made and before QGuiApplication.
void setUpProcess();

} // namespace vasker
