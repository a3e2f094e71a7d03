// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>

#include "model/ZOLTypes.h"

namespace zol {

/// What zooming needs of the place where the grid shows.
class ZoomSite {
public:
    virtual ~ZoomSite() = default;

    /// Values of the scroll bars: the square at the upper left.
    [[nodiscard]] virtual SquarePos ScrollPosition() const = 0;
    /// The largest zoom at which the whole pattern shows, not clamped.
    [[nodiscard]] virtual int ZoomThatFits() const = 0;
    /// Rulers, canvas and scroll bars take the present zoom over.
    virtual void ShowZoom() = 0;
    /// Brings a square to the upper left, as far as the scroll bars go.
    virtual void ScrollTo(SquarePos square) = 0;
};

/// The zoom of the grid with its box `cmbZoom` and its timer `timResize`, which gathers quick steps
/// into one change. It paints nothing.
class ZoomControl : public QObject {
    Q_OBJECT

public:
    /// The box is made as a hidden child of `boxParent`; a tool bar may take it over.
    ZoomControl(ZoomSite& site, QWidget* boxParent);

    /// Percent, 1 to 1000.
    [[nodiscard]] int GridZoom() const { return m_zoom; }
    [[nodiscard]] int PreviousZoom() const { return m_previous; }
    [[nodiscard]] int SavedScrollX() const { return m_savedScroll.X; }
    [[nodiscard]] int SavedScrollY() const { return m_savedScroll.Y; }
    [[nodiscard]] QComboBox* Box() const { return m_box; }

    /// Sets the zoom and the box's text; the grid is arranged by whoever calls.
    void SetZoom(int percent);
    /// SetZoom, and the grid takes it over at once.
    void ChangeZoom(int percent);
    /// One step on from the zoom that the box shows, when the timer fires.
    void ZoomIn();
    void ZoomOut();
    void ZoomToFit();
    /// Zoom and scroll position change places with those before the last change.
    void RestorePreviousZoom();
    /// The present place is the one to come back to; the zoom tool begins so.
    void RememberScroll() { m_savedScroll = m_site.ScrollPosition(); }
    /// Called before the zoom changes, to commit an open text block.
    void SetBeforeChange(std::function<void()> commit) { m_beforeChange = std::move(commit); }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// After the grid has taken the zoom over.
    void ZoomChanged(int percent);
    /// The user is done with the box: its list was closed, or Escape was pressed in it.
    void BoxLeft();

private:
    void MakeBox(QWidget* parent);
    void SetText(const QString& text);
    void ShowText(const QString& text);
    [[nodiscard]] QString NormalText() const;
    [[nodiscard]] int SteppingFrom() const;
    void RunChange();
    [[nodiscard]] bool TakeKey(int key);
    [[nodiscard]] int NumberOf(const QString& text) const;

    ZoomSite& m_site;
    QPointer<QComboBox> m_box;
    QTimer m_timer;
    int m_zoom = 100;
    int m_previous = 100;
    SquarePos m_savedScroll{1, 1};
    std::optional<SquarePos> m_scrollToRestore; ///< once the timer fires
    bool m_showsFit = false;                    ///< "To Fit" was chosen
    std::function<void()> m_beforeChange;
};

} // namespace zol
