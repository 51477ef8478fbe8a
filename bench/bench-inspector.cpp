// How long the inspector takes to open, for every record of the packaged release, and what the
// process weighs after thousands of openings. Without motion, so that only the work is measured.
//
//   xvfb-run -a -s '-screen 0 1400x900x24' bench-inspector [openings]

#include "app/OpenMapApp.h"
#include "app/OpenMapRoot.h"
#include "app/QmlModules.h"
#include "bench/Figures.h"
#include "bench/FrameClock.h"
#include "bench/Process.h"
#include "bench/Stillness.h"
#include "map/scene/Graphics.h"
#include "platform/ui/theme/Fonts.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace vasker {
namespace {

using Sheet = SheetStack::Sheet;

/// The first openings fill caches of tiles, fonts, glyphs and components.
constexpr std::size_t openingsToWarmUp = 500;

void measure(std::size_t openings) {
    stopMotion();
    const Figures figures("real");
    const QTemporaryDir user;
    OpenMapApp windows(Bundle(QStringLiteral(VASKER_PACKAGED_RESOURCES)),
                       TextLocale::fromEnvironment(),
                       user.filePath(QStringLiteral("settings")),
                       user.filePath(QStringLiteral("cache")));
    QQuickWindow& window = *windows.openWindow();
    FrameClock clock(window);
    auto& root = *window.property("root").value<OpenMapRoot*>();
    SheetStack& sheets = *root.sheets();
    clock.expectPicture([&] { return root.workspace() != nullptr; }, "the release");
    OpenMapWorkspace& workspace = *root.workspace();
    const auto& assets = workspace.release().assets;

    std::vector<double> times;
    double warm = 0;
    for (std::size_t opening = 0; opening < openings; ++opening) {
        const std::int64_t start = monotonicNow();
        workspace.setSelection(QString::fromStdString(assets[opening % assets.size()].id));
        const std::int64_t shown = clock.expectPicture(
            [&] { return sheets.current() == Sheet::Inspector; }, "the inspector");
        times.push_back(static_cast<double>(shown - start) / 1e6);
        sheets.dismiss(Sheet::Inspector);
        clock.expectPicture([&] { return sheets.current() == Sheet::NoSheet; }, "the map");
        if (opening == openingsToWarmUp) {
            warm = proportionalMemory();
        }
    }
    figures.addTimes("inspector to picture", times);
    if (openings > openingsToWarmUp) {
        figures.add("memory after 500 inspectors", warm, "MB");
    }
    figures.add("memory after all inspectors", proportionalMemory(), "MB");
}

} // namespace
} // namespace vasker

int main(int argc, char* argv[]) {
    vasker::OpenMapApp::setUpProcess();
    const QGuiApplication application(argc, argv);
    vasker::chooseGraphics();
    vasker::installInterfaceFont();
    try {
        vasker::measure(argc > 1 ? std::max(1UL, std::stoul(argv[1])) : 5'000UL);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench-inspector: %s\n", error.what());
        return 1;
    }
    return 0;
}
