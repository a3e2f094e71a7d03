// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RTFFuncs.h"

#include <QTextDocument>

#include <string_view>

#include "print/rtf/RtfReader.h"
#include "print/rtf/RtfWriter.h"

namespace zol {

namespace RTFFuncs {

namespace {

constexpr std::string_view RtfStart = "{\\rtf";

} // namespace

bool IsRichText(const std::string& text) {
    return text.starts_with(RtfStart);
}

bool LoadRichText(QTextDocument& document, const std::string& rtf) {
    const bool hadUndo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    RtfReader reader(rtf, document);
    reader.Read();
    document.setUndoRedoEnabled(hadUndo);
    document.setModified(false);
    return reader.HasLeftOut();
}

std::string SaveRichText(const QTextDocument& document) {
    return RtfWriter(document).Write();
}

bool LoadInstructions(QTextDocument& document, const std::string& instructions) {
    if (IsRichText(instructions)) {
        return LoadRichText(document, instructions);
    }
    document.setPlainText(QString::fromStdString(instructions));
    document.setModified(false);
    return false;
}

std::string SaveInstructions(const QTextDocument& document, const std::string& before) {
    if (!document.isModified()) {
        return before;
    }
    return document.isEmpty() ? std::string() : SaveRichText(document);
}

} // namespace RTFFuncs

} // namespace zol
