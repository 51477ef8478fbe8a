#include "detail/OpenMapCredit.h"

#include "detail/PromptCount.h"
#include "presentation/RecordText.h"

#include <QUrl>

namespace vasker {

std::optional<QString> linkAddress(std::string_view text) {
    const QUrl url(toQString(text));
    if (!url.isValid() || url.isEmpty()) {
        return {};
    }
    return QString::fromLatin1(url.toEncoded());
}

OpenMapCredit OpenMapCredit::of(const OpenMapRelease::Source& source) {
    return {.publisher = wholeText(source.publisher),
            .attribution = wholeText(source.attribution),
            .conditions = wholeText(source.conditions),
            .modifications = wholeText(source.modifications),
            .sourceLink = linkAddress(source.sourceURL),
            .licenceLink = linkAddress(source.licenceURL)};
}

int promptCount(const std::vector<OpenMapCredit>& credits) {
    return promptCount(credits, [](const OpenMapCredit& credit) {
        return credit.publisher.size() + credit.attribution.size() + credit.conditions.size() +
               credit.modifications.size();
    });
}

} // namespace vasker
