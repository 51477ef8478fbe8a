#pragma once
// What the catalogue and the map show: a loaded release and the records of it that pass the filter.
// A small immutable value; copies share the data.

#include "map/geometry/Camera.h"
#include "map/records/LoadedRelease.h"

#include <QMetaType>
#include <QtQmlIntegration>
#include <qqml.h>

#include <memory>
#include <vector>

namespace vasker {

struct RecordSet {
    Q_GADGET
    QML_VALUE_TYPE(recordSet)

  public:
    std::shared_ptr<const LoadedRelease> loaded;             ///< null before anything is loaded
    std::shared_ptr<const std::vector<AssetIndex>> filtered; ///< in name order; null with `loaded`

    /// One of all records; `loaded` is not null.
    [[nodiscard]] const OpenMapRelease::Asset& asset(AssetIndex index) const {
        return loaded->index.release().assets[index];
    }
    friend bool operator==(const RecordSet&, const RecordSet&) = default;
};

/// Makes the camera's position known to QML under a name.
struct CameraPositionValue {
    Q_GADGET
    QML_FOREIGN(vasker::CameraPosition)
    QML_VALUE_TYPE(cameraPosition)
};

} // namespace vasker

Q_DECLARE_METATYPE(vasker::CameraPosition)
