#include "presentation/RecordText.h"

#include "data/text/Beginning.h"

#include <QCoreApplication>

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
    return shown.size() == utf8.size() ? toQString(utf8) : toQString(shown) + QChar(u'…');
}

} // namespace

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString lineText(std::string_view utf8) {
    return upTo(mostLineBytes, utf8);
}

QString paragraphText(std::string_view utf8) {
    return upTo(mostParagraphBytes, utf8);
}

QString joined(const QString& first, const QString& second) {
    return first + QStringLiteral(" · ") + second;
}

QString categoryText(std::string_view kind) {
    if (kind.size() > mostLineBytes) {
        return lineText(kind);
    }
    const std::string label = OpenMapRelease::Asset::categoryLabel(kind);
    // A text with a zero character is none of ours, and translate() would cut it there.
    const bool isOurs = label.find('\0') == std::string::npos;
    return isOurs ? QCoreApplication::translate("Category", label.c_str()) : toQString(label);
}

QString categoryLine(const OpenMapRelease::Asset& asset) {
    return joined(categoryText(asset.kind), lineText(asset.asOf));
}

QString recordSubtitle(const OpenMapRelease::Asset& asset) {
    return joined(categoryText(asset.kind), lineText(asset.id));
}

QString sourceLine(const OpenMapRelease::Source& source, const OpenMapRelease::Fact& fact) {
    return joined(lineText(source.shortName()), lineText(fact.asOf));
}

} // namespace vasker
