#include "map/labels/MapLanguage.h"

#include <QLocale>

namespace vasker {

MapLanguage mapLanguage(const QString& locale) {
    return QLocale(locale).language() == QLocale::French ? MapLanguage::french
                                                         : MapLanguage::english;
}

} // namespace vasker
