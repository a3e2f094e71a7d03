// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "app/GuardedApplication.h"

#include <iostream>

namespace zol {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        Tell(fault);
        return false;
    }
}

void GuardedApplication::Tell(const std::exception& fault) {
    // A fault that comes again with every repaint must not pile message upon message.
    if (m_teller && !m_telling) {
        m_telling = true;
        try {
            m_teller(fault);
        } catch (const std::exception& second) {
            std::cerr << "korvanta: " << second.what() << '\n';
        }
        m_telling = false;
    } else {
        std::cerr << "korvanta: " << fault.what() << '\n';
    }
}

} // namespace zol
