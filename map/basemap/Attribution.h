#pragma once
// Who is to be credited for what the basemap shows.

#include <QString>
#include <QUrl>

namespace vasker {

struct Attribution {
    QString text;
    QUrl address; ///< empty: no link
    friend bool operator==(const Attribution&, const Attribution&) = default;
};

} // namespace vasker
