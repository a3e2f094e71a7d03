// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/FlossText.h"

#include <QLocale>

namespace zol::FlossText {

namespace {

QString Counted(double count, const QString& one, const QString& many) {
    const auto number = static_cast<int>(count);
    return QLocale().toString(number) + QLatin1Char(' ') + (number == 1 ? one : many);
}

} // namespace

QString Number(const Palette& palette, int floss) {
    QString number = QString::fromStdString(palette.GetManufID(floss));
    if (palette.IsBlended(floss)) {
        number += QStringLiteral(" & ") + QString::fromStdString(palette.GetBlendManufID(floss));
    }
    return number;
}

QString Name(const Palette& palette, int floss) {
    return QString::fromStdString(palette.GetFlossShortDesc(floss));
}

QString LongDescription(const Palette& palette, int floss) {
    return QString::fromStdString(palette.GetFlossLongDesc(floss));
}

int PositionOfNumber(const Palette& palette, const QString& typed) {
    int begun = 0;
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        const QString number =
            QString::fromStdString(palette.GetManufID(palette.GetSortIndex(position)));
        if (number.compare(typed, Qt::CaseInsensitive) == 0) {
            return position;
        }
        if (begun == 0 && number.startsWith(typed, Qt::CaseInsensitive)) {
            begun = position;
        }
    }
    return begun;
}

QString Tip(Pattern& pattern, int floss) {
    if (floss < 1 || floss > pattern.GetPalette().GetEntriesCount()) {
        return {};
    }
    pattern.CountStitches();
    const double stitches = pattern.GetColorCount(0, floss);
    const double lines = pattern.GetColorCount(1, floss);
    QString used = stitches == 0 && lines == 0
                       ? QStringLiteral("Not used yet")
                       : Counted(stitches, QStringLiteral("stitch"), QStringLiteral("stitches"));
    if (lines > 0) {
        used += QStringLiteral(", ") +
                Counted(lines, QStringLiteral("backstitch"), QStringLiteral("backstitches"));
    }
    return LongDescription(pattern.GetPalette(), floss) + QLatin1Char('\n') + used;
}

} // namespace zol::FlossText
