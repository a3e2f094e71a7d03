// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

namespace zol::test {

/// Acts on the dialogs that come up, one step each. A dialog that nobody is there for is closed,
/// so that a failing test ends.
class DialogDriver : public QObject {
public:
    using Step = std::function<void(QDialog&)>;

    explicit DialogDriver(std::vector<Step> steps) : m_steps(std::move(steps)) { Arm(); }
    [[nodiscard]] bool AllDone() const { return m_next == m_steps.size() && !m_surplus; }

private:
    /// A new timer each time: a step may open another dialog, and a timer does not fire within
    /// its own call.
    void Arm() {
        QTimer::singleShot(5, this, [this] {
            Arm();
            Look();
        });
    }
    void Look() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        // A window that only shows progress goes by itself.
        if (dialog == nullptr || dialog == m_last || !dialog->isVisible() ||
            dialog->objectName() == QLatin1String("frmPrinting")) {
            return;
        }
        m_last = dialog;
        if (m_next == m_steps.size()) {
            m_surplus = true;
            dialog->reject();
            return;
        }
        m_steps[m_next++](*dialog);
        // The next dialog may come to lie at the same address.
        if (!dialog->isVisible()) {
            m_last = nullptr;
        }
    }

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    bool m_surplus = false;
    QPointer<QDialog> m_last;
};

} // namespace zol::test
