#include "app/MemoryReturn.h"

#include "map/style/ImagePool.h"
#include "platform/Memory.h"

#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <thread>
#include <vector>

namespace vasker {
namespace {

/// Frees 60 MB in such a way that the allocator keeps them: the block after each stays, and is as
/// large, so that it lies there whatever was freed before.
std::vector<std::unique_ptr<char[]>> freeMuch() {
    constexpr std::size_t size = 60'000;
    std::vector<std::unique_ptr<char[]>> freed;
    std::vector<std::unique_ptr<char[]>> kept;
    for (int i = 0; i < 1'000; ++i) {
        freed.push_back(std::make_unique<char[]>(size));
        kept.push_back(std::make_unique<char[]>(size));
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

TEST(MemoryReturn, WhatAThreadFreedGoesBackToo) {
    returnThreadsMemory();
    QQmlEngine engine;
    MemoryReturn memory(engine);
    const long before = pagesInMemory();
    long filled = 0;
    std::thread([&filled] {
        std::vector<std::unique_ptr<std::array<char, 64>>> blocks(800'000);
        for (auto& block : blocks) {
            block = std::make_unique<std::array<char, 64>>();
        }
        filled = pagesInMemory();
    }).join();
    ASSERT_GT(filled, before + muchInPages);
    memory.giveBack();
    EXPECT_LT(pagesInMemory(), before + muchInPages / 8);
}

TEST(MemoryReturn, PooledImagesGoBack) {
    QQmlEngine engine;
    MemoryReturn memory(engine);
    { const QImage dropped = pooledImage(512, 512, QImage::Format_RGB32); }
    ASSERT_GT(pooledBytes(), 0U);
    memory.giveBack();
    EXPECT_EQ(pooledBytes(), 0U);
}

TEST(MemoryReturn, ItGoesBackOnceTheUserPauses) {
    QQmlEngine engine;
    const MemoryReturn memory(engine);
    const auto kept = freeMuch();
    ASSERT_GT(freedBytesKept(), 50'000'000U);
    const long before = pagesInMemory();
    QObject somewhere;
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&somewhere, &key);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pagesInMemory() < before - muchInPages; }));
}

} // namespace
} // namespace vasker
