// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QProcess>
#include <QStandardPaths>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include <gtest/gtest.h>

#include <utility>

#include "print/RTFFuncs.h"
#include "print/rtf/RtfScene.h"
#include "support/TempFolder.h"

// Documents go to a word processor and come from it. Without LibreOffice these cases are skipped.

namespace zol::test {

namespace {

class RtfWordProcessorTest : public testing::Test {
protected:
    void SetUp() override {
        m_program = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        if (m_program.isEmpty()) {
            GTEST_SKIP() << "LibreOffice is not installed";
        }
    }

    /// Converts a file of the folder and returns the content of the new one.
    std::string Converted(const std::string& file, const std::string& filter,
                          const std::string& result) {
        const QString folder = QString::fromStdString(m_folder.Path().string());
        QProcess process;
        process.setWorkingDirectory(folder);
        process.start(m_program, {QStringLiteral("-env:UserInstallation=file://") + folder +
                                      QStringLiteral("/profile"),
                                  QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                                  QString::fromStdString(filter), QStringLiteral("--outdir"),
                                  QStringLiteral("out"), QString::fromStdString(file)});
        EXPECT_TRUE(process.waitForFinished(100000) && process.exitCode() == 0);
        return ReadFile(m_folder / "out" / result);
    }

    TempFolder m_folder;
    QString m_program;
};

} // namespace

TEST_F(RtfWordProcessorTest, ReadsWhatItWrites) {
    WriteFile(m_folder / "page.html",
              "<html><head><meta charset='utf-8'></head><body>"
              "<p align='center'><b>Bold</b> <i>slanted</i> <u>under</u></p>"
              "<p><font face='Arial' size='5' color='#ff0000'>red</font> caf\u00e9 "
              "\u0416\u0142 \u65e5 \U0001F9F5 \u201cq\u201d {b} \\c<br>line</p>"
              "<ul><li>item one</li><li>item two</li></ul><ol><li>first</li></ol>"
              "<table><tr><td>cell one</td><td>cell two</td></tr></table>"
              "<p align='right'>end</p></body></html>");
    const std::string rtf = Converted("page.html", "rtf:Rich Text Format", "page.rtf");
    ASSERT_TRUE(RTFFuncs::IsRichText(rtf));
    const auto document = ReadRtf(rtf);
    const std::string text = TextOf(*document);
    const char* const signs =
        "red caf\u00e9 \u0416\u0142 \u65e5 \U0001F9F5 \u201cq\u201d {b} \\c/line";
    for (const char* part : {"Bold slanted under", signs, "\nitem one\nitem two\nfirst\n",
                             "cell one\tcell two", "end"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;
    }
    const std::string all = Described(*document);
    for (const char* part :
         {"align 4", " bold - on -: Bold", " italic - on -: slanted", " underline - on -: under",
          "Arial 18 #ff0000 on -: red", "list -1 level 1 item 1", "list -1 level 1 item 2",
          "list -4 level 1 item 1", "align 2"}) {
        EXPECT_NE(all.find(part), std::string::npos) << part << " in\n" << all << rtf;
    }
}

TEST_F(RtfWordProcessorTest, WritesWhatItReads) {
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat format;
    format.setFontFamilies({QStringLiteral("Arial")});
    format.setFontPointSize(18);
    format.setForeground(QColor(255, 0, 0));
    format.setFontWeight(QFont::Bold);
    cursor.insertText(QString::fromUtf8("Red caf\u00e9 \u0416\u0142 \u65e5 \U0001F9F5"), format);
    QTextBlockFormat right;
    right.setAlignment(Qt::AlignRight);
    cursor.insertBlock(right, QTextCharFormat());
    cursor.insertText(QString::fromUtf8("{b} \\c \u201cq\u201d\u2028line\ttab"));
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertList(QTextListFormat::ListDisc);
    cursor.insertText(QStringLiteral("item one"));
    cursor.insertBlock();
    cursor.insertText(QStringLiteral("item two"));
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertText(QStringLiteral("end"));
    WriteFile(m_folder / "ours.rtf", RTFFuncs::SaveRichText(document));

    const std::string text = Converted("ours.rtf", "txt:Text (encoded):UTF8", "ours.txt");
    for (const char* part :
         {"Red caf\u00e9 \u0416\u0142 \u65e5 \U0001F9F5\n", "{b} \\c \u201cq\u201d\nline\ttab\n",
          "item one\n", "item two\n", "end"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;
    }
    // What it makes of the looks comes back in its own RTF.
    const std::string back = Converted("ours.rtf", "rtf:Rich Text Format", "ours.rtf");
    const std::string all = Described(*ReadRtf(back));
    for (const char* part : {"Arial 18 bold #ff0000 on -: Red caf\u00e9", "align 2", "list -1"}) {
        EXPECT_NE(all.find(part), std::string::npos) << part << " in\n" << all << back;
    }
}

TEST_F(RtfWordProcessorTest, CountsListsAlike) {
    const std::string letter =
        "{\\rtf1\\ansi{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat1{\\leveltext"
        "\\'02\\'00.;}{\\levelnumbers\\'01;}}\\listid1847205512}}{\\*\\listoverridetable"
        "{\\listoverride\\listid1847205512\\ls1}}\\pard\\ls1 cut\\par sew\\par\\pard rest\\par"
        "\\pard\\ls1 wash\\par}";
    const std::string shown = "1.cut\n2.sew\nrest\n3.wash\n";
    WriteFile(m_folder / "letter.rtf", letter);
    WriteFile(m_folder / "ours.rtf", RTFFuncs::SaveRichText(*ReadRtf(letter)));
    for (const char* name : {"letter", "ours"}) {
        std::string text = Converted(std::string(name) + ".rtf", "txt:Text (encoded):UTF8",
                                     std::string(name) + ".txt");
        std::erase(text, '\t');
        std::erase(text, ' ');
        std::erase(text, '\r');
        EXPECT_NE(text.find(shown), std::string::npos) << name << ": " << text;
    }
}

TEST_F(RtfWordProcessorTest, KeepsEveryLookOfTheEditor) {
    QTextDocument document;
    QTextCursor cursor(&document);
    const auto put = [&cursor](const char* text, const QTextCharFormat& format) {
        cursor.insertText(QString::fromUtf8(text), format);
        cursor.insertText(QStringLiteral(" "), QTextCharFormat());
    };
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    put("strong", format);
    format = QTextCharFormat();
    format.setFontItalic(true);
    put("slanted", format);
    format = QTextCharFormat();
    format.setFontUnderline(true);
    put("ruled", format);
    format = QTextCharFormat();
    format.setFontFamilies({QStringLiteral("Liberation Serif")});
    format.setFontPointSize(14.5);
    format.setForeground(QColor(29, 78, 216));
    put("blue", format);
    format.setForeground(QBrush()); // a colour that was taken away
    put("plain", format);
    for (const auto& [alignment, text] :
         {std::pair{Qt::AlignHCenter, "middle"}, std::pair{Qt::AlignRight, "far"},
          std::pair{Qt::AlignLeft, "near\ttab \u0416"}}) {
        QTextBlockFormat block;
        block.setAlignment(alignment);
        cursor.insertBlock(block, QTextCharFormat());
        cursor.insertText(QString::fromUtf8(text));
    }
    cursor.insertBlock(QTextBlockFormat());
    cursor.createList(QTextListFormat::ListDisc);
    cursor.insertText(QStringLiteral("item"));
    WriteFile(m_folder / "editor.rtf", RTFFuncs::SaveRichText(document));

    const std::string back = Converted("editor.rtf", "rtf:Rich Text Format", "editor.rtf");
    const auto read = ReadRtf(back);
    const std::string all = Described(*read);
    for (const char* part :
         {" bold - on -: strong", " italic - on -: slanted", " underline - on -: ruled",
          "Liberation Serif 14.5 #1d4ed8 on -: blue", "Liberation Serif 14.5 - on -: plain",
          "align 4", "align 2", "list -1 level 1 item 1"}) {
        EXPECT_NE(all.find(part), std::string::npos) << part << " in\n" << all << back;
    }
    EXPECT_NE(TextOf(*read).find("middle\nfar\nnear\ttab \u0416\nitem"), std::string::npos)
        << TextOf(*read);
}

} // namespace zol::test
