#include "platform/SystemBrowser.h"

#include "tests/platform/PlayedDesktop.h"

#include <QTest>

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(SystemBrowser, AnHttpsAddressGoesToThePortal) {
    const Portal portal(Desktop::Answers::done);
    Opened opened;
    SystemBrowser browser(session());
    EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/a%20b?c=d#e")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    EXPECT_EQ(portal.asked.interface(), QStringLiteral("org.freedesktop.portal.OpenURI"));
    EXPECT_EQ(portal.asked.arguments().at(1), QStringLiteral("https://example.org/a%20b?c=d#e"));
    QTest::qWait(50);
    EXPECT_TRUE(opened.url.isEmpty());
}

TEST(SystemBrowser, WithoutAPortalTheDesktopOpensTheAddress) {
    for (const QDBusConnection& bus : {session(), noBus()}) {
        Opened opened;
        SystemBrowser browser(bus);
        EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !opened.url.isEmpty(); }));
        EXPECT_EQ(opened.url, QUrl(QStringLiteral("https://example.org/")));
    }
}

TEST(SystemBrowser, WhereThePortalFailsTheDesktopOpensTheAddress) {
    for (const auto answers : {Desktop::Answers::failed, Desktop::Answers::unknownMethod}) {
        const Portal portal(answers);
        Opened opened;
        SystemBrowser browser(session());
        EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !opened.url.isEmpty(); }));
    }
}

TEST(SystemBrowser, ARefusalOfTheUserIsNotAskedAgain) {
    const Portal portal(Desktop::Answers::cancelled);
    Opened opened;
    SystemBrowser browser(session());
    EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    QTest::qWait(50);
    EXPECT_TRUE(opened.url.isEmpty());
}

TEST(SystemBrowser, WhereThereIsNoBrowserItSaysSoUntilAnAddressIsOpened) {
    SystemBrowser browser(noBus());
    {
        const Opened opened(Launchers::Present::none);
        EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/a")));
        ASSERT_TRUE(QTest::qWaitFor([&] { return !browser.unopened().isEmpty(); }));
        EXPECT_EQ(browser.unopened(), QStringLiteral("https://example.org/a"));
        EXPECT_EQ(browser.message(),
                  QStringLiteral("No browser was found that opens https://example.org/a"));
        EXPECT_TRUE(opened.url.isEmpty());
    }
    const Opened opened;
    EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/b")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.url.isEmpty(); }));
    EXPECT_TRUE(browser.unopened().isEmpty());
    EXPECT_TRUE(browser.message().isEmpty());
}

TEST(SystemBrowser, TheUsersOwnBrowserOpensAddresses) {
    const Opened opened(Launchers::Present::none);
    qputenv("BROWSER", "/bin/true");
    SystemBrowser browser(noBus());
    EXPECT_TRUE(browser.open(QStringLiteral("https://example.org/")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opened.url.isEmpty(); }));
    EXPECT_TRUE(browser.unopened().isEmpty());
}

TEST(SystemBrowser, NothingElseLeavesTheProgram) {
    const Portal portal(Desktop::Answers::done);
    Opened opened;
    SystemBrowser browser(session());
    for (const auto* address : {u"",
                                u"http://example.org/",
                                u"file:///etc/passwd",
                                u"https:///path",
                                u"https://",
                                u"example.org",
                                u"javascript:alert(1)",
                                u"https://exa mple.org/",
                                u"//example.org/"}) {
        EXPECT_FALSE(browser.open(QString::fromUtf16(address)))
            << QString::fromUtf16(address).toStdString();
    }
    QTest::qWait(50);
    EXPECT_TRUE(portal.asked.member().isEmpty());
    EXPECT_TRUE(opened.url.isEmpty());
}

} // namespace
} // namespace vasker
