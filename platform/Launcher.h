#pragma once
// Opens a file or a web address with the program that the desktop has for it. For desktops without
// a portal.

class QUrl;

namespace vasker {

/// Whether a program was found that opens `url`: on the search path, where Qt looks for one. Asked
/// beforehand, because Qt says on standard error that there is none. Nothing waits for the program.
[[nodiscard]] bool launch(const QUrl& url);

} // namespace vasker
