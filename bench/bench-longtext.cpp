// A record with fifty facts of 10,000 characters in the inspector: how long it takes to open, how
// long the frames are in which it is scrolled, and what the process weighs after each closing.
// Without motion, so that only the work is measured.
//
//   xvfb-run -a -s '-screen 0 1400x900x24' bench-longtext [words|unbroken|breaks|leftward]
//   [openings]

#include "app/OpenMapApp.h"
#include "app/OpenMapRoot.h"
#include "app/QmlModules.h"
#include "bench/Figures.h"
#include "bench/FrameClock.h"
#include "bench/Process.h"
#include "bench/Stillness.h"
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "map/scene/Graphics.h"
#include "platform/ui/theme/Fonts.h"
#include "tools/openmap-release/Synthesis.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace vasker {
namespace {

using Sheet = SheetStack::Sheet;

constexpr int notches = 60; ///< of the wheel, after each opening

QString partOf(const QString& kind) {
    if (kind == QStringLiteral("words")) {
        return QStringLiteral("A word, and another one. ");
    }
    if (kind == QStringLiteral("unbroken")) {
        return QStringLiteral("x");
    }
    if (kind == QStringLiteral("breaks")) {
        return QStringLiteral("\n");
    }
    if (kind == QStringLiteral("leftward")) {
        return QStringLiteral("\u05E9\u05DC\u05D5\u05DD ");
    }
    throw std::runtime_error("no such text: " + kind.toStdString());
}

/// The folder of a release whose first record has the facts.
void write(const QString& folder, const QString& kind) {
    OpenMapRelease release = synthesize({.records = 100, .routePoints = 1000, .seed = 1});
    auto& facts = release.assets.front().facts;
    auto fact = facts.front();
    const QString part = partOf(kind);
    fact.value = part.repeated(10'000 / part.size()).toStdString();
    facts.assign(50, fact);
    const std::string json = encode(release);
    writeFile(folder + QStringLiteral("/OpenMap.json"), json);
    writeFile(folder + QStringLiteral("/BundleInformation.json"),
              R"({"VaskerOpenMapSHA256":")" + sha256(json) + R"("})");
}

/// The time from a notch of the wheel over the inspector to the next picture.
double turnWheel(QQuickWindow& window, FrameClock& clock, int delta) {
    const QPointF place(window.width() - 200, window.height() / 2.0);
    QWheelEvent event(place,
                      window.mapToGlobal(place),
                      {},
                      {0, delta},
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false);
    const std::int64_t start = monotonicNow();
    QCoreApplication::sendEvent(&window, &event);
    const std::int64_t shown = clock.expectPicture([] { return true; }, "scrolling");
    return static_cast<double>(shown - start) / 1e6;
}

void measure(const QString& kind, int openings) {
    stopMotion();
    const Figures figures(kind.toStdString());
    const QTemporaryDir scratch;
    write(scratch.path(), kind);
    OpenMapApp windows(Bundle(scratch.path()),
                       TextLocale::fromEnvironment(),
                       scratch.filePath(QStringLiteral("settings")),
                       scratch.filePath(QStringLiteral("cache")));
    QQuickWindow& window = *windows.openWindow();
    FrameClock clock(window);
    auto& root = *window.property("root").value<OpenMapRoot*>();
    SheetStack& sheets = *root.sheets();
    clock.expectPicture([&] { return root.workspace() != nullptr; }, "the release");
    OpenMapWorkspace& workspace = *root.workspace();
    QTest::qWait(3000); // the map paints what is ahead
    figures.add("memory before", proportionalMemory(), "MB");

    std::vector<double> opened;
    std::vector<double> scrolled;
    std::vector<double> weights;
    for (int opening = 0; opening < openings; ++opening) {
        const std::int64_t start = monotonicNow();
        workspace.setSelection(QString::fromStdString(workspace.release().assets.front().id));
        const std::int64_t shown = clock.expectPicture(
            [&] { return sheets.current() == Sheet::Inspector; }, "the inspector");
        opened.push_back(static_cast<double>(shown - start) / 1e6);
        QTest::qWait(1500); // all rows are there
        for (int notch = 0; notch < notches; ++notch) {
            scrolled.push_back(turnWheel(window, clock, notch % 20 < 15 ? -120 : 120));
        }
        sheets.dismiss(Sheet::Inspector);
        clock.expectPicture([&] { return sheets.current() == Sheet::NoSheet; }, "the map");
        QTest::mouseMove(&window, {600, 400 + opening % 2});
        QTest::qWait(2000); // what was freed is given back once the user pauses
        weights.push_back(proportionalMemory());
    }
    figures.addTimes("inspector to picture", opened);
    figures.addTimes("notch of the wheel", scrolled);
    figures.add("memory after the first closing", weights.front(), "MB");
    figures.add("memory after the last closing", weights.back(), "MB");
}

} // namespace
} // namespace vasker

int main(int argc, char* argv[]) {
    vasker::OpenMapApp::setUpProcess();
    const QGuiApplication application(argc, argv);
    vasker::chooseGraphics();
    vasker::installInterfaceFont();
    try {
        vasker::measure(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("words"),
                        argc > 2 ? std::max(1, std::stoi(argv[2])) : 20);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench-longtext: %s\n", error.what());
        return 1;
    }
    return 0;
}
