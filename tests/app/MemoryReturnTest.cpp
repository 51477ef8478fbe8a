#include "app/MemoryReturn.h"

#include "platform/Memory.h"

#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vasker {
namespace {

/// Frees 60 MB in such a way that the allocator keeps them: a small block after each stays.
std::vector<std::unique_ptr<char[]>> freeMuch() {
    constexpr std::size_t size = 60'000;
    std::vector<std::unique_ptr<char[]>> freed;
    std::vector<std::unique_ptr<char[]>> kept;
    for (int i = 0; i < 1'000; ++i) {
        freed.push_back(std::make_unique<char[]>(size));
        kept.push_back(std::make_unique<char[]>(5'000));
    }
    return kept;
}

/// Pages of the process that lie in memory.
long pagesInMemory() {
    QFile file(QStringLiteral("/proc/self/statm"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().split(' ').at(1).toLong();
}

constexpr long muchInPages = 40'000'000 / 4096;

TEST(MemoryReturn, FreedMemoryGoesBackToTheSystem) {
    QQmlEngine engine;
    MemoryReturn memory(engine);
    const auto kept = freeMuch();
    ASSERT_GT(freedBytesKept(), 50'000'000U);
    const long before = pagesInMemory();
    memory.giveBack();
    EXPECT_LT(pagesInMemory(), before - muchInPages);
}

TEST(MemoryReturn, ItGoesBackOnceTheUserPauses) {
    QQmlEngine engine;
    const MemoryReturn memory(engine);
    const auto kept = freeMuch();
    const long before = pagesInMemory();
    QObject somewhere;
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&somewhere, &key);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pagesInMemory() < before - muchInPages; }));
}

} // namespace
} // namespace vasker
