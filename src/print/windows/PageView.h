// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QScrollArea>

#include <optional>

class QLabel;

namespace zol {

/// The preview's paper: shows a page in the size that it is given, sharp if the page was painted in
/// that size, and scaled until then.
class PagePaper : public QWidget {
public:
    explicit PagePaper(QWidget* parent = nullptr);

    /// In the screen's pixels, without the edge.
    void SetPaperSize(const QSize& pixels);
    void SetPage(const QImage& page);
    [[nodiscard]] const QImage& Page() const { return m_page; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize m_pixels;
    QImage m_page;
};

/// The desk that the paper lies on, with scroll bars: `Picture2`, and the paper in it is
/// `Picture1`. The mouse drags the paper, its wheel zooms with Ctrl.
class PageView : public QScrollArea {
    Q_OBJECT

public:
    explicit PageView(QWidget* parent = nullptr);

    [[nodiscard]] PagePaper& Paper() { return *m_paper; }
    /// Room for the paper in the screen's pixels, without scroll bars; `forWidth` leaves room for
    /// the vertical one.
    [[nodiscard]] QSize Room(bool forWidth) const;
    /// Gives the paper another size and keeps the place under `anchor`, or the view's middle, where
    /// it is.
    void SetPaperSize(const QSize& pixels, std::optional<QPoint> anchor);
    void ScrollToTop();

Q_SIGNALS:
    /// The wheel was turned with Ctrl; `steps` is negative towards the user.
    void ZoomWanted(double steps, const QPoint& anchor);
    void Resized();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Drag(const QPoint& to);

    QWidget* m_desk;
    PagePaper* m_paper;
    std::optional<QPoint> m_dragFrom; ///< on the screen
};

} // namespace zol
