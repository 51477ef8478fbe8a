#include "platform/Locale.h"

#include <QCoreApplication>
#include <QTranslator>

namespace vasker {

QString messagesLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(variable);
        if (value.isEmpty()) {
            continue;
        }
        const QString name = value.section(u'.', 0, 0).section(u'@', 0, 0);
        return name == u"C" || name == u"POSIX" || name.isEmpty() ? QStringLiteral("en") : name;
    }
    return QStringLiteral("en");
}

void installTranslation(QCoreApplication& application, const QString& locale) {
    auto* translator = new QTranslator(&application);
    const QString language = locale.section(u'_', 0, 0);
    if (translator->load(QStringLiteral(":/translations/vasker_") + language)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace vasker
