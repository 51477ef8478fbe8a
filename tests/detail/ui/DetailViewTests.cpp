// Runs the tests of the detail views, tst_*.qml, which get their releases here.

#include "detail/ReleaseRecord.h"
#include "tests/support/ReleaseBuilder.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(Vasker_PlatformPlugin)
Q_IMPORT_QML_PLUGIN(Vasker_DetailPlugin)

namespace vasker {
namespace {

std::string utf8(const char8_t* text) {
    return {text, text + std::char_traits<char8_t>::length(text)};
}

ReleaseRecord first(OpenMapRelease release) {
    return {std::make_shared<const OpenMapRelease>(std::move(release)), 0};
}

OpenMapRelease twoFacts() {
    OpenMapRelease release = makeRelease();
    release.assets[0].facts = {makeFact("12.5 t"), makeFact("7 t")};
    release.assets[0].facts[1].asOf = "2015";
    return release;
}

// Texts as nobody should write them, in every place.
OpenMapRelease hostile() {
    OpenMapRelease release = makeRelease();
    const std::string text =
        utf8(u8"<b>b</b>&amp;\u202E\u05D0\u05D1\u200B a\u0301\u0301\u0301\n\u2067%1");
    for (OpenMapRelease::Source& source : release.sources) {
        source.publisher = source.attribution = source.conditions = source.modifications = text;
        source.dataset = text;
    }
    OpenMapRelease::Asset& asset = release.assets[0];
    asset.name = asset.id = asset.kind = asset.status = asset.asOf = text;
    asset.reportedCompany = text;
    asset.facts = {makeFact(text), makeFact(std::string(10'000, 'x')), makeFact("7 t")};
    asset.facts[0].label = text;
    release.coverageName = release.releaseID = text;
    release.limitations = {text};
    return release;
}

} // namespace

class Releases : public QObject {
    Q_OBJECT

  public:
    Q_INVOKABLE static vasker::ReleaseRecord twoFacts() { return first(vasker::twoFacts()); }
    Q_INVOKABLE static vasker::ReleaseRecord hostile() { return first(vasker::hostile()); }
    Q_INVOKABLE static vasker::ReleaseRecord withoutCompany() {
        OpenMapRelease release = vasker::twoFacts();
        release.assets[0].reportedCompany.reset();
        return first(std::move(release));
    }
    Q_INVOKABLE static vasker::ReleaseRecord withoutModifications() {
        OpenMapRelease release = vasker::twoFacts();
        release.sources[0].modifications.clear();
        return first(std::move(release));
    }
    Q_INVOKABLE static vasker::ReleaseRecord withoutAnything() {
        OpenMapRelease release = makeRelease();
        release.assets[0].facts.clear();
        release.sources.clear();
        release.limitations.clear();
        return first(std::move(release));
    }
    Q_INVOKABLE static vasker::ReleaseRecord withLicenceThatDoesNotParse() {
        OpenMapRelease release = vasker::twoFacts();
        release.sources[0].licenceURL = "https://[";
        return first(std::move(release));
    }
    Q_INVOKABLE static vasker::ReleaseRecord withSourceThatDoesNotParse() {
        OpenMapRelease release = vasker::twoFacts();
        release.sources[0].sourceURL = "https://[";
        return first(std::move(release));
    }
    /// Nothing here may leave the program while it is tested.
    Q_INVOKABLE static vasker::ReleaseRecord withInsecureLinks() {
        OpenMapRelease release = vasker::twoFacts();
        release.sources[0].sourceURL = "http://data.example.ca/npri";
        return first(std::move(release));
    }
    /// Of 10,000 characters each: `part` again and again.
    Q_INVOKABLE static vasker::ReleaseRecord withFiftyHugeFacts(const QString& part) {
        OpenMapRelease release = makeRelease();
        const QString value = part.repeated(10'000 / part.size());
        release.assets[0].facts.assign(50, makeFact(value.toStdString()));
        return first(std::move(release));
    }
    /// "Limit 0" and on.
    Q_INVOKABLE static vasker::ReleaseRecord withManyLimitations(int count) {
        OpenMapRelease release = makeRelease();
        release.limitations.clear();
        for (int number = 0; number < count; ++number) {
            release.limitations.push_back("Limit " + std::to_string(number));
        }
        return first(std::move(release));
    }
    Q_INVOKABLE static vasker::ReleaseRecord withManyFacts() {
        OpenMapRelease release = makeRelease();
        release.assets[0].facts.assign(12, makeFact());
        return first(std::move(release));
    }
    Q_INVOKABLE static QString clipboard() { return QGuiApplication::clipboard()->text(); }
};

class Setup : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        qmlRegisterSingletonType<Releases>(
            "DetailTest", 1, 0, "Releases", [](QQmlEngine*, QJSEngine*) -> QObject* {
                return new Releases;
            });
    }
};

} // namespace vasker

QUICK_TEST_MAIN_WITH_SETUP(detail_views, vasker::Setup)

#include "DetailViewTests.moc"
