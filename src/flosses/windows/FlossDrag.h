// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>

class QMouseEvent;

namespace zol {

/// A floss on its way from one list of a window to another: the pointer shows it while it is
/// dragged. The list hands its mouse events over and is told where the floss was dropped.
class FlossDrag : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~FlossDrag() override;

    /// Nothing moves until the pointer has gone some way from here.
    void Press(const QMouseEvent& event);
    /// True while something is dragged.
    bool Move(const QMouseEvent& event, const QColor& floss);
    /// True if something was dragged until now.
    bool Release(const QMouseEvent& event);
    void Cancel();
    [[nodiscard]] bool IsDragging() const { return m_dragging; }

Q_SIGNALS:
    void Moved(const QPoint& globalPos);
    void Dropped(const QPoint& globalPos);
    void Ended();

private:
    void Begin(const QColor& floss);
    void End();

    bool m_pressed = false;
    bool m_dragging = false;
    QPoint m_from; ///< of the screen
};

} // namespace zol
