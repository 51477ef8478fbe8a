#include "app/sheets/GuideSection.h"

#include "app/OpenMapApp.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::string text(const std::vector<GuideSection>& sections) {
    QString all;
    for (const GuideSection& section : sections) {
        all += QStringLiteral("# ") + section.title + u'\n';
        for (const GuideRow& row : section.rows) {
            all += row.label.isEmpty() ? QString() : row.label + QStringLiteral(" = ");
            all += row.text + u'\n';
        }
    }
    return all.toStdString();
}

std::string sectionsOf(const char* document) {
    return text(GuideSection::allOf(QString::fromUtf8(document)));
}

TEST(GuideSection, ParagraphsAndItemsAreRowsOfOneLineEach) {
    EXPECT_EQ(
        sectionsOf("## Find\nOne\ntwo.\n\nThree.\n1. First\n   and more\n2. Second\n- Third\n"),
        "# Find\nOne two.\nThree.\n1. First and more\n2. Second\n• Third\n");
}

TEST(GuideSection, ARowOfATableIsNamedByItsFirstCell) {
    EXPECT_EQ(
        sectionsOf("## Take\n| what | where | as |\n|---|---|---|\n| a list | here | `.csv` |\n"
                   "| a page | there |  |\n"),
        "# Take\na list = here · .csv\na page = there\n");
}

TEST(GuideSection, WhatStandsBeforeTheFirstSectionAndLinksToOtherDocumentsAreLeftOut) {
    EXPECT_EQ(sectionsOf("# Guide\n\n[En français](fr.md)\n\n## Ear\nSpoken. [More](../a.md)\n"
                         "\n[Alone](b.md)\n## Empty\n"),
              "# Ear\nSpoken.\n# Empty\n");
}

TEST(GuideSection, AnyTextIsRead) {
    for (const char* document :
         {"", "\n", "|", "||", "|--|", "## ", "##", "1. ", "- ", "a\n|-|\n|"}) {
        EXPECT_NO_THROW(static_cast<void>(sectionsOf(document))) << document;
    }
    EXPECT_EQ(sectionsOf("no heading"), "");
}

TEST(GuideSection, TheGuideOfTheProgramTellsOfEachTask) {
    const auto sections = OpenMapApp::guideSections();
    ASSERT_EQ(sections.size(), 7U);
    EXPECT_EQ(sections[0].title, QStringLiteral("Find a plant or a pipeline"));
    EXPECT_EQ(sections[0].rows.size(), 5U);
    EXPECT_EQ(sections[3].title, QStringLiteral("Save, copy or print"));
    EXPECT_EQ(sections[3].rows.front().label, QStringLiteral("the records that the list shows"));
    for (const GuideSection& section : sections) {
        EXPECT_FALSE(section.rows.empty()) << section.title.toStdString();
        for (const GuideRow& row : section.rows) {
            EXPECT_FALSE(row.text.contains(QStringLiteral("](")));
        }
    }
}

} // namespace
} // namespace vasker
