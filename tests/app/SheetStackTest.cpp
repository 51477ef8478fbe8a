#include "app/sheets/SheetStack.h"

#include <gtest/gtest.h>

#include <vector>

namespace vasker {
namespace {

using Sheet = SheetStack::Sheet;

TEST(SheetStack, ARequestedSheetIsShownUntilItIsDismissedAndOnScreenUntilItHasClosed) {
    SheetStack sheets;
    EXPECT_EQ(sheets.current(), Sheet::NoSheet);
    sheets.request(Sheet::About);
    EXPECT_EQ(sheets.current(), Sheet::About);
    EXPECT_EQ(sheets.shown(), Sheet::About);
    sheets.dismiss(Sheet::About);
    EXPECT_EQ(sheets.current(), Sheet::About);
    EXPECT_EQ(sheets.shown(), Sheet::NoSheet);
    sheets.setClosed(Sheet::About);
    EXPECT_EQ(sheets.current(), Sheet::NoSheet);
}

TEST(SheetStack, ThereIsNeverMoreThanOneAndTheOthersHaveTheirTurnInOrder) {
    SheetStack sheets;
    sheets.request(Sheet::Records);
    for (const Sheet each : {Sheet::About, Sheet::Inspector, Sheet::Sources}) {
        sheets.request(each);
        EXPECT_EQ(sheets.current(), Sheet::Records);
    }
    std::vector<Sheet> turns;
    while (sheets.current() != Sheet::NoSheet) {
        turns.push_back(sheets.current());
        sheets.setClosed(sheets.current());
    }
    EXPECT_EQ(turns, (std::vector{Sheet::Records, Sheet::Sources, Sheet::Inspector, Sheet::About}));
}

TEST(SheetStack, HelpOpensOverAnySheetAndLeavesItOpen) {
    for (const Sheet help : {Sheet::Guide, Sheet::Shortcuts}) {
        for (const Sheet each : {Sheet::Sources, Sheet::Records, Sheet::Inspector, Sheet::About}) {
            SheetStack sheets;
            sheets.request(each);
            sheets.request(help);
            EXPECT_EQ(sheets.current(), help);
            EXPECT_EQ(sheets.shownHelp(), help);
            EXPECT_EQ(sheets.shown(), each);
            sheets.setClosed(help);
            EXPECT_EQ(sheets.current(), each);
            EXPECT_EQ(sheets.shownHelp(), Sheet::NoSheet);
            EXPECT_EQ(sheets.shown(), each);
        }
    }
}

TEST(SheetStack, OneSheetOfHelpTakesThePlaceOfTheOther) {
    SheetStack sheets;
    sheets.request(Sheet::Records);
    sheets.request(Sheet::Guide);
    sheets.request(Sheet::Shortcuts);
    EXPECT_FALSE(sheets.isRequested(Sheet::Guide));
    EXPECT_EQ(sheets.current(), Sheet::Guide); // which leaves
    sheets.setClosed(Sheet::Guide);
    EXPECT_EQ(sheets.shownHelp(), Sheet::Shortcuts);
    sheets.request(Sheet::Guide);
    sheets.setClosed(Sheet::Shortcuts);
    EXPECT_EQ(sheets.shownHelp(), Sheet::Guide);
    EXPECT_EQ(sheets.shown(), Sheet::Records);
}

TEST(SheetStack, NothingOpensBelowHelp) {
    SheetStack sheets;
    sheets.request(Sheet::Guide);
    sheets.request(Sheet::Sources);
    EXPECT_EQ(sheets.shown(), Sheet::NoSheet);
    sheets.setClosed(Sheet::Guide);
    EXPECT_EQ(sheets.shown(), Sheet::Sources);
}

TEST(SheetStack, HelpWaitsForASheetThatLeavesAndComesBeforeTheNext) {
    SheetStack sheets;
    sheets.request(Sheet::Records);
    sheets.dismiss(Sheet::Records);
    sheets.request(Sheet::Guide);
    sheets.request(Sheet::Inspector);
    EXPECT_EQ(sheets.current(), Sheet::Records);
    sheets.setClosed(Sheet::Records);
    EXPECT_EQ(sheets.current(), Sheet::Guide);
    EXPECT_EQ(sheets.shown(), Sheet::NoSheet);
    sheets.setClosed(Sheet::Guide);
    EXPECT_EQ(sheets.current(), Sheet::Inspector);
}

TEST(SheetStack, ASheetThatIsDismissedBeforeItsTurnHasNone) {
    SheetStack sheets;
    sheets.request(Sheet::Sources);
    sheets.request(Sheet::About);
    sheets.dismiss(Sheet::About);
    sheets.setClosed(Sheet::Sources);
    EXPECT_EQ(sheets.current(), Sheet::NoSheet);
}

TEST(SheetStack, ASheetThatIsRequestedAgainWhileItLeavesComesBack) {
    SheetStack sheets;
    sheets.request(Sheet::Sources);
    sheets.dismiss(Sheet::Sources);
    sheets.request(Sheet::Sources);
    EXPECT_EQ(sheets.shown(), Sheet::Sources);
}

TEST(SheetStack, WhoHearsThatASheetHasClosedMayRequestTheNextOne) {
    SheetStack sheets;
    Sheet whileClosing = Sheet::NoSheet;
    QObject::connect(&sheets, &SheetStack::closed, [&](Sheet sheet) {
        whileClosing = sheets.current();
        if (sheet == Sheet::Records) {
            sheets.request(Sheet::Inspector);
        }
    });
    sheets.request(Sheet::Records);
    sheets.request(Sheet::Sources);
    sheets.setClosed(Sheet::Records);
    EXPECT_EQ(whileClosing, Sheet::Records);
    EXPECT_EQ(sheets.current(), Sheet::Sources);
    EXPECT_TRUE(sheets.isRequested(Sheet::Inspector));
}

TEST(SheetStack, ASheetThatWasNotOnScreenDoesNotClose) {
    SheetStack sheets;
    int closings = 0;
    QObject::connect(&sheets, &SheetStack::closed, [&] { ++closings; });
    sheets.request(Sheet::Sources);
    sheets.setClosed(Sheet::Records);
    EXPECT_EQ(closings, 0);
    EXPECT_EQ(sheets.current(), Sheet::Sources);
}

} // namespace
} // namespace vasker
