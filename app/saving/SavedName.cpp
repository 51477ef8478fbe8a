#include "app/saving/SavedName.h"

namespace vasker {

namespace {

// File systems allow 255 bytes; a unit of UTF-16 is three at most.
constexpr qsizetype mostUnits = 64;

bool isKept(QChar unit) {
    return unit.isLetterOrNumber() || unit == u'_' || unit == u'.';
}

} // namespace

QString savedName(const QStringList& parts, const QString& suffix) {
    QString name;
    for (const QChar unit : parts.join(u'-').left(mostUnits)) {
        if (isKept(unit) && !(name.isEmpty() && unit == u'.')) {
            name += unit;
        } else if (!name.isEmpty() && name.back() != u'-') {
            name += u'-';
        }
    }
    while (name.endsWith(u'-') || name.endsWith(u'.')) {
        name.chop(1);
    }
    return (name.isEmpty() ? QStringLiteral("records") : name) + suffix;
}

} // namespace vasker
