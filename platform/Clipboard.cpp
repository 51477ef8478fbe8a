#include "platform/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace vasker {

void Clipboard::setText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace vasker
