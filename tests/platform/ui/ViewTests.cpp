// Runs the tests of the controls, tst_*.qml.

#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)

namespace {

class Setup : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
};

} // namespace

QUICK_TEST_MAIN_WITH_SETUP(views, Setup)

#include "ViewTests.moc"
