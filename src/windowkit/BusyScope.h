// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace zol {

/// While one lives, no command can begin: it lets painting, resizing and the Cancel button through
/// and drops mouse, keys, shortcuts, drops, closing and timers of everything else. So long work may
/// let events through half-way without being entered a second time. A repeating or single-shot
/// timer that came due meanwhile fires once its interval has passed again.
///
/// Scopes nest; each adds its own button. A modal window that opens within a scope works as ever,
/// so that work may still ask a question. Keep it on the stack.
class BusyScope : public QObject {
    Q_OBJECT

public:
    /// `cancel` with its children stays usable, and Escape clicks it if it is a button; may be
    /// null.
    explicit BusyScope(QWidget* cancel = nullptr);
    ~BusyScope() override;

    /// Whether any scope lives.
    [[nodiscard]] static bool IsAnyAlive();
    /// Handles what waits, once.
    static void LetEventsThrough();

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    [[nodiscard]] bool MayReceive(const QObject* receiver) const;
    void ClickCancel() const;
    [[nodiscard]] static BusyScope* Innermost();

    QPointer<QWidget> m_cancel;
    QPointer<QWidget> m_modalBefore; ///< the modal window that this work was begun from
    BusyScope* m_outer = nullptr;
    BusyScope* m_inner = nullptr;
};

} // namespace zol
