#pragma once
// Whether the focus should be shown: after a key, yes; after a press of the pointer, no.

#include <QObject>
#include <QtQmlIntegration>

class QJSEngine;
class QQmlEngine;

namespace vasker {

class FocusVisibility : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)

  public:
    /// Watches every event of the application.
    explicit FocusVisibility(QObject* parent);
    /// The one object of the process, made on first use.
    static FocusVisibility* create(QQmlEngine*, QJSEngine*);
    [[nodiscard]] bool isVisible() const noexcept { return m_visible; }

  Q_SIGNALS:
    void visibleChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void setVisible(bool visible);
    bool m_visible = false;
};

} // namespace vasker
