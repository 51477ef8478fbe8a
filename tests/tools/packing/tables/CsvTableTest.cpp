#include "tools/openmap-release/packing/tables/CsvTable.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::string refusalOf(std::string_view bytes) {
    try {
        const CsvTable table("t.csv", bytes);
        for (const CsvTable::Row& row : table.rows()) {
            static_cast<void>(table.cell(row, "a"));
        }
    } catch (const InputError& error) {
        return error.what();
    }
    return "";
}

TEST(CsvTable, ReadsQuotedFieldsAndKnowsTheirLines) {
    const CsvTable table("t.csv",
                         "\xEF\xBB\xBF"
                         "a,b / c\r\n\"x, \"\"y\"\"\",1\n\n\"two\nlines\",2\n z ,3");
    ASSERT_EQ(table.rows().size(), 3U);
    EXPECT_EQ(table.cell(table.rows()[0], "a"), "x, \"y\"");
    EXPECT_EQ(table.cell(table.rows()[0], "b"), "1");
    EXPECT_EQ(table.cell(table.rows()[0], "b / c"), "1");
    EXPECT_EQ(table.cell(table.rows()[1], "a"), "two\nlines");
    EXPECT_EQ(table.cell(table.rows()[2], "a"), " z ");
    EXPECT_EQ(table.rows()[0].line, 2U);
    EXPECT_EQ(table.rows()[1].line, 4U);
    EXPECT_EQ(table.rows()[2].line, 6U);
}

TEST(CsvTable, NamesFileAndLineOfWhatIsMalformed) {
    EXPECT_EQ(refusalOf("a,b\n1,2\n1\n"), "t.csv:3: 1 fields, but 2 headings");
    EXPECT_EQ(refusalOf("a,b\n1,2,3\n"), "t.csv:2: 3 fields, but 2 headings");
    EXPECT_EQ(refusalOf("a,b\n1,x\"y\n"), "t.csv:2: a quote stands where none belongs");
    EXPECT_EQ(refusalOf("a,b\n\"x\"y,2\n"), "t.csv:2: a quote stands where none belongs");
    EXPECT_EQ(refusalOf("a,b\n1,2\n\"open,2\n3,4\n"), "t.csv:3: a quote is not closed");
    EXPECT_EQ(refusalOf("a,b\n1,\xE9\n"), "t.csv:2: the text is not UTF-8");
    EXPECT_EQ(refusalOf("a,b\n1,\xED\xA0\x80\n"), "t.csv:2: the text is not UTF-8");
    EXPECT_EQ(refusalOf(""), "t.csv:1: there is no heading line");
    EXPECT_EQ(refusalOf("b\n1\n"), "t.csv:1: there is no column \"a\"");
    EXPECT_EQ(refusalOf("a\n"), "");
}

TEST(CsvTable, HoldsTwoMillionFieldsAtMost) {
    std::string table = "a\n";
    for (std::size_t row = 1; row < CsvTable::maximumFields; ++row) {
        table += "x\n";
    }
    EXPECT_EQ(refusalOf(table), "");
    EXPECT_EQ(refusalOf(table + "x\n"), "t.csv:2000001: more than 2000000 fields in one table");
    EXPECT_EQ(refusalOf("a\n" + std::string(CsvTable::maximumFields, ',')),
              "t.csv:2: more than 2000000 fields in one table");
}

TEST(CsvTable, OmitsEveryRowOfAKey) {
    CsvTable table("t.csv", "id,x\n1,a\n2,b\n1,c\n");
    EXPECT_EQ(table.omit("id", {{"1", "why"}}), (std::vector<std::string>{"1", "1"}));
    ASSERT_EQ(table.rows().size(), 1U);
    EXPECT_EQ(table.cell(table.rows()[0], "x"), "b");
}

TEST(CsvTable, RefusesToOmitWhatItDoesNotHave) {
    CsvTable table("t.csv", "id\n1\n");
    EXPECT_THROW(table.omit("id", {{"7", "why"}}), InputError);
}

TEST(CsvTable, ReplacesTabsByBlanks) {
    CsvTable table("t.csv", "a,b\nx\ty,z\n\"p\tq\tr\",\n");
    EXPECT_EQ(table.replaceTabs(), 2U);
    EXPECT_EQ(table.cell(table.rows()[1], "a"), "p q r");
    EXPECT_EQ(table.replaceTabs(), 0U);
}

} // namespace
} // namespace vasker
