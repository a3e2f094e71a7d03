// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <filesystem>
#include <vector>

namespace zol::test {

/// A word of a PDF's text and its box in points from the page's upper left corner.
struct PdfWord {
    int Page = 0;
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
    QString Text;
};

/// The text of a PDF with its places, as poppler's pdftotext finds it.
[[nodiscard]] std::vector<PdfWord> PdfWords(const std::filesystem::path& pdf);
/// The words of a page in reading order with blanks between them.
[[nodiscard]] QString PdfText(const std::filesystem::path& pdf, int page);
[[nodiscard]] int PdfPageCount(const std::filesystem::path& pdf);
/// What a program prints, and an empty text if it fails.
[[nodiscard]] QString OutputOf(const QString& program, const QStringList& arguments);
/// True if any page paints a picture.
[[nodiscard]] bool HasImages(const std::filesystem::path& pdf);

} // namespace zol::test
