#pragma once
// Tells views whether a text is to be laid out in pieces.

#include "platform/ui/text/TextPieces.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace vasker {

class TextLength : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    /// See isLongText().
    Q_INVOKABLE static bool isLong(const QString& text) { return isLongText(text); }
};

} // namespace vasker
