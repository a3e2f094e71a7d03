// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/Margins.h"

#include <QLocale>

#include "model/Rounding.h"
#include "settings/basCommonFunctions.h"

namespace zol::Margins {

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

double Val(const QString& text) {
    const QChar separator = basCommonFunctions::DecimalSeparator();
    QString plain = text;
    if (plain.contains(separator)) {
        // Only then is a point that parts thousands no decimal point.
        plain.remove(QLocale().groupSeparator());
        plain.replace(separator, QLatin1Char('.'));
    }
    return LeadingNumber(plain.toStdString());
}

QString Text(double inches, bool usesInches) {
    return FormatStandard(usesInches ? inches : inches * CentimetresPerInch);
}

QString Convert(const QString& text, bool toInches) {
    const double value = Val(text);
    return FormatStandard(toInches ? value / CentimetresPerInch : value * CentimetresPerInch);
}

double Inches(const QString& text, bool usesInches, double present) {
    if (text == Text(present, usesInches)) {
        return present;
    }
    return usesInches ? Val(text) : Val(text) / CentimetresPerInch;
}

} // namespace zol::Margins
