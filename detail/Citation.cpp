#include "detail/Citation.h"

#include "detail/OpenMapCredit.h"

#include <QStringList>

namespace vasker {

namespace {

QString onOneLine(const std::string& text) {
    QString line = QString::fromStdString(text);
    for (QChar& each : line) {
        if (each.category() == QChar::Other_Control) {
            each = QLatin1Char(' ');
        }
    }
    return line.simplified();
}

QString degrees(double value) {
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith(QLatin1Char('0'))) {
        text.chop(1);
    }
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

} // namespace

QString Citation::of(const OpenMapRelease& release, const OpenMapRelease::Asset& asset) {
    QStringList lines{
        tr("%1 (%2), %3").arg(onOneLine(asset.name), onOneLine(asset.id), onOneLine(asset.asOf))};
    if (const OpenMapRelease::Source* const source = release.source(asset.sourceID)) {
        lines += tr("%1: %2").arg(onOneLine(source->publisher), onOneLine(source->attribution));
        if (const auto address = linkAddress(source->sourceURL)) {
            lines += tr("Source data: %1").arg(*address);
        }
        if (const auto address = linkAddress(source->licenceURL)) {
            lines += tr("Licence: %1").arg(*address);
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QString coordinatesText(const OpenMapRelease::Asset& asset) {
    return degrees(asset.latitude) + QStringLiteral(", ") + degrees(asset.longitude);
}

} // namespace vasker
