#pragma once
// The letters typed one soon after another into a list, to find what begins with them.

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringView>
#include <QTimer>

namespace vasker {

class TypeAhead : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Empty a second after the last letter.
    Q_PROPERTY(QString typed READ typed NOTIFY typedChanged)

  public:
    explicit TypeAhead(QObject* parent = nullptr);

    [[nodiscard]] const QString& typed() const noexcept { return m_typed; }

    /// Takes in what a key typed. Returns whether that is a letter of a search, as a space is after
    /// others.
    Q_INVOKABLE bool takes(const QString& text);

    /// Returns whether `text` begins with what was typed.
    Q_INVOKABLE [[nodiscard]] bool begins(const QString& text) const;

    Q_INVOKABLE void forget();

    /// Returns the beginning of `text` as type-ahead compares it: without accents and capitals,
    /// which nobody types to get there. What is beyond its first 200 UTF-16 units does not count.
    [[nodiscard]] static QString compared(QStringView text);

  Q_SIGNALS:
    void typedChanged();

  private:
    QString m_typed;
    QTimer m_pause;
};

} // namespace vasker
