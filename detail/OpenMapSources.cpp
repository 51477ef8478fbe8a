#include "detail/OpenMapSources.h"

#include "detail/PromptCount.h"
#include "presentation/RecordText.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace vasker {

namespace {

/// The calendar date of an internet date-time: its first ten characters, or all there are.
QString dateOf(const QString& time) {
    constexpr int dateLength = 10;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, time);
    qsizetype end = 0;
    for (int count = 0; count < dateLength && end < time.size(); ++count) {
        end = characters.toNextBoundary();
    }
    return time.left(end);
}

QStringList toStringList(const std::vector<std::string>& texts) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) {
        list.append(wholeText(text));
    }
    return list;
}

/// Nothing in English, the language of the texts in the sources.
QString translatedOnly(const char* text) {
    const QString translation = OpenMapSources::tr(text);
    return translation == QLatin1String(text) ? QString() : translation;
}

} // namespace

OpenMapSources OpenMapSources::of(const OpenMapRelease& release) {
    const auto routes = std::ranges::count_if(release.assets, &OpenMapRelease::Asset::hasRoute);
    OpenMapSources sources{
        .coverageName = wholeText(release.coverageName),
        .counts = tr("%1 records · %2 routes").arg(release.assets.size()).arg(routes),
        .identity = tr("%1 · packaged %2")
                        .arg(wholeText(release.releaseID),
                             dateOf(QString::fromStdString(release.generatedAt))),
        .note = tr("The packaged date is not the observation date. Each record shows its source "
                   "period."),
        .languageNote = translatedOnly(QT_TR_NOOP("Values and texts of publishers are shown in "
                                                  "their own language.")),
        .limitations = toStringList(release.limitations),
        .credits = {},
        .licence = tr("The data retain their source licences. Vasker app terms do not restrict "
                      "your rights under OGL-Canada or CC BY 4.0. No government or publisher "
                      "endorsement is implied."),
        .privacy = {tr("This beta has no account, advertising, analytics or location tracking. "
                       "Search and filters run on your device. Apple Maps downloads its basemap "
                       "from Apple; source links open the publisher's website. Those services "
                       "receive the requests you make to them."),
                    tr("No private Vasker library or raw source documents are included. Data "
                       "updates arrive in a new app release.")}};
    sources.credits.reserve(release.sources.size());
    for (const OpenMapRelease::Source& source : release.sources) {
        sources.credits.push_back(OpenMapCredit::of(source));
    }
    return sources;
}

int OpenMapSources::promptLimitations() const {
    return promptCount(limitations, [](const QString& text) { return text.size(); });
}

} // namespace vasker
