// Runs the tests of the controls, tst_*.qml, which get a keyboard here whose keys can be held.

#include <QKeyEvent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QWindow>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)

namespace {

class Keyboard : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Presses `key` in `window`, lets it repeat `times` times, as a display does, and releases it.
    Q_INVOKABLE void hold(QWindow* window, int key, int times) const {
        send(window, QEvent::KeyPress, key, false);
        for (int each = 0; each < times; ++each) {
            send(window, QEvent::KeyRelease, key, true);
            send(window, QEvent::KeyPress, key, true);
        }
        send(window, QEvent::KeyRelease, key, false);
    }

  private:
    static void send(QWindow* window, QEvent::Type type, int key, bool isRepeated) {
        const QString text = key == Qt::Key_Space ? QStringLiteral(" ") : QStringLiteral("\r");
        QKeyEvent event(type, key, Qt::NoModifier, text, isRepeated);
        QCoreApplication::sendEvent(window, &event);
    }
};

class Setup : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        qmlRegisterSingletonType<Keyboard>(
            "ControlsTest", 1, 0, "Keyboard", [](QQmlEngine*, QJSEngine*) -> QObject* {
                return new Keyboard;
            });
    }
};

} // namespace

QUICK_TEST_MAIN_WITH_SETUP(views, Setup)

#include "ViewTests.moc"
