#include "platform/DesktopActivation.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <vector>

namespace vasker {
namespace {

using Outcome = DesktopActivation::Outcome;
using namespace std::chrono_literals;

const QString name = QStringLiteral("ca.example.Open-Map");
const QString path = QStringLiteral("/ca/example/Open_Map");

/// A program's own connection to the session's bus.
QDBusConnection connection() {
    static int number = 0;
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QString::number(++number));
}

class Activation : public testing::Test {
  protected:
    void becomeFirst() {
        ASSERT_EQ(m_first.start({}), Outcome::first);
        QObject::connect(&m_first,
                         &DesktopActivation::windowRequested,
                         &m_first,
                         [this](const LaunchToken& token) { m_wanted.push_back(token); });
    }
    /// Starts `other` as a program beside this one, which goes on working.
    static Outcome startBeside(DesktopActivation& other,
                               const LaunchToken& token = {},
                               std::chrono::milliseconds patience = 5s) {
        auto outcome = std::async(std::launch::async, [&] { return other.start(token, patience); });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return outcome.wait_for(0s) == std::future_status::ready; }, 10'000));
        return outcome.get();
    }
    /// Calls a method as a launcher does, and waits for the answer.
    QDBusMessage call(const QString& method, const QVariantList& arguments) {
        QDBusMessage request = QDBusMessage::createMethodCall(
            name, path, QStringLiteral("org.freedesktop.Application"), method);
        request.setArguments(arguments);
        const QDBusPendingCall answer = m_launcher.asyncCall(request);
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.isFinished(); }));
        return answer.reply();
    }

    DesktopActivation m_first{connection(), name};
    QDBusConnection m_launcher = connection();
    std::vector<LaunchToken> m_wanted;
};

TEST_F(Activation, ASecondStartHandsItsTokenToTheFirst) {
    becomeFirst();
    DesktopActivation second(connection(), name);
    EXPECT_EQ(
        startBeside(second, {.activation = QStringLiteral("a"), .startup = QStringLiteral("s")}),
        Outcome::handedOver);
    ASSERT_EQ(m_wanted.size(), 1);
    EXPECT_EQ(m_wanted.front().activation, QStringLiteral("a"));
    EXPECT_EQ(m_wanted.front().startup, QStringLiteral("s"));
    EXPECT_FALSE(second.claim());
}

TEST_F(Activation, OfTwoStartsAtOnceOneIsFirstAndTheOtherAsksIt) {
    DesktopActivation second(connection(), name);
    int requested = 0;
    std::vector<std::future<Outcome>> starts;
    for (DesktopActivation* each : {&m_first, &second}) {
        QObject::connect(each, &DesktopActivation::windowRequested, each, [&] { ++requested; });
        starts.push_back(std::async(std::launch::async, [each] { return each->start({}); }));
    }
    std::vector<Outcome> outcomes;
    for (auto& start : starts) {
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return start.wait_for(0s) == std::future_status::ready; }));
        outcomes.push_back(start.get());
    }
    std::sort(outcomes.begin(), outcomes.end());
    EXPECT_EQ(outcomes, (std::vector<Outcome>{Outcome::first, Outcome::handedOver}));
    EXPECT_EQ(requested, 1);
}

TEST_F(Activation, LaunchersOpenWindowsByEveryMethodOfTheInterface) {
    becomeFirst();
    const QVariantMap data{{QStringLiteral("activation-token"), QStringLiteral("t")}};
    const QVariantList nothing;
    EXPECT_EQ(call(QStringLiteral("Activate"), {data}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call(QStringLiteral("Open"), {QStringList(), data}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(call(QStringLiteral("ActivateAction"),
                   {QStringLiteral("new-window"), QVariant(nothing), data})
                  .type(),
              QDBusMessage::ReplyMessage);
    ASSERT_EQ(m_wanted.size(), 3);
    for (const LaunchToken& token : m_wanted) {
        EXPECT_EQ(token.activation, QStringLiteral("t"));
        EXPECT_EQ(token.startup, QString());
    }
}

TEST_F(Activation, WithoutABusAProgramIsAlone) {
    DesktopActivation second(QDBusConnection(QStringLiteral("none")), name);
    EXPECT_EQ(second.start({}), Outcome::alone);
    EXPECT_FALSE(second.claim());
}

TEST_F(Activation, AFirstThatHangsIsWaitedForNoLongerThanPatienceLasts) {
    becomeFirst();
    DesktopActivation second(connection(), name);
    QElapsedTimer waited;
    waited.start();
    EXPECT_EQ(second.start({}, 300ms), Outcome::alone); // blocks the thread of the first
    EXPECT_GE(waited.elapsed(), 300);
    EXPECT_LT(waited.elapsed(), 3'000);
}

TEST_F(Activation, AnOwnerOfTheNameThatIsNoSuchProgramLeavesUsAlone) {
    QDBusConnection other = connection();
    ASSERT_TRUE(other.registerService(name));
    DesktopActivation second(connection(), name);
    EXPECT_EQ(startBeside(second), Outcome::alone);
    other.unregisterService(name);
}

TEST_F(Activation, AfterTheFirstHasWithdrawnTheNextIsFirst) {
    becomeFirst();
    m_first.withdraw();
    DesktopActivation second(connection(), name);
    EXPECT_EQ(startBeside(second), Outcome::first);
    EXPECT_TRUE(m_wanted.empty());
}

TEST_F(Activation, ATokenComesFromTheEnvironment) {
    qputenv("XDG_ACTIVATION_TOKEN", "wayland");
    qputenv("DESKTOP_STARTUP_ID", "x");
    EXPECT_EQ(LaunchToken::fromEnvironment().activation, QStringLiteral("wayland"));
    EXPECT_EQ(LaunchToken::fromEnvironment().startup, QStringLiteral("x"));
    qunsetenv("XDG_ACTIVATION_TOKEN");
    qunsetenv("DESKTOP_STARTUP_ID");
    EXPECT_EQ(LaunchToken::fromEnvironment().activation, QString());
}

} // namespace
} // namespace vasker
