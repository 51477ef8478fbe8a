// How fast the real window is: from process start to the first full picture, frame by frame while
// the map is dragged and zoomed, from a keystroke to the filtered picture; and what it weighs.
//
//   xvfb-run -a -s '-screen 0 1400x900x24' bench-frame [real|worst|10%|1%|empty ...]
//
// Each case runs in a process of its own: "real" on the packaged release, "worst" on a synthesized
// one at the limits (15,000,000 bytes, 10,000 records, 300,000 route points), "10%" and "1%" on
// synthesized ones of a tenth and a hundredth of that, "empty" on a window
// without content: the floor beside which the others are to be read.

#include "app/OpenMapApp.h"
#include "app/OpenMapRoot.h"
#include "app/QmlModules.h"
#include "bench/Figures.h"
#include "bench/FrameClock.h"
#include "bench/Process.h"
#include "data/Digest.h"
#include "map/scene/Graphics.h"
#include "map/view/MapView.h"
#include "platform/ui/theme/Fonts.h"
#include "presentation/Symbols.h"
#include "tools/openmap-release/Synthesis.h"

#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QMouseEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

namespace vasker {
namespace {

/// Of each gesture.
int frames() {
    return isSmallBench() ? 60 : 300;
}

double milliseconds(std::int64_t nanoseconds) {
    return static_cast<double>(nanoseconds) / 1e6;
}

/// Steps `script` once for every picture, and tells the times between the pictures.
void measureFrames(const Figures& figures,
                   const char* name,
                   FrameClock& clock,
                   int frames,
                   const std::function<void(int)>& script) {
    std::vector<double> intervals;
    std::int64_t last = 0;
    int step = 0;
    QEventLoop loop;
    QObject::connect(&clock, &FrameClock::swapped, &loop, [&](std::int64_t when) {
        if (step > 2) { // the first pictures still belong to what was before
            intervals.push_back(milliseconds(when - last));
        }
        last = when;
        if (++step > frames + 2) {
            loop.quit();
            return;
        }
        script(step);
    });
    script(0);
    loop.exec();
    figures.addTimes(name, intervals);
}

/// Throws unless the window's picture shows records: plenty of pixels in several of their colours.
void requireRecordsInPicture(QQuickWindow& window,
                             const MapView& map,
                             const OpenMapRelease& release) {
    std::set<QRgb> tints;
    for (const auto& asset : release.assets) {
        tints.insert(
            colorValue(color(asset.kind),
                       map.property("dark").toBool() ? ColorScheme::dark : ColorScheme::light)
                .rgb());
    }
    const QImage picture = window.grabWindow().convertToFormat(QImage::Format_RGB32);
    const QRect area = map.mapRectToScene(map.boundingRect()).toRect();
    std::set<QRgb> seen;
    int pixels = 0;
    for (int y = area.top(); y < area.bottom(); ++y) {
        for (int x = area.left(); x < area.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (tints.contains(pixel)) {
                seen.insert(pixel);
                ++pixels;
            }
        }
    }
    if (pixels < (isSmallBench() ? 50 : 5000) || seen.size() < 4) {
        throw std::runtime_error("the picture shows no records");
    }
}

/// A hand on the mouse over the map: one event for each picture.
class Hand {
  public:
    Hand(QQuickWindow& window, const MapView& map)
        : m_window(window), m_middle(map.mapToScene({map.width() * 0.52, map.height() * 0.55})) {}

    /// Presses at step 0, then goes to and fro by so many pixels a step.
    void drag(int step, Qt::MouseButton button, int dx, int dy) const {
        const int way = step % 120 < 60 ? step % 60 : 60 - step % 60;
        send(step == 0 ? QEvent::MouseButtonPress : QEvent::MouseMove,
             m_middle + QPointF(way * dx, way * dy),
             button);
        if (step == 0) { // beyond what counts as a click
            send(QEvent::MouseMove, m_middle + QPointF(8, 8), button);
        } else if (step == lastStep) {
            send(QEvent::MouseButtonRelease, m_middle, button);
        }
    }
    /// A notch of the wheel every sixth picture, in and out again.
    void zoom(int step) const {
        if (step % 6 == 0) {
            const QPoint angle(0, step % 180 < 90 ? 120 : -120);
            QWheelEvent event(m_middle,
                              m_window.mapToGlobal(m_middle),
                              {},
                              angle,
                              Qt::NoButton,
                              Qt::NoModifier,
                              Qt::NoScrollPhase,
                              false);
            QCoreApplication::sendEvent(&m_window, &event);
        }
    }

  private:
    const int lastStep = frames() + 2;

    void send(QEvent::Type type, QPointF place, Qt::MouseButton button) const {
        QMouseEvent event(type,
                          place,
                          m_window.mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &event);
    }

