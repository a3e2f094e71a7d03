// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "print/PrintFuncs.h"
#include "print/PrintScene.h"

namespace zol::test {

namespace {

class PrintFooterTest : public ::testing::Test {
protected:
    [[nodiscard]] QStringList Lines(const PrintOptions& options = {}) {
        PrintFuncs functions(options, &paper);
        functions.SetPattern(*pattern);
        functions.BuildFooterLines();
        return functions.FooterLines();
    }

    PrintScene scene;
    MeasuredPaper paper{11900, 16840};
    std::unique_ptr<Pattern> pattern = scene.MakePattern(10, 10);
};

} // namespace

TEST_F(PrintFooterTest, BlankPropertiesGiveNoLine) {
    pattern->Title = "  ";
    EXPECT_TRUE(Lines().isEmpty());
}

TEST_F(PrintFooterTest, TitleAndAuthorShareALine) {
    pattern->Title = "Rose";
    EXPECT_EQ(Lines(), QStringList{QStringLiteral("Rose")});
    pattern->Author = "Ada";
    EXPECT_EQ(Lines(), QStringList{QStringLiteral("Rose by Ada")});
    pattern->Title.clear();
    EXPECT_EQ(Lines(), QStringList{QStringLiteral("Author: Ada")});
}

TEST_F(PrintFooterTest, CopyrightAloneIsTheFooter) {
    pattern->Copyright = "(c) Ada";
    EXPECT_EQ(Lines(), QStringList{QStringLiteral("(c) Ada")});
}

TEST_F(PrintFooterTest, CopyrightStandsBelow) {
    pattern->Title = "Rose";
    pattern->Copyright = "(c) Ada";
    EXPECT_EQ(Lines(), (QStringList{QStringLiteral("Rose"), QStringLiteral("(c) Ada")}));
}

TEST_F(PrintFooterTest, LongLinesWrapAtBlanksAndKeepEveryWord) {
    std::string title;
    for (int i = 0; i < 60; ++i) {
        title += "word" + std::to_string(i) + " ";
    }
    pattern->Title = title;
    pattern->Copyright = title;
    const QStringList lines = Lines();
    ASSERT_GT(lines.size(), 4);
    const PageFont font = PageFont::TextInfo(PrintOptions());
    const int room = 11900 - 1440 - font.TextWidth(QStringLiteral("  Page 000"));
    for (const QString& line : lines) {
        EXPECT_LE(font.TextWidth(line), room);
        EXPECT_EQ(line, line.trimmed());
    }
    const QString all = QString::fromStdString(title).trimmed();
    EXPECT_EQ(lines.join(QLatin1Char(' ')), all + QStringLiteral(" ") + all);
}

TEST_F(PrintFooterTest, WithoutPageNumbersTheLineHasMoreRoom) {
    std::string title;
    const PageFont font = PageFont::TextInfo(PrintOptions());
    const int room = 11900 - 1440;
    while (font.TextWidth(QString::fromStdString(title + "a ")) <= room - 100) {
        title += "a ";
    }
    pattern->Title = title;
    EXPECT_EQ(Lines().size(), 2);
    PrintOptions options;
    options.PrintPageNumbers = false;
    EXPECT_EQ(Lines(options).size(), 1);
}

TEST_F(PrintFooterTest, LineWithoutABlankIsCutAtTheLongestPart) {
    pattern->Title = std::string(400, 'm');
    const QStringList lines = Lines();
    ASSERT_GT(lines.size(), 1);
    const PageFont font = PageFont::TextInfo(PrintOptions());
    const int room = 11900 - 1440 - font.TextWidth(QStringLiteral("  Page 000"));
    EXPECT_LE(font.TextWidth(lines[0]), room);
    EXPECT_GT(font.TextWidth(lines[0] + QStringLiteral("m")), room);
    EXPECT_EQ(lines.join(QString()).size(), 400);
}

TEST_F(PrintFooterTest, NoRoomAtAllStillEnds) {
    pattern->Title = "A title";
    PrintOptions options;
    options.LeftMargin = 20;
    EXPECT_EQ(Lines(options).join(QString()).remove(QLatin1Char(' ')), QStringLiteral("Atitle"));
}

} // namespace zol::test
