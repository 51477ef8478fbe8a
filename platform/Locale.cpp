#include "platform/Locale.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace vasker {

namespace {

/// "fr_CA.UTF-8@euro" without what is no language or country.
QString localeName(const QString& value) {
    return value.section(u'.', 0, 0).section(u'@', 0, 0);
}

QString languageOf(const QString& locale) {
    return locale.section(u'_', 0, 0);
}

QString tableOf(const QString& locale) {
    return QStringLiteral(":/translations/vasker_") + languageOf(locale);
}

} // namespace

QString messagesLocale() {
    QString name;
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        name = localeName(qEnvironmentVariable(variable));
        if (!name.isEmpty()) {
            break;
        }
    }
    if (name.isEmpty() || name == u"C" || name == u"POSIX") {
        return QStringLiteral("en");
    }
    const auto preferred = qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts);
    for (const QString& each : preferred) {
        if (QFile::exists(tableOf(each) + QStringLiteral(".qm"))) {
            return localeName(each);
        }
    }
    return name;
}

void installTranslation(QCoreApplication& application, const QString& locale) {
    const auto install = [&application](const QString& table, const QString& folder) {
        auto* translator = new QTranslator(&application);
        if (translator->load(table, folder)) {
            QCoreApplication::installTranslator(translator);
        } else {
            delete translator;
        }
    };
    // The toolkit's own texts, where its catalogue is installed.
    install(QStringLiteral("qtbase_") + languageOf(locale),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(tableOf(locale), QString());
    QGuiApplication::setLayoutDirection(QLocale(locale).textDirection());
}

} // namespace vasker
