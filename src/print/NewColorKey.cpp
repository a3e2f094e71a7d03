// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/NewColorKey.h"

#include <algorithm>

#include "model/Rounding.h"
#include "print/KeyInstructions.h"
#include "print/KeySectionPainter.h"
#include "print/PageText.h"

namespace zol {

namespace {

QString SizeText(int squares, int clothCount, const QString& unit) {
    const double size = static_cast<double>(squares) / std::max(1, clothCount);
    return QString::fromStdString(FormatUpTo(size, 2)) + unit;
}

} // namespace

NewColorKey::NewColorKey(PrintFuncs& job) : m_job(&job) {}

bool NewColorKey::Step(ProgressDoor* progress, int percent) {
    if (progress != nullptr) {
        progress->UpdateStatus(percent);
    }
    return m_job->MayGoOn(progress);
}

void NewColorKey::PrintColorKey(PageDevice* target, ProgressDoor* progress, bool countOnly) {
    const int wanted = countOnly ? 0 : m_job->PrintPage() - m_job->PatternPages();
    m_job->PrintPattern()->CountStitches();
    const KeyRows rows(*m_job->PrintPattern(), m_job->Options());
    if (!Step(progress, 10)) {
        return;
    }
    KeyPages pages(*m_job, countOnly ? nullptr : target, wanted);
    pages.NewKeyPage();
    PrintPatternInfo(pages);
    if (!Step(progress, 20)) {
        return;
    }
    const auto wantsMore = [&] { return countOnly || !pages.IsPastWantedPage(); };
    if (m_job->Options().StitchSymbol != PrintNone) {
        PrintKeySection(pages, rows, rows.MakeSection(false, false));
        if (!Step(progress, 30)) {
            return;
        }
        if (wantsMore()) {
            PrintKeySection(pages, rows, rows.MakeSection(true, false));
        }
        if (!Step(progress, 50)) {
            return;
        }
    }
    if (m_job->Options().BackStitchSymbol != PrintNone) {
        PrintKeySection(pages, rows, rows.MakeSection(false, true));
        if (!Step(progress, 70)) {
            return;
        }
        if (wantsMore()) {
            PrintKeySection(pages, rows, rows.MakeSection(true, true));
        }
        if (!Step(progress, 90)) {
            return;
        }
    }
    if (wantsMore()) {
        KeyInstructions(*m_job, pages).Print(countOnly);
    }
    if (countOnly) {
        m_job->SetKeyPages(pages.PageNo());
    }
    Step(progress, 100);
}

void NewColorKey::PrintPatternInfo(KeyPages& pages) {
    const Pattern& pattern = *m_job->PrintPattern();
    const Pattern& named = m_job->NamedPattern();
    const QString width = QString::number(pattern.GetPatternWidth());
    const QString height = QString::number(pattern.GetPatternHeight());
    const QString unit = m_job->Options().InInches() ? QStringLiteral("\"") : QStringLiteral(" cm");
    const int columns = pattern.GetDesignWidth();
    const int rows = pattern.GetDesignHeight();
    pages.PrintInfoRow(QStringLiteral("Author:"), OneLine(named.Author));
    pages.PrintInfoRow(QStringLiteral("Grid Size:"),
                       width + QStringLiteral("W x ") + height + QStringLiteral("H"));
    pages.PrintInfoRow(QStringLiteral("Cloth Count:"),
                       QString::number(pattern.GetPatternClothCountX()));
    pages.PrintInfoRow(QStringLiteral("Fabric:"), OneLine(named.Fabric));
    pages.PrintInfoRow(
        QStringLiteral("Design Area:"),
        SizeText(columns, pattern.GetPatternClothCountX(), unit) + QStringLiteral(" W  x  ") +
            SizeText(rows, pattern.GetPatternClothCountY(), unit) + QStringLiteral(" H   ( ") +
            QString::number(columns) + QStringLiteral(" x ") + QString::number(rows) +
            QStringLiteral(" stitches ) "));
    pages.MoveDown(pages.Font().TextHeight());
}

void NewColorKey::PrintKeySection(KeyPages& pages, const KeyRows& rows, const KeySection& section) {
    if (section.Rows.empty()) {
        return;
    }
    KeySectionPainter painter(*m_job, pages, section,
                              rows.MeasureKeyColumns(section, pages.Font()));
    painter.Print();
}

} // namespace zol
