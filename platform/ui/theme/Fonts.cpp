#include "platform/ui/theme/Fonts.h"

#include "platform/ui/theme/ControlGlyphs.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickWindow>

namespace vasker {

void installInterfaceFont() {
    QFontDatabase::addApplicationFontFromData(controlGlyphs());
    QFont font = QGuiApplication::font();
    font.setFamilies(QStringList{QStringLiteral("Inter"),
                                 QStringLiteral("Adwaita Sans"),
                                 QStringLiteral("Cantarell"),
                                 QStringLiteral("Noto Sans")} +
                     font.families() + QStringList(QString::fromLatin1(controlGlyphsFamily)));
    QGuiApplication::setFont(font);
    // Glyphs as images: a processor that draws takes a multiple of the time for distance fields.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

} // namespace vasker
