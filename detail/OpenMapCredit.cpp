#include "detail/OpenMapCredit.h"

#include "detail/PromptCount.h"
#include "presentation/RecordText.h"

#include <QUrl>
#include <QVariant>

namespace vasker {

std::optional<QString> linkAddress(std::string_view text) {
    const QUrl url(toQString(text));
    if (!url.isValid() || url.isEmpty()) {
        return {};
    }
    return QString::fromLatin1(url.toEncoded());
}

OpenMapCredit OpenMapCredit::of(const OpenMapRelease::Source& source) {
    return {.publisher = QString::fromStdString(source.publisher),
            .attribution = QString::fromStdString(source.attribution),
            .conditions = QString::fromStdString(source.conditions),
            .modifications = QString::fromStdString(source.modifications),
            .sourceLink = linkAddress(source.sourceURL),
            .licenceLink = linkAddress(source.licenceURL)};
}

QVariantList asList(const std::vector<OpenMapCredit>& credits) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(credits.size()));
    for (const OpenMapCredit& credit : credits) {
        list.append(QVariant::fromValue(credit));
    }
    return list;
}

int promptCount(const std::vector<OpenMapCredit>& credits) {
    return promptCount(credits, [](const OpenMapCredit& credit) {
        return credit.publisher.size() + credit.attribution.size() + credit.conditions.size() +
               credit.modifications.size();
    });
}

} // namespace vasker
