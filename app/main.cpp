#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_MapPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_AppPlugin)

int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Vasker/App/Main.qml")));
    return QGuiApplication::exec();
}
