#pragma once
// Whether an assistive tool, such as a screen reader, uses the program: whether any has asked
// anything of a control so far.

#include <QObject>
#include <QtQmlIntegration>

class QJSEngine;
class QQmlEngine;

namespace vasker {

class AssistiveTools : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Once true, it stays so.
    Q_PROPERTY(bool present READ isPresent NOTIFY presentChanged)

  public:
    explicit AssistiveTools(QObject* parent);
    /// The one object of the process, made on first use.
    static AssistiveTools& shared();
    static AssistiveTools* create(QQmlEngine*, QJSEngine*);

    [[nodiscard]] bool isPresent() const noexcept { return m_present; }
    /// A tool has asked.
    void notice();

  Q_SIGNALS:
    void presentChanged();

  private:
    bool m_present = false;
};

} // namespace vasker
