// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

class QTextDocument;

namespace zol {

/// Rich text (RTF) and documents. A pattern's instructions are either, which they say by how they
/// begin: rich text with "{\rtf", and any other text is plain. Texts are UTF-8; the bytes of an
/// RTF file are taken as well. docs/formats/rtf.md tells what is read and written.
namespace RTFFuncs {

[[nodiscard]] bool IsRichText(const std::string& text);

/// Replaces the document's content. Never fails: what is not understood is left out, and the text
/// stays. The document's undo steps are gone, and it is not modified. True if something that
/// the text shows was left out, which writing the document does not bring back.
bool LoadRichText(QTextDocument& document, const std::string& rtf);
/// 7-bit RTF. Pictures are left out.
[[nodiscard]] std::string SaveRichText(const QTextDocument& document);

/// Loads plain or rich instructions, as LoadRichText does.
bool LoadInstructions(QTextDocument& document, const std::string& instructions);
/// The instructions to store after editing: `before` byte by byte unless the document is modified,
/// so that nothing is lost by looking; then rich text, or an empty text if nothing is left.
[[nodiscard]] std::string SaveInstructions(const QTextDocument& document,
                                           const std::string& before);

} // namespace RTFFuncs

} // namespace zol
