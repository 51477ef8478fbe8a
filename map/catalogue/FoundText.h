#pragma once
// Where the search text stands in a record whose name does not hold it, as one line.

#include "data/ReleaseIndex.h"

#include <QCoreApplication>
#include <QString>
#include <QtQmlIntegration>
#include <qqml.h>

#include <string_view>

namespace vasker {

struct FoundText {
    Q_GADGET
    QML_VALUE_TYPE(foundText)
    Q_PROPERTY(QString markup MEMBER markup)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_DECLARE_TR_FUNCTIONS(vasker::FoundText)

  public:
    QString markup; ///< as styled text, the match in bold: "Owner: … <b>Coastal</b> GasLink…"
    QString spoken; ///< the same as a sentence for assistive tools

    /// What is told of `record`: the label and the value of the first text that holds
    /// `foldedQuery`, a query after folded(). A long value is cut to the part around the match, a
    /// value of more than 40,000 bytes to its beginning. Both texts are empty where the name holds
    /// the query, where no text does, and for the empty query.
    [[nodiscard]] static FoundText
    of(const ReleaseIndex& index, AssetIndex record, std::string_view foldedQuery);
};

} // namespace vasker
