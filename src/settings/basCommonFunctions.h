// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>

namespace zol::basCommonFunctions {

/// A text field as a key filter sees it.
struct FieldState {
    QString Text;
    qsizetype SelStart = 0;
    qsizetype SelLength = 0;
};

inline constexpr int KeyBackspace = 8;
inline constexpr int KeyEnter = 13;
inline constexpr int KeyDelete = 127;
inline constexpr int NoLimit = 65535;

/// The key filter of numeric fields: gives back the key to pass on, or 0 to swallow it. At most
/// `maxBefore` characters stand before the decimal separator and `maxAfter` behind it.
/// `separator` is the locale's unless a test says otherwise.
[[nodiscard]] int FilterNumericKey(const FieldState& field, int key, int maxBefore, int maxAfter,
                                   QChar separator);
[[nodiscard]] int FilterNumericKey(const FieldState& field, int key, int maxBefore, int maxAfter);

/// The decimal separator of the locale, found in 2.5 as the locale writes it.
[[nodiscard]] QChar DecimalSeparator();

/// The number that a field's text begins with, written with the locale's separators or a point; 0
/// if there is none.
[[nodiscard]] double FieldValue(const QString& text);
/// A number with a point as its separator, as a field shows it: with the locale's.
[[nodiscard]] QString FieldText(const std::string& number);

/// The digits and full stops of a text, in order.
[[nodiscard]] QString KeepNumericChars(const QString& text);

} // namespace zol::basCommonFunctions
