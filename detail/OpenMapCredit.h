#pragma once
// The attribution of one cited dataset, as it reads wherever it is shown.

#include "data/OpenMapRelease.h"

#include <QString>
#include <QtQmlIntegration>
#include <qqml.h>

#include <optional>
#include <string_view>
#include <vector>

namespace vasker {

/// `text` as an address in plain ASCII, where it parses as one: any address that the toolkit's
/// parser accepts in its ordinary mode and that is not empty.
[[nodiscard]] std::optional<QString> linkAddress(std::string_view text);

struct OpenMapCredit {
    Q_GADGET
    QML_VALUE_TYPE(openMapCredit)
    Q_PROPERTY(QString publisher MEMBER publisher CONSTANT)
    Q_PROPERTY(QString attribution MEMBER attribution CONSTANT)
    Q_PROPERTY(QString conditions MEMBER conditions CONSTANT)
    Q_PROPERTY(QString modifications MEMBER modifications CONSTANT)
    /// Empty: there is no such link.
    Q_PROPERTY(QString sourceAddress READ sourceAddress CONSTANT)
    Q_PROPERTY(QString licenceAddress READ licenceAddress CONSTANT)

  public:
    QString publisher;
    QString attribution;
    QString conditions;
    QString modifications;
    std::optional<QString> sourceLink;
    std::optional<QString> licenceLink;

    [[nodiscard]] static OpenMapCredit of(const OpenMapRelease::Source& source);

    [[nodiscard]] QString sourceAddress() const { return sourceLink.value_or(QString()); }
    [[nodiscard]] QString licenceAddress() const { return licenceLink.value_or(QString()); }

    friend bool operator==(const OpenMapCredit&, const OpenMapCredit&) = default;
};

/// How many of `credits` a view lays out before it shows anything; see promptCount().
[[nodiscard]] int promptCount(const std::vector<OpenMapCredit>& credits);

} // namespace vasker
