#pragma once
// What is to be said about the basemap in view, and the colours of texts over it.

#include "map/frame/MapFrame.h"
#include "map/style/BasemapTheme.h"
#include "map/style/MapTheme.h"

#include <QColor>
#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace vasker {

class MapStatus : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each map has its own.")
    /// Of what is in view: maps of "text" and "address", the latter may be empty.
    Q_PROPERTY(QVariantList attribution READ attribution NOTIFY changed)
    /// Whether imagery is asked for and missing somewhere in view.
    Q_PROPERTY(bool lacksImagery READ lacksImagery NOTIFY changed)
    /// Whether imagery is only colour somewhere in view, for want of a network.
    Q_PROPERTY(bool lacksSharperImagery READ lacksSharperImagery NOTIFY changed)
    Q_PROPERTY(bool showsImagery READ showsImagery NOTIFY themeChanged)
    /// Of texts over the map, as of its labels.
    Q_PROPERTY(QColor halo READ halo NOTIFY themeChanged)

  public:
    using QObject::QObject;

    [[nodiscard]] const QVariantList& attribution() const noexcept { return m_attribution; }
    [[nodiscard]] bool lacksImagery() const noexcept { return m_lacksImagery; }
    [[nodiscard]] bool lacksSharperImagery() const noexcept { return m_lacksSharperImagery; }
    [[nodiscard]] bool showsImagery() const noexcept { return vasker::showsImagery(m_theme); }
    [[nodiscard]] const QColor& halo() const noexcept { return mapTheme(m_theme).labelHalo; }

    [[nodiscard]] BasemapTheme theme() const noexcept { return m_theme; }
    void setTheme(BasemapTheme theme);
    void setFrame(const MapFrame& frame);

  Q_SIGNALS:
    void changed();
    void themeChanged();

  private:
    BasemapTheme m_theme = BasemapTheme::light;
    QVariantList m_attribution;
    bool m_lacksImagery = false;
    bool m_lacksSharperImagery = false;
};

} // namespace vasker
