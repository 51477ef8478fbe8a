#include "platform/ui/theme/Fonts.h"

#include <QFont>
#include <QGuiApplication>

namespace vasker {

void installInterfaceFont() {
    QFont font = QGuiApplication::font();
    font.setFamilies(QStringList{QStringLiteral("Inter"),
                                 QStringLiteral("Adwaita Sans"),
                                 QStringLiteral("Cantarell"),
                                 QStringLiteral("Noto Sans")} +
                     font.families());
    QGuiApplication::setFont(font);
}

} // namespace vasker
