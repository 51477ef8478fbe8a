#include "platform/ui/theme/Fonts.h"

#include "platform/ui/theme/ControlGlyphs.h"

#include <QEvent>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickWindow>

namespace vasker {

namespace {

void chooseFamilies() {
    QFont font = QGuiApplication::font();
    const QString glyphs = QString::fromLatin1(controlGlyphsFamily);
    if (!font.families().endsWith(glyphs)) {
        font.setFamilies(QStringList{QStringLiteral("Inter"),
                                     QStringLiteral("Adwaita Sans"),
                                     QStringLiteral("Cantarell"),
                                     QStringLiteral("Noto Sans")} +
                         font.families() + QStringList(glyphs));
        QGuiApplication::setFont(font);
    }
}

/// Keeps the families when the desktop sets another font, as KDE does while programs run.
class InterfaceFont : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qGuiApp && event->type() == QEvent::ApplicationFontChange) {
            chooseFamilies();
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void installInterfaceFont() {
    QFontDatabase::addApplicationFontFromData(controlGlyphs());
    chooseFamilies();
    qGuiApp->installEventFilter(new InterfaceFont(qGuiApp));
    // Glyphs as images: a processor that draws takes a multiple of the time for distance fields.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

} // namespace vasker
