// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointF>

#include <optional>

#include "import/scan/AreaDrag.h"
#include "import/scan/ScannerDoor.h"
#include "import/windows/PicturePlace.h"

class QPainter;

namespace zol {

class PictureView;

/// The area to scan as it lies over a view of the whole bed: what is outside is shaded, and the
/// mouse draws it out, moves it and stretches it. Areas are in millimetres.
class ScanAreaBand : public QObject {
    Q_OBJECT

public:
    /// Works on that view, which outlives it.
    explicit ScanAreaBand(PictureView& view);

    /// The bed that the view's picture shows; nothing: there is no area to choose, and none shows.
    void SetBed(const std::optional<ScanArea>& bed);
    void SetArea(const ScanArea& area);
    [[nodiscard]] const ScanArea& Area() const { return m_area; }
    /// Without changing the area.
    void SetShown(bool shown);

Q_SIGNALS:
    /// By the mouse.
    void AreaChanged();

private:
    void Press(QPointF place, Qt::KeyboardModifiers modifiers);
    void Move(QPointF place, bool dragging);
    void Release();
    void Paint(QPainter& painter, const PicturePlace& place) const;
    [[nodiscard]] bool IsActive() const { return m_bed.has_value() && m_isShown; }
    [[nodiscard]] QPointF OnBed(QPointF place) const;
    [[nodiscard]] double Reach() const;
    [[nodiscard]] AreaDrag DragFrom(QPointF place) const;
    void Refresh();

    PictureView& m_view;
    std::optional<ScanArea> m_bed;
    ScanArea m_area;
    std::optional<AreaDrag> m_drag;
    QPointF m_pressedAt;
    bool m_hasMoved = false;
    bool m_isShown = true;
};

} // namespace zol
