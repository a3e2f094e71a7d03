// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/Margins.h"

#include <QLocale>

#include "model/LengthUnits.h"
#include "model/Rounding.h"
#include "settings/basCommonFunctions.h"

namespace zol::Margins {

using basCommonFunctions::FieldValue;

namespace {

constexpr int Places = 2;
constexpr int GroupLength = 3;

} // namespace

QString FormatStandard(double value) {
    // Halves go away from zero, which QLocale's own rounding does not promise.
    QString text = QString::fromStdString(FormatFixed(value, Places));
    const qsizetype point = text.indexOf(QLatin1Char('.'));
    text.replace(point, 1, basCommonFunctions::DecimalSeparator());
    const qsizetype first = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (qsizetype place = point - GroupLength; place > first; place -= GroupLength) {
        text.insert(place, QLocale().groupSeparator());
    }
    return text;
}

QString Text(double inches, bool usesInches) {
    return FormatStandard(usesInches ? inches : inches * CentimetresPerInch);
}

QString Convert(const QString& text, bool toInches) {
    const double value = FieldValue(text);
    return FormatStandard(toInches ? value / CentimetresPerInch : value * CentimetresPerInch);
}

double Inches(const QString& text, bool usesInches, double present) {
    if (text == Text(present, usesInches)) {
        return present;
    }
    return usesInches ? FieldValue(text) : FieldValue(text) / CentimetresPerInch;
}

} // namespace zol::Margins
