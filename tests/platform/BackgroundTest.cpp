#include "platform/Background.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

namespace vasker {
namespace {

// What work hands over and the test looks at; the work may outlive the test's own variables.
struct Shared {
    QSemaphore begun;
    QSemaphore end;
    std::atomic<bool> stopped = false;
};

TEST(Background, AResultArrivesInTheThreadOfItsReceiver) {
    QObject receiver;
    QThread* worker = nullptr;
    QThread* deliverer = nullptr;
    runInBackground(
        &receiver,
        [](const std::stop_token&) { return QThread::currentThread(); },
        [&](QThread* thread) {
            worker = thread;
            deliverer = QThread::currentThread();
        });
    EXPECT_EQ(deliverer, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return deliverer != nullptr; }));
    EXPECT_EQ(deliverer, QThread::currentThread());
    EXPECT_NE(worker, deliverer);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(receiver.children().isEmpty());
}

TEST(Background, WorkIsAskedToStopAndForgottenWhenItsReceiverIsGone) {
    const auto shared = std::make_shared<Shared>();
    bool delivered = false;
    auto receiver = std::make_unique<QObject>();
    runInBackground(
        receiver.get(),
        [shared](const std::stop_token& stop) {
            shared->begun.release();
            shared->end.acquire();
            shared->stopped = stop.stop_requested();
            return 0;
        },
        [&](int) { delivered = true; });
    shared->begun.acquire();
    receiver.reset();
    shared->end.release();
    EXPECT_TRUE(finishBackgroundWork());
    QCoreApplication::processEvents();
    EXPECT_TRUE(shared->stopped);
    EXPECT_FALSE(delivered);
}

TEST(Background, AReceiverMayGoWhileItsResultIsOnTheWay) {
    for (int each = 0; each < 200; ++each) {
        bool gone = false;
        auto receiver = std::make_unique<QObject>();
        runInBackground(
            receiver.get(),
            [](const std::stop_token&) { return 0; },
            [&](int) { EXPECT_FALSE(gone); });
        if (each % 2 == 0) {
            QThread::yieldCurrentThread();
        }
        receiver.reset();
        gone = true;
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(finishBackgroundWork());
}

TEST(Background, AReceiverMayGoWhenItsResultArrives) {
    auto* const receiver = new QObject;
    bool gone = false;
    runInBackground(
        receiver,
        [](const std::stop_token&) { return 0; },
        [&](int) {
            delete receiver;
            gone = true;
        });
    EXPECT_TRUE(QTest::qWaitFor([&] { return gone; }));
}

TEST(Background, NobodyWaitsForWorkThatHangs) {
    const auto shared = std::make_shared<Shared>();
    auto receiver = std::make_unique<QObject>();
    runInBackground(
        receiver.get(),
        [shared](const std::stop_token&) {
            shared->end.acquire(); // as a read from a disk that is gone
            return 0;
        },
        [](int) {});
    QElapsedTimer waited;
    waited.start();
    receiver.reset();
    EXPECT_FALSE(finishBackgroundWork());
    EXPECT_LT(waited.elapsed(), 2'000);
    shared->end.release();
    EXPECT_TRUE(finishBackgroundWork());
}

TEST(Background, WorkThatIsToBeFinishedGetsItsTime) {
    const auto shared = std::make_shared<Shared>();
    auto receiver = std::make_unique<QObject>();
    runInBackground(
        receiver.get(),
        [shared](const std::stop_token&) {
            QThread::msleep(400);
            shared->stopped = true;
            return 0;
        },
        [](int) {},
        AtExit::finish);
    receiver.reset();
    EXPECT_TRUE(finishBackgroundWork());
    EXPECT_TRUE(shared->stopped);
}

} // namespace
} // namespace vasker
