#include "platform/ui/theme/Fonts.h"

#include <QFont>
#include <QGuiApplication>
#include <QQuickWindow>

namespace vasker {

void installInterfaceFont() {
    QFont font = QGuiApplication::font();
    font.setFamilies(QStringList{QStringLiteral("Inter"),
                                 QStringLiteral("Adwaita Sans"),
                                 QStringLiteral("Cantarell"),
                                 QStringLiteral("Noto Sans")} +
                     font.families());
    QGuiApplication::setFont(font);
    // Glyphs as images: a processor that draws takes a multiple of the time for distance fields.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

} // namespace vasker
