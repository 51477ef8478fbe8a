#include "presentation/RecordText.h"

#include "data/text/Beginning.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace vasker {

namespace {

// Listed for the translators; looked up by the label itself.
[[maybe_unused]] constexpr std::array translatedLabels{
    QT_TRANSLATE_NOOP("Category", "LNG facility"),
    QT_TRANSLATE_NOOP("Category", "Gas plant"),
    QT_TRANSLATE_NOOP("Category", "Straddle plant"),
    QT_TRANSLATE_NOOP("Category", "Fractionation plant"),
    QT_TRANSLATE_NOOP("Category", "Oil sands plant"),
    QT_TRANSLATE_NOOP("Category", "In-situ oil sands"),
    QT_TRANSLATE_NOOP("Category", "Reporting facility"),
    QT_TRANSLATE_NOOP("Category", "Unclassified facility"),
    QT_TRANSLATE_NOOP("Category", "Refinery"),
    QT_TRANSLATE_NOOP("Category", "Terminal"),
    QT_TRANSLATE_NOOP("Category", "Storage"),
    QT_TRANSLATE_NOOP("Category", "Pipeline"),
    QT_TRANSLATE_NOOP("Category", "Petrochemical"),
    QT_TRANSLATE_NOOP("Category", "Asphalt_plant"),
    QT_TRANSLATE_NOOP("Category", "Battery"),
    QT_TRANSLATE_NOOP("Category", "Compressor_station"),
    QT_TRANSLATE_NOOP("Category", "Dehydrator"),
    QT_TRANSLATE_NOOP("Category", "Extraction_plant"),
    QT_TRANSLATE_NOOP("Category", "Gas_distribution"),
    QT_TRANSLATE_NOOP("Category", "Gas_gathering_system"),
    QT_TRANSLATE_NOOP("Category", "Injection_facility"),
    QT_TRANSLATE_NOOP("Category", "Offshore_platform"),
    QT_TRANSLATE_NOOP("Category", "Petroleum_products_plant"),
    QT_TRANSLATE_NOOP("Category", "Pipeline_facility"),
    QT_TRANSLATE_NOOP("Category", "Pipeline_station"),
    QT_TRANSLATE_NOOP("Category", "Satellite"),
    QT_TRANSLATE_NOOP("Category", "Thermal_project"),
    QT_TRANSLATE_NOOP("Category", "Treating_facility"),
    QT_TRANSLATE_NOOP("Category", "Well_site"),
};

QString upTo(std::size_t most, std::string_view utf8) {
    const std::string_view shown = beginningOf(utf8, most);
    return shown.size() == utf8.size() ? wholeText(utf8) : wholeText(shown) + QChar(u'…');
}

bool isLineBreak(QChar unit) {
    constexpr char16_t verticalTab = 0x0B;
    constexpr char16_t formFeed = 0x0C;
    constexpr char16_t nextLine = 0x85;
    return unit == u'\n' || unit == u'\r' || unit == verticalTab || unit == formFeed ||
           unit == nextLine || unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator;
}

QString withLineFeeds(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::replace_if(text.begin(), text.end(), isLineBreak, QChar(u'\n'));
    return text;
}

QString wholeCategoryText(std::string_view kind) {
    const std::string label = OpenMapRelease::Asset::categoryLabel(kind);
    // A text with a zero character is none of ours, and translate() would cut it there.
    const bool isOurs = label.find('\0') == std::string::npos;
    return withLineFeeds(isOurs ? QCoreApplication::translate("Category", label.c_str())
                                : toQString(label));
}

} // namespace

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString wholeText(std::string_view utf8) {
    return withLineFeeds(toQString(utf8));
}

QString lineText(std::string_view utf8) {
    return upTo(mostLineBytes, utf8);
}

QString nameText(std::string_view utf8) {
    return upTo(mostNameBytes, utf8);
}

QString joined(const QString& first, const QString& second) {
    return first + QStringLiteral(" · ") + second;
}

QString categoryText(std::string_view kind) {
    return kind.size() > mostLineBytes ? lineText(kind) : wholeCategoryText(kind);
}

QString categoryLine(const OpenMapRelease::Asset& asset) {
    return joined(categoryText(asset.kind), lineText(asset.asOf));
}

QString recordSubtitle(const OpenMapRelease::Asset& asset) {
    return joined(wholeCategoryText(asset.kind), wholeText(asset.id));
}

QString sourceLine(const OpenMapRelease::Source& source, const OpenMapRelease::Fact& fact) {
    return joined(wholeText(source.shortName()), wholeText(fact.asOf));
}

} // namespace vasker
