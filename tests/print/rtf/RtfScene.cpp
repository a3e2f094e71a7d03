// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfScene.h"

#include <QTextBlock>
#include <QTextList>

#include <sstream>

#include "print/RTFFuncs.h"

namespace zol::test {

namespace {

std::string ColorName(const QBrush& brush) {
    return brush.style() == Qt::NoBrush ? "-" : brush.color().name().toStdString();
}

std::string DescribedCharacters(const QTextCharFormat& format, const QTextDocument& document) {
    const QFont font = format.font().resolve(document.defaultFont());
    std::ostringstream line;
    line << font.families().value(0).toStdString() << " " << font.pointSizeF();
    line << (font.bold() ? " bold" : "") << (font.italic() ? " italic" : "");
    line << (font.underline() ? " underline" : "") << (font.strikeOut() ? " strike" : "");
    if (format.verticalAlignment() != QTextCharFormat::AlignNormal) {
        line << (format.verticalAlignment() == QTextCharFormat::AlignSuperScript ? " super"
                                                                                 : " sub");
    }
    line << " " << ColorName(format.foreground()) << " on " << ColorName(format.background());
    return line.str();
}

std::string DescribedBlock(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    std::ostringstream line;
    line << "align " << static_cast<int>(format.alignment() & Qt::AlignHorizontal_Mask);
    line << " left " << format.leftMargin() << " right " << format.rightMargin();
    line << " first " << format.textIndent() << " before " << format.topMargin() << " after "
         << format.bottomMargin();
    for (const QTextOption::Tab& tab : format.tabPositions()) {
        line << " tab " << tab.position << "/" << static_cast<int>(tab.type);
    }
    if (const QTextList* list = block.textList()) {
        line << " list " << list->format().style() << " level " << list->format().indent()
             << " item " << list->itemNumber(block) + 1;
    }
    return line.str();
}

std::string WithTables(const std::string& body) {
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil Sans;}{\\f1\\fswiss\\fcharset0 Arial;}}"
           "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue255;}" +
           body + "}";
}

std::string LineOf(const std::string& text, int line) {
    std::istringstream lines(text);
    std::string found;
    for (int i = 0; i <= line; ++i) {
        std::getline(lines, found);
    }
    return found;
}

} // namespace

std::unique_ptr<QTextDocument> ReadRtf(const std::string& rtf) {
    auto document = std::make_unique<QTextDocument>();
    RTFFuncs::LoadRichText(*document, rtf);
    return document;
}

std::string TextOf(const QTextDocument& document) {
    QString text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        text += block.text() + QLatin1Char('\n');
    }
    text.replace(QChar(QChar::LineSeparator), QLatin1Char('/'));
    return text.chopped(1).toStdString();
}

std::string Described(const QTextDocument& document) {
    std::ostringstream text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        text << DescribedBlock(block) << "\n";
        if (block.begin().atEnd()) {
            text << "  empty " << DescribedCharacters(block.charFormat(), document) << "\n";
        }
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            text << "  " << DescribedCharacters(at.fragment().charFormat(), document) << ": "
                 << at.fragment().text().toStdString() << "\n";
        }
    }
    return text.str();
}

std::string RunOf(const std::string& body) {
    return LineOf(Described(*ReadRtf(WithTables(body))), 1).substr(2);
}

std::string ParagraphOf(const std::string& body) {
    return LineOf(Described(*ReadRtf(WithTables(body))), 0);
}

} // namespace zol::test