    QQuickWindow& m_window;
    QPointF m_middle;
};

/// From a keystroke to the picture with the new list, and to the one whose map is complete again.
void measureFilter(const Figures& figures,
                   FrameClock& clock,
                   QQuickWindow& window,
                   const OpenMapWorkspace& workspace,
                   const MapView& map) {
    window.requestActivate();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("the window does not get the keyboard");
    }
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    std::vector<double> toList;
    std::vector<double> toMap;
    for (const char letter : {'g', 'a', 's', ' ', 'p', 'l', '\b', '\b', '\b', '\b', '\b', '\b'}) {
        const QString query = workspace.query();
        const std::int64_t start = monotonicNow();
        QTest::keyClick(&window,
                        letter == '\b' ? Qt::Key_Backspace
                                       : Qt::Key(QChar::fromLatin1(letter).toUpper().unicode()));
        if (workspace.query() == query) {
            throw std::runtime_error("a keystroke did not reach the search field");
        }
        const std::int64_t complete = clock.waitForPicture([&] { return map.isComplete(); });
        toList.push_back(milliseconds(clock.firstPicture() - start));
        toMap.push_back(milliseconds(complete - start));
    }
    figures.addTimes("keystroke to list", toList);
    figures.addTimes("keystroke to map", toMap);
}

void measureRelease(const Figures& figures, const QString& folder, std::int64_t started) {
    const QTemporaryDir user;
    OpenMapApp windows(Bundle(folder),
                       TextLocale::fromEnvironment(),
                       user.filePath(QStringLiteral("settings")),
                       user.filePath(QStringLiteral("cache")));
    QQuickWindow& window = *windows.openWindow();
    FrameClock clock(window);
    const auto& root = *window.property("root").value<OpenMapRoot*>();
    const MapView* map = nullptr;
    const std::int64_t shown = clock.waitForPicture([&] {
        map = window.findChild<MapView*>(QStringLiteral("open-map-canvas"));
        return map != nullptr && map->records().loaded != nullptr && map->isComplete();
    });
    if (shown == 0) {
        throw std::runtime_error("no map within ten seconds: " + root.failureText().toStdString());
    }
    figures.add("first full picture", milliseconds(shown - started), "ms");
    OpenMapWorkspace& workspace = *root.workspace();
    requireRecordsInPicture(window, *map, workspace.release());
    figures.add("memory at first", proportionalMemory(), "MB");

    const Hand hand(window, *map);
    const auto measureGesture = [&](const char* name, const std::function<void(int)>& gesture) {
        workspace.resetCamera();
        const CameraPose before = map->resolvedCamera().pose();
        CameraPose middle = before;
        measureFrames(figures, name, clock, frames(), [&](int step) {
            gesture(step);
            window.update();
            middle = step == 45 ? map->resolvedCamera().pose() : middle;
        });
        if (middle == before) {
            throw std::runtime_error(std::string("the camera did not move: ") + name);
        }
    };
    measureGesture("drag", [&](int step) { hand.drag(step, Qt::LeftButton, 4, 2); });
    measureGesture("zoom", [&](int step) { hand.zoom(step); });
    measureGesture("rotate", [&](int step) { hand.drag(step, Qt::RightButton, 5, 0); });
    measureGesture("tilt", [&](int step) { hand.drag(step, Qt::RightButton, 0, -4); });
    workspace.resetCamera();
    measureFilter(figures, clock, window, workspace, *map);
    figures.add("memory at last", proportionalMemory(), "MB");
}

void measureEmpty(const Figures& figures, std::int64_t started) {
    QQuickWindow window;
    window.resize(1280, 800);
    FrameClock clock(window);
    window.show();
    const std::int64_t shown = clock.waitForPicture([] { return true; });
    figures.add("first full picture", milliseconds(shown - started), "ms");
    measureFrames(figures, "frame", clock, frames(), [&](int) { window.update(); });
    figures.add("memory at last", proportionalMemory(), "MB");
}

/// How large the synthesized release of a case is, in hundredths of the limits; nothing: the case
/// is not on a synthesized one.
std::optional<std::size_t> hundredthsOf(const QString& name) {
    if (name == QStringLiteral("worst")) {
        return isSmallBench() ? 1 : 100;
    }
    if (name == QStringLiteral("10%")) {
        return 10;
    }
    if (name == QStringLiteral("1%")) {
        return 1;
    }
    return std::nullopt;
}

/// The folder with the release of a case, made in `scratch` where it is not the packaged one.
QString folderOf(const QString& name, const QString& scratch) {
    const auto hundredths = hundredthsOf(name);
    if (!hundredths) {
        return QStringLiteral(VASKER_PACKAGED_RESOURCES);
    }
    const std::string json = synthesizeFile({.records = 100 * *hundredths,
                                             .routePoints = 3'000 * *hundredths,
                                             .bytes = 150'000 * *hundredths,
                                             .seed = 1});
    writeFile(scratch + QStringLiteral("/OpenMap.json"), json);
    writeFile(scratch + QStringLiteral("/BundleInformation.json"),
              R"({"VaskerOpenMapSHA256":")" + sha256(json) + R"("})");
    return scratch;
}

int runCases(QStringList cases) {
    if (cases.isEmpty()) {
        cases = {QStringLiteral("empty"), QStringLiteral("real"), QStringLiteral("worst")};
    }
    for (const QString& name : cases) {
        const QTemporaryDir scratch;
        const QString folder = folderOf(name, scratch.path());
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--measure"), name, folder, QString::number(monotonicNow())});
        if (!process.waitForFinished(300'000) || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0) {
            return 1;
        }
    }
    return 0;
}

int measure(const QString& name, const QString& folder, std::int64_t started) {
    installInterfaceFont();
    try {
        const Figures figures(name.toStdString());
        name == QStringLiteral("empty") ? measureEmpty(figures, started)
                                        : measureRelease(figures, folder, started);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench-frame: %s\n", error.what());
        return 1;
    }
    return 0;
}

} // namespace
} // namespace vasker

int main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    if (arguments.size() == 4 && arguments[0] == QStringLiteral("--measure")) {
        vasker::OpenMapApp::setUpProcess();
        const QGuiApplication application(argc, argv);
        vasker::chooseGraphics();
        return vasker::measure(arguments[1], arguments[2], arguments[3].toLongLong());
    }
    const QCoreApplication application(argc, argv);
    return vasker::runCases(arguments);
}
