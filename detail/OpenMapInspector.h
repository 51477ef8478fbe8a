#pragma once
// Everything that is told about one record: what its release reports, with the period and the
// publisher of each value, and what its place means. Texts of the release stand as stored, but for
// the labels of facts, which are translated where they are known.

#include "data/OpenMapRelease.h"
#include "data/SearchedTexts.h"
#include "detail/OpenMapCredit.h"
#include "platform/ValueList.h"

#include <QCoreApplication>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>
#include <qqml.h>

#include <optional>
#include <vector>

namespace vasker {

/// A reported value and where it was reported.
struct OpenMapFact {
    Q_GADGET
    QML_VALUE_TYPE(openMapFact)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString value MEMBER value CONSTANT)
    /// What assistive tools read of it: label and value in one.
    Q_PROPERTY(QString spokenText READ spokenText CONSTANT)
    /// Both empty: there is no link.
    Q_PROPERTY(QString linkTitle READ linkTitle CONSTANT)
    Q_PROPERTY(QString linkAddress READ linkAddress CONSTANT)
    Q_PROPERTY(bool found MEMBER found CONSTANT)

  public:
    struct Link {
        QString title; ///< the source's short name and the value's period
        QString address;
        friend bool operator==(const Link&, const Link&) = default;
    };

    QString label;
    QString value;
    std::optional<Link> link;
    bool found = false; ///< the record was found by this value

    [[nodiscard]] QString spokenText() const;
    [[nodiscard]] QString linkTitle() const { return link ? link->title : QString(); }
    [[nodiscard]] QString linkAddress() const { return link ? link->address : QString(); }

    friend bool operator==(const OpenMapFact&, const OpenMapFact&) = default;
};

struct OpenMapInspector {
    Q_GADGET
    QML_VALUE_TYPE(openMapInspector)
    Q_DECLARE_TR_FUNCTIONS(vasker::OpenMapInspector)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(QString period MEMBER period CONSTANT)
    Q_PROPERTY(QString status MEMBER status CONSTANT)
    Q_PROPERTY(bool hasCompany READ hasCompany CONSTANT)
    Q_PROPERTY(QString companyName READ companyName CONSTANT)
    Q_PROPERTY(bool companyFound MEMBER companyFound CONSTANT)
    Q_PROPERTY(bool idFound MEMBER idFound CONSTANT)
    Q_PROPERTY(QString caveat MEMBER caveat CONSTANT)
    Q_PROPERTY(QVariantList facts READ factList CONSTANT)
    Q_PROPERTY(int promptFacts READ promptFacts CONSTANT)
    Q_PROPERTY(QVariantList credits READ creditList CONSTANT)
    Q_PROPERTY(int promptCredits READ promptCredits CONSTANT)
    Q_PROPERTY(QString location MEMBER location CONSTANT)

  public:
    QString name;
    QString subtitle; ///< category and id
    QString period;
    QString status;
    std::optional<QString> company; ///< present, even if empty: there is a row for it
    bool idFound = false;           ///< the record was found by its id
    bool companyFound = false;      ///< the record was found by its company
    QString caveat;
    std::vector<OpenMapFact> facts;
    std::vector<OpenMapCredit> credits; ///< of each cited source once, in the release's order
    QString location;

    /// What is told about `asset`, whose sources are looked up in `release`. `found` is the text
    /// that a search found it by, if any.
    [[nodiscard]] static OpenMapInspector of(const OpenMapRelease& release,
                                             const OpenMapRelease::Asset& asset,
                                             const std::optional<SearchedText>& found = {});

    [[nodiscard]] bool hasCompany() const { return company.has_value(); }
    [[nodiscard]] QString companyName() const { return company.value_or(QString()); }
    /// Values of OpenMapFact.
    [[nodiscard]] QVariantList factList() const;
    /// Values of OpenMapCredit.
    [[nodiscard]] QVariantList creditList() const { return valueList(credits); }
    /// How many rows of each list a view lays out before it shows anything; see promptCount().
    [[nodiscard]] int promptFacts() const;
    [[nodiscard]] int promptCredits() const;
};

} // namespace vasker
