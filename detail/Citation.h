#pragma once
// Texts about a record to paste elsewhere.

#include "data/OpenMapRelease.h"

#include <QCoreApplication>
#include <QString>

namespace vasker {

class Citation {
    Q_DECLARE_TR_FUNCTIONS(vasker::Citation)

  public:
    /// The record's name, id and period, then its source's publisher and attribution, then the
    /// addresses of source and licence: a line each, what is not there left out. Line breaks and
    /// other control characters in the release's texts become blanks.
    [[nodiscard]] static QString of(const OpenMapRelease& release,
                                    const OpenMapRelease::Asset& asset);
};

/// Latitude and longitude in decimal degrees, to six decimals at most: "54.12345, -112.12345". The
/// same in every language, for other programs to read.
[[nodiscard]] QString coordinatesText(const OpenMapRelease::Asset& asset);

} // namespace vasker
