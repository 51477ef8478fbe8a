#pragma once
// The desktop's clipboard, for texts that the user asks to copy.

#include <QObject>
#include <QtQmlIntegration>

namespace vasker {

class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    using QObject::QObject;

    /// Puts `text` in the place of whatever the clipboard held.
    Q_INVOKABLE void setText(const QString& text);
};

} // namespace vasker
