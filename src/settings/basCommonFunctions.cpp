// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/basCommonFunctions.h"

#include <QLocale>

#include "model/Rounding.h"

namespace zol::basCommonFunctions {

namespace {

QString TextAfter(const FieldState& field, int key) {
    QString text = field.Text;
    const qsizetype start = qBound<qsizetype>(0, field.SelStart, text.size());
    text.remove(start, field.SelLength);
    if (key == KeyBackspace || key == KeyDelete) {
        if (field.SelLength == 0) {
            const qsizetype victim = key == KeyBackspace ? start - 1 : start;
            if (victim >= 0 && victim < text.size()) {
                text.remove(victim, 1);
            }
        }
        return text;
    }
    return text.insert(start, QChar(static_cast<char16_t>(key)));
}

/// Whether the text holds a separator that the selection does not replace.
bool KeepsSeparator(const FieldState& field, QChar separator) {
    QString text = field.Text;
    text.remove(qBound<qsizetype>(0, field.SelStart, text.size()), field.SelLength);
    return text.contains(separator);
}

bool Fits(qsizetype length, int limit) {
    return limit == NoLimit || length <= limit;
}

} // namespace

QChar DecimalSeparator() {
    const QString text = QLocale().toString(2.5, 'f', 2);
    return text.size() > 1 ? text.at(1) : QChar(u'.');
}

int FilterNumericKey(const FieldState& field, int key, int maxBefore, int maxAfter,
                     QChar separator) {
    if (key == KeyEnter) {
        return 0;
    }
    if (key < 31 && key != KeyBackspace) {
        return key;
    }
    const bool isSeparator = key == separator.unicode();
    if (!isSeparator && key != KeyDelete && (key >= 58 || (key >= 33 && key <= 47))) {
        return 0;
    }
    if (isSeparator && (maxAfter < 1 || KeepsSeparator(field, separator))) {
        return 0;
    }
    const QString text = TextAfter(field, key);
    const qsizetype point = text.indexOf(separator);
    const qsizetype before = point < 0 ? text.size() : point;
    const qsizetype after = point < 0 ? 0 : text.size() - point - 1;
    return Fits(before, maxBefore) && Fits(after, maxAfter) ? key : 0;
}

int FilterNumericKey(const FieldState& field, int key, int maxBefore, int maxAfter) {
    return FilterNumericKey(field, key, maxBefore, maxAfter, DecimalSeparator());
}

double FieldValue(const QString& text) {
    const QChar separator = DecimalSeparator();
    QString number = text;
    if (number.contains(separator)) {
        // Only then is a point that parts thousands no decimal point.
        number.remove(QLocale().groupSeparator());
        number.replace(separator, QLatin1Char('.'));
    }
    return LeadingNumber(number.toStdString());
}

QString FieldText(const std::string& number) {
    QString text = QString::fromStdString(number);
    text.replace(QLatin1Char('.'), DecimalSeparator());
    return text;
}

QString KeepNumericChars(const QString& text) {
    QString kept;
    for (const QChar character : text) {
        if ((character >= u'0' && character <= u'9') || character == u'.') {
            kept.append(character);
        }
    }
    return kept;
}

} // namespace zol::basCommonFunctions
