// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTextDocument>

#include <memory>
#include <string>

namespace zol::test {

[[nodiscard]] std::unique_ptr<QTextDocument> ReadRtf(const std::string& rtf);

/// The blocks' texts, a line each; line breaks inside as "/".
[[nodiscard]] std::string TextOf(const QTextDocument& document);
/// The document with every attribute that rich text keeps, resolved with its default font: a line a
/// paragraph, and a line a run of characters that look the same.
[[nodiscard]] std::string Described(const QTextDocument& document);
/// The line of the first run, of a document read from `body` with two fonts and three colours.
[[nodiscard]] std::string RunOf(const std::string& body);
/// The line of the first paragraph, likewise.
[[nodiscard]] std::string ParagraphOf(const std::string& body);

} // namespace zol::test
