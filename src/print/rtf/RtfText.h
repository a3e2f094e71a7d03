// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace zol {

/// Characters and what stands for them in RTF.
namespace RtfText {

/// The text of a control word such as "emdash" or "tab"; empty if it stands for none.
[[nodiscard]] QString OfWord(std::string_view word);
/// The same for a symbol such as "~"; empty if it stands for none.
[[nodiscard]] QString OfSymbol(char32_t symbol);
/// True for a tab and a line break.
[[nodiscard]] bool IsBreak(const QString& text);

/// The text as a document can hold it: without control characters, halves of characters and codes
/// that a document keeps for itself; ends of lines as line separators.
[[nodiscard]] QString Cleaned(const QString& text);

/// Appends the text as 7-bit RTF. Paragraph ends are the caller's.
void AppendEscaped(std::string& rtf, QStringView text);

} // namespace RtfText

} // namespace zol
