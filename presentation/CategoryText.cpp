#include "presentation/CategoryText.h"

#include "data/OpenMapRelease.h"

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
};

} // namespace

QString categoryText(std::string_view kind) {
    const std::string label = OpenMapRelease::Asset::categoryLabel(kind);
    return QCoreApplication::translate("Category", label.c_str());
}

QString categoryLine(const OpenMapRelease::Asset& asset) {
    return categoryText(asset.kind) + QStringLiteral(" · ") + QString::fromStdString(asset.asOf);
}

} // namespace vasker
