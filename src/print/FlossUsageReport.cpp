// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "print/FlossUsage.h"
#include "print/PageCanvas.h"
#include "print/PageText.h"

namespace zol {

namespace {

constexpr std::size_t Columns = FlossUsageRow::ColumnCount;

/// Prints the report row by row and starts pages as they fill.
class UsageReport {
public:
    UsageReport(const Pattern& pattern, const PrintOptions& options, PageDevice& device)
        : m_options(&options),
          m_device(&device),
          m_canvas(device),
          m_font(PageFont::TextInfo(options)),
          m_title(OneLine(pattern.Title)),
          m_headings(FlossUsageHeadings(options.InInches())) {}

    bool Print(const std::vector<FlossUsageRow>& rows) {
        if (!m_canvas.Paints()) {
            return false;
        }
        CalculateColStarts(rows);
        PrintPageHead();
        for (const FlossUsageRow& row : rows) {
            if (m_currentY + 3 * m_font.TextHeight() > PageBottom()) {
                PrintRight(PageText());
                ++m_page;
                if (!m_device->NewPage()) {
                    return false;
                }
                PrintPageHead();
            }
            PrintData(row);
        }
        m_currentY = PageBottom() - 3 * m_font.TextHeight();
        PrintRight(PageText());
        return m_device->EndDoc();
    }

private:
    [[nodiscard]] QString PageText() const {
        return QStringLiteral("Page ") + QString::number(m_page);
    }
    [[nodiscard]] double PageLeft() const {
        return m_options->LeftMargin * PageDevice::TwipsPerInch - m_device->OffsetX();
    }
    [[nodiscard]] double PageRight() const {
        return m_device->Width() - m_options->RightMargin * PageDevice::TwipsPerInch -
               m_device->OffsetX();
    }
    [[nodiscard]] double PageBottom() const {
        return m_device->Height() - m_options->BottomMargin * PageDevice::TwipsPerInch -
               m_device->OffsetY();
    }

    void PrintPageHead() {
        m_currentY = m_options->TopMargin * PageDevice::TwipsPerInch - m_device->OffsetY();
        PrintCentered(QStringLiteral("Korvanta Floss Usage Report"));
        PrintCentered(m_title);
        m_currentY += m_font.TextHeight();
        PrintHeaders();
    }

    void PrintCentered(const QString& text) {
        const double middle = (PageLeft() + PageRight()) / 2;
        m_canvas.Text(middle - m_font.TextWidth(text) / 2.0, m_currentY, text, m_font);
        m_currentY += m_font.TextHeight();
    }
    void PrintRight(const QString& text) {
        m_canvas.Text(PageRight() - m_font.TextWidth(text), m_currentY, text, m_font);
        m_currentY += m_font.TextHeight();
    }

    void CalculateColStarts(const std::vector<FlossUsageRow>& rows) {
        const double gap = m_font.TextWidth(QStringLiteral("      "));
        double start = PageLeft();
        for (std::size_t column = 0; column < Columns; ++column) {
            int width = m_font.TextWidth(QString::fromStdString(m_headings[column]));
            for (const FlossUsageRow& row : rows) {
                width = std::max(width, m_font.TextWidth(QString::fromStdString(row.Text(column))));
            }
            m_starts[column] = start;
            m_ends[column] = start + width;
            start += width + gap;
        }
    }

    void PrintHeaders() {
        for (std::size_t column = 0; column < Columns; ++column) {
            m_canvas.Text(m_starts[column], m_currentY, QString::fromStdString(m_headings[column]),
                          m_font);
        }
        m_currentY += m_font.TextHeight();
        m_canvas.Rule(PageLeft(), m_currentY, PageRight(), m_currentY, m_canvas.Hairline());
        m_currentY += m_font.TextHeight() / 4.0;
    }

    void PrintData(const FlossUsageRow& row) {
        for (std::size_t column = 0; column < Columns; ++column) {
            const QString text = QString::fromStdString(row.Text(column));
            const double x = column < FlossUsageRow::FirstNumericColumn
                                 ? m_starts[column]
                                 : m_ends[column] - m_font.TextWidth(text);
            m_canvas.Text(x, m_currentY, text, m_font);
        }
        m_currentY += m_font.TextHeight();
    }

    const PrintOptions* m_options;
    PageDevice* m_device;
    PageCanvas m_canvas;
    PageFont m_font;
    QString m_title;
    std::array<std::string, Columns> m_headings;
    std::array<double, Columns> m_starts{};
    std::array<double, Columns> m_ends{};
    double m_currentY = 0;
    int m_page = 1;
};

} // namespace

bool PrintFlossUsage(Pattern& pattern, const PrintOptions& options, PageDevice& device) {
    return PrintFlossUsage(pattern, GetFlossUsages(pattern, options.InInches()), options, device);
}

bool PrintFlossUsage(const Pattern& pattern, const std::vector<FlossUsageRow>& rows,
                     const PrintOptions& options, PageDevice& device) {
    return UsageReport(pattern, options, device).Print(rows);
}

} // namespace zol
