#include "platform/Printing.h"

#include "tests/platform/PlayedDesktop.h"

#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {
namespace {

const QVariantMap chosen{
    {QStringLiteral("token"), 42U},
    {QStringLiteral("page-setup"),
     QVariantMap{{QStringLiteral("Width"), 210.0},
                 {QStringLiteral("Height"), 297.0},
                 {QStringLiteral("MarginTop"), 10.0},
                 {QStringLiteral("MarginLeft"), 20.0},
                 {QStringLiteral("Orientation"), QStringLiteral("landscape")}}}};

class PrintingTest : public testing::Test {
  protected:
    void print(const QString& fault = {}) {
        m_printing.print(QStringLiteral("Canada"),
                         nullptr,
                         [this, fault](QIODevice& file, const QPageLayout& page) {
                             m_page = page;
                             file.write("%PDF-1.4");
                             return fault;
                         });
    }
    std::string ending(bool isPrinted) {
        if (m_ended.isEmpty() && !m_ended.wait(5000)) {
            return "nothing";
        }
        EXPECT_EQ(m_ended.constFirst().at(0).toBool(), isPrinted);
        return m_ended.takeFirst().at(1).toString().toStdString();
    }

    Printing m_printing{session()};
    QSignalSpy m_ended{&m_printing, &Printing::ended};
    QPageLayout m_page;
};

TEST_F(PrintingTest, ThePageIsWrittenAsTheUserChoseItAndHandedToThePortal) {
    const Portal portal(Desktop::Answers::done, chosen);
    print();
    EXPECT_EQ(ending(true), "The map is on its way to the printer.");
    EXPECT_EQ(m_page.pageSize().size(QPageSize::Millimeter), QSizeF(210, 297));
    EXPECT_EQ(m_page.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(m_page.margins(QPageLayout::Millimeter), QMarginsF(20, 10, 12, 12));

    EXPECT_EQ(portal.asked.member(), QStringLiteral("Print"));
    EXPECT_EQ(portal.asked.arguments().at(1).toString(), QStringLiteral("Canada"));
    EXPECT_EQ(portal.options().value(QStringLiteral("token")).toUInt(), 42U);
    const auto handle = portal.asked.arguments().at(2).value<QDBusUnixFileDescriptor>();
    QFile file;
    ASSERT_TRUE(file.open(handle.fileDescriptor(), QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("%PDF-1.4")) << "read from where the descriptor stands";
}

TEST_F(PrintingTest, WithoutAPortalItIsSaidWhatToDoInstead) {
    const Portal portal(Desktop::Answers::unknownMethod);
    print();
    EXPECT_EQ(ending(false),
              "This desktop has no dialog to print with. Save the map as PDF and print that.");
}

TEST_F(PrintingTest, ACancelledDialogEndsInSilenceAndNothingIsWritten) {
    const Portal portal(Desktop::Answers::cancelled);
    print();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !portal.asked.member().isEmpty(); }));
    EXPECT_FALSE(m_ended.wait(50));
    EXPECT_EQ(portal.asked.member(), QStringLiteral("PreparePrint"));
    EXPECT_FALSE(m_page.isValid());
}

TEST_F(PrintingTest, NothingIsLeftToSayWhereTheUserCancelsAPageThatIsWritten) {
    Portal portal(Desktop::Answers::done, chosen);
    QObject::connect(&m_printing, &Printing::started, &m_printing, [&portal] {
        portal.answer(Desktop::Answers::cancelled);
    });
    print();
    EXPECT_EQ(ending(false), "");
    EXPECT_EQ(portal.asked.member(), QStringLiteral("Print"));
}

TEST_F(PrintingTest, AFaultWhileWritingIsToldAndNothingIsPrinted) {
    const Portal portal(Desktop::Answers::done, chosen);
    print(QStringLiteral("the pen broke."));
    EXPECT_EQ(ending(false), "The map could not be printed: the pen broke.");
    EXPECT_EQ(portal.asked.member(), QStringLiteral("PreparePrint"));
}

} // namespace
} // namespace vasker
