// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PageText.h"

namespace zol {

QString OneLine(const std::string& utf8) {
    QString text = QString::fromStdString(utf8);
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QLatin1Char(' ');
        }
    }
    return text.trimmed();
}

} // namespace zol
