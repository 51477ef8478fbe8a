#pragma once
// What the detail views show: a loaded release, and one record of it or none. A small immutable
// value; copies share the release.

#include "data/OpenMapRelease.h"

#include <QMetaType>
#include <QtQmlIntegration>
#include <qqml.h>

#include <cstddef>
#include <memory>
#include <optional>

namespace vasker {

struct ReleaseRecord {
    Q_GADGET
    QML_VALUE_TYPE(releaseRecord)

  public:
    std::shared_ptr<const OpenMapRelease> release; ///< null: nothing is shown
    std::optional<std::size_t> asset;              ///< a place in `release->assets`

    /// The record, or nullptr where there is none. Lives as long as the release.
    [[nodiscard]] const OpenMapRelease::Asset* record() const noexcept {
        return release && asset && *asset < release->assets.size() ? &release->assets[*asset]
                                                                   : nullptr;
    }

    friend bool operator==(const ReleaseRecord&, const ReleaseRecord&) = default;
};

} // namespace vasker
