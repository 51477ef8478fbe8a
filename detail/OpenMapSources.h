#pragma once
// Everything that is told about a release as a whole: what it covers and does not, whose data it
// holds under which licences, and what the application does with its user's data: nothing.

#include "data/OpenMapRelease.h"
#include "detail/OpenMapCredit.h"
#include "platform/ValueList.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>
#include <qqml.h>

#include <vector>

namespace vasker {

struct OpenMapSources {
    Q_GADGET
    QML_VALUE_TYPE(openMapSources)
    Q_DECLARE_TR_FUNCTIONS(vasker::OpenMapSources)
    Q_PROPERTY(QString coverageName MEMBER coverageName CONSTANT)
    Q_PROPERTY(QString counts MEMBER counts CONSTANT)
    Q_PROPERTY(QString identity MEMBER identity CONSTANT)
    Q_PROPERTY(QString note MEMBER note CONSTANT)
    /// Empty: there is nothing to say.
    Q_PROPERTY(QString languageNote MEMBER languageNote CONSTANT)
    Q_PROPERTY(QStringList limitations MEMBER limitations CONSTANT)
    Q_PROPERTY(int promptLimitations READ promptLimitations CONSTANT)
    Q_PROPERTY(QVariantList credits READ creditList CONSTANT)
    Q_PROPERTY(int promptCredits READ promptCredits CONSTANT)
    Q_PROPERTY(QString licence MEMBER licence CONSTANT)
    Q_PROPERTY(QStringList privacy MEMBER privacy CONSTANT)

  public:
    QString coverageName;
    QString counts;   ///< of records and of those that are routes
    QString identity; ///< release id and date of packaging
    QString note;
    QString languageNote; ///< where the program speaks another language than its release
    QStringList limitations;
    std::vector<OpenMapCredit> credits; ///< of every source, in the release's order
    QString licence;
    QStringList privacy;

    [[nodiscard]] static OpenMapSources of(const OpenMapRelease& release);

    /// Values of OpenMapCredit.
    [[nodiscard]] QVariantList creditList() const { return valueList(credits); }
    /// How many rows of each list a view lays out before it shows anything; see promptCount().
    [[nodiscard]] int promptLimitations() const;
    [[nodiscard]] int promptCredits() const { return promptCount(credits); }
};

} // namespace vasker
