// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PdfReading.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>

namespace zol::test {

namespace {

QString PathArgument(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

QString Unescaped(QString text) {
    return text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&apos;"), QStringLiteral("'"))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

} // namespace

QString OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    const bool done = process.waitForFinished(60000) && process.exitCode() == 0;
    EXPECT_TRUE(done) << program.toStdString() << " failed or is missing (package poppler-utils)";
    return done ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

std::vector<PdfWord> PdfWords(const std::filesystem::path& pdf) {
    // <word xMin="36.9" yMin="36.9" xMax="42.9" yMax="45.0">text</word>
    constexpr qsizetype PartsOfAWord = 9;
    std::vector<PdfWord> words;
    int page = 0;
    const QString xml = OutputOf(QStringLiteral("pdftotext"),
                                 {QStringLiteral("-bbox"), PathArgument(pdf), QStringLiteral("-")});
    for (const QString& line : xml.split(QLatin1Char('\n'))) {
        page += line.contains(QStringLiteral("<page ")) ? 1 : 0;
        const QStringList parts = line.split(QLatin1Char('"'));
        if (parts.size() == PartsOfAWord && parts[0].contains(QStringLiteral("<word"))) {
            const auto number = [&](qsizetype part) {
                return std::stod(parts[part].toStdString());
            };
            const QString text = parts[8].mid(1).chopped(7); // between > and </word>
            words.push_back({page, number(1), number(3), number(5), number(7), Unescaped(text)});
        }
    }
    return words;
}

QString PdfText(const std::filesystem::path& pdf, int page) {
    const QString number = QString::number(page);
    return OutputOf(QStringLiteral("pdftotext"),
                    {QStringLiteral("-layout"), QStringLiteral("-f"), number, QStringLiteral("-l"),
                     number, PathArgument(pdf), QStringLiteral("-")})
        .simplified();
}

int PdfPageCount(const std::filesystem::path& pdf) {
    static const QRegularExpression pages(QStringLiteral("Pages:\\s+(\\d+)"));
    return pages.match(OutputOf(QStringLiteral("pdfinfo"), {PathArgument(pdf)}))
        .captured(1)
        .toInt();
}

bool HasImages(const std::filesystem::path& pdf) {
    const QString list =
        OutputOf(QStringLiteral("pdfimages"), {QStringLiteral("-list"), PathArgument(pdf)});
    return list.trimmed().count(QLatin1Char('\n')) > 1; // two lines of headings
}

} // namespace zol::test
