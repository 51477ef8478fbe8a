#include "presentation/FactLabel.h"

#include "presentation/RecordText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <optional>

namespace vasker {

namespace {

// Listed for the translators; looked up by the label itself. What %1 and %2 stand for is told
// below.
[[maybe_unused]] constexpr std::array packedLabels{
    QT_TRANSLATE_NOOP("FactLabel", "Location basis"),
    QT_TRANSLATE_NOOP("FactLabel", "NPRI ID"),
    QT_TRANSLATE_NOOP("FactLabel", "Industry code (NAICS)"),
    QT_TRANSLATE_NOOP("FactLabel", "Last report to the inventory"),
    QT_TRANSLATE_NOOP("FactLabel", "Key industrial sector"),
    QT_TRANSLATE_NOOP("FactLabel", "Land survey"),
    QT_TRANSLATE_NOOP("FactLabel", "Total emissions"),
    QT_TRANSLATE_NOOP("FactLabel", "Nitrogen oxides to air"),
    QT_TRANSLATE_NOOP("FactLabel", "City"),
    QT_TRANSLATE_NOOP("FactLabel", "Name in the report for %1"),
    QT_TRANSLATE_NOOP("FactLabel", "Company in the report for %1"),
    QT_TRANSLATE_NOOP("FactLabel", "GHGRP ID"),
    QT_TRANSLATE_NOOP("FactLabel", "GHGRP facility page"),
    QT_TRANSLATE_NOOP("FactLabel", "Industry"),
    QT_TRANSLATE_NOOP("FactLabel", "Industry (GHGRP)"),
    QT_TRANSLATE_NOOP("FactLabel", "Industry code (NAICS, GHGRP)"),
    QT_TRANSLATE_NOOP("FactLabel", "Facility name (GHGRP)"),
    QT_TRANSLATE_NOOP("FactLabel", "Reporting company (GHGRP)"),
    QT_TRANSLATE_NOOP("FactLabel", "Petrinex codes"),
    QT_TRANSLATE_NOOP("FactLabel", "Carbon dioxide (CO2)"),
    QT_TRANSLATE_NOOP("FactLabel", "Methane (CH4)"),
    QT_TRANSLATE_NOOP("FactLabel", "Nitrous oxide (N2O)"),
    QT_TRANSLATE_NOOP("FactLabel", "%1 of %2"),
    QT_TRANSLATE_NOOP("FactLabel", "Parent"),
    QT_TRANSLATE_NOOP("FactLabel", "Owner"),
    QT_TRANSLATE_NOOP("FactLabel", "Operator"),
    QT_TRANSLATE_NOOP("FactLabel", "Last updated"),
    QT_TRANSLATE_NOOP("FactLabel", "GEM wiki page"),
    QT_TRANSLATE_NOOP("FactLabel", "GEM project ID"),
    QT_TRANSLATE_NOOP("FactLabel", "GEM unit ID"),
    QT_TRANSLATE_NOOP("FactLabel", "GEM terminal ID"),
    QT_TRANSLATE_NOOP("FactLabel", "Reported unit"),
    QT_TRANSLATE_NOOP("FactLabel", "Also known as"),
    QT_TRANSLATE_NOOP("FactLabel", "Facility type"),
    QT_TRANSLATE_NOOP("FactLabel", "Fuel"),
    QT_TRANSLATE_NOOP("FactLabel", "Fuel source"),
    QT_TRANSLATE_NOOP("FactLabel", "Capacity"),
    QT_TRANSLATE_NOOP("FactLabel", "Cost"),
    QT_TRANSLATE_NOOP("FactLabel", "Diameter"),
    QT_TRANSLATE_NOOP("FactLabel", "Length"),
    QT_TRANSLATE_NOOP("FactLabel", "Length, estimated"),
    QT_TRANSLATE_NOOP("FactLabel", "Start"),
    QT_TRANSLATE_NOOP("FactLabel", "End"),
    QT_TRANSLATE_NOOP("FactLabel", "Location"),
    QT_TRANSLATE_NOOP("FactLabel", "Coordinate accuracy"),
    QT_TRANSLATE_NOOP("FactLabel", "Route accuracy"),
    QT_TRANSLATE_NOOP("FactLabel", "Route basis"),
    QT_TRANSLATE_NOOP("FactLabel", "Proposal year"),
    QT_TRANSLATE_NOOP("FactLabel", "Investment decision"),
    QT_TRANSLATE_NOOP("FactLabel", "Construction year"),
    QT_TRANSLATE_NOOP("FactLabel", "Planned start year"),
    QT_TRANSLATE_NOOP("FactLabel", "Start year"),
    QT_TRANSLATE_NOOP("FactLabel", "Stop year"),
    QT_TRANSLATE_NOOP("FactLabel", "Shelved year"),
    QT_TRANSLATE_NOOP("FactLabel", "Cancelled year"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Nitrogen oxides (expressed as nitrogen dioxide)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: PM2.5 - Particulate Matter <= 2.5 Micrometers"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: PM10 - Particulate Matter <= 10 Micrometers"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Carbon monoxide"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Volatile Organic Compounds (VOCs)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Total particulate matter"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Sulphur dioxide"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Xylene (all isomers)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Toluene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: n-Hexane"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: 1,2,4-Trimethylbenzene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Ethylbenzene"),
    QT_TRANSLATE_NOOP("FactLabel",
                      "Released: Total reduced sulphur (expressed as hydrogen sulphide)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Hydrogen sulphide"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Benzene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Formaldehyde"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Cyclohexane"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Biphenyl"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Methanol"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Propylene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Ammonia (total)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Aluminum (fume or dust only)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Lead (and its compounds)"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Naphthalene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Phenanthrene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Pyrene"),
    QT_TRANSLATE_NOOP("FactLabel", "Released: Ethylene"),
};

/// The translation of exactly `text`, if there is one.
std::optional<QString> translated(const QString& text) {
    QString translation = QCoreApplication::translate("FactLabel", text.toUtf8().constData());
    return translation == text ? std::nullopt : std::optional(std::move(translation));
}

bool isNumber(QStringView text) {
    return !text.isEmpty() &&
           std::ranges::all_of(text, [](QChar each) { return each >= u'0' && each <= u'9'; });
}

} // namespace

QString factLabel(std::string_view label) {
    QString text = wholeText(label);
    // A text with a zero character is none of ours, and translate() would cut it there.
    if (text.contains(QChar(0))) {
        return text;
    }
    if (const auto whole = translated(text)) {
        return *whole;
    }
    const qsizetype lastWord = text.lastIndexOf(u' ') + 1;
    const QString last = text.sliced(lastWord);
    if (isNumber(last)) { // a year
        const auto report = translated(text.first(lastWord) + QStringLiteral("%1"));
        return report ? report->arg(last) : text;
    }
    const QStringView before = QStringView(text).first(lastWord);
    const auto facility = translated(QStringLiteral("%1 of %2"));
    if (facility && before.endsWith(u" of ") && last.startsWith(u'G') &&
        isNumber(QStringView(last).sliced(1))) {
        const auto what = translated(before.chopped(4).toString());
        return what ? facility->arg(*what, last) : text;
    }
    return text;
}

} // namespace vasker
