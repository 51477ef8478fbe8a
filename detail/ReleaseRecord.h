#pragma once
// What the detail views show: a loaded release, and one record of it or none. A small immutable
// value; copies share the release.

#include "data/OpenMapRelease.h"
#include "data/SearchedTexts.h"
#include "detail/Citation.h"
#include "detail/OpenMapInspector.h"
#include "detail/OpenMapSources.h"

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
    /// Composed anew with every reading; without record or release, all texts are empty.
    Q_PROPERTY(vasker::OpenMapInspector inspector READ inspector CONSTANT)
    Q_PROPERTY(vasker::OpenMapSources sources READ sources CONSTANT)
    /// The record as texts to paste elsewhere.
    Q_PROPERTY(QString citation READ citation CONSTANT)
    Q_PROPERTY(QString coordinates READ coordinates CONSTANT)

  public:
    std::shared_ptr<const OpenMapRelease> release; ///< null: nothing is shown
    std::optional<std::size_t> asset;              ///< a place in `release->assets`
    std::optional<SearchedText> found = {};        ///< the text of it that a search found it by

    /// The record, or nullptr where there is none. Lives as long as the release.
    [[nodiscard]] const OpenMapRelease::Asset* record() const noexcept {
        return release && asset && *asset < release->assets.size() ? &release->assets[*asset]
                                                                   : nullptr;
    }

    [[nodiscard]] OpenMapInspector inspector() const {
        const OpenMapRelease::Asset* const shown = record();
        return shown == nullptr ? OpenMapInspector{}
                                : OpenMapInspector::of(*release, *shown, found);
    }
    [[nodiscard]] OpenMapSources sources() const {
        return release ? OpenMapSources::of(*release) : OpenMapSources{};
    }

    [[nodiscard]] QString citation() const {
        const OpenMapRelease::Asset* const shown = record();
        return shown == nullptr ? QString() : Citation::of(*release, *shown);
    }
    [[nodiscard]] QString coordinates() const {
        const OpenMapRelease::Asset* const shown = record();
        return shown == nullptr ? QString() : coordinatesText(*shown);
    }

    friend bool operator==(const ReleaseRecord&, const ReleaseRecord&) = default;
};

} // namespace vasker
