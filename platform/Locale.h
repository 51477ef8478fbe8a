#pragma once
// The language of the application's own texts.

#include <QString>

class QCoreApplication;

namespace vasker {

/// The locale of messages in the environment, as in "fr_CA": the first of LC_ALL, LC_MESSAGES and
/// LANG that is set, without encoding and modifier; "C", "POSIX" and nothing at all mean "en". Else
/// the first language of LANGUAGE that the application has texts in goes before it.
[[nodiscard]] QString messagesLocale();

/// Shows the application's texts, and the toolkit's where its catalogue is installed, in the
/// language of `locale` from here on; English where there is no translation. Windows run in the
/// direction of that language either way. Called once, before the first text is shown.
void installTranslation(QCoreApplication& application, const QString& locale);

} // namespace vasker
