// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

class QComboBox;
class QToolButton;

namespace zol {

class PictureView;

/// The zoom of a screen's pictures: `cmbZoomLevel` with `cmdZoomOut` and `cmdZoomIn` beside it.
/// Fits into a form as a promoted widget.
class ZoomBox : public QWidget {
    Q_OBJECT

public:
    explicit ZoomBox(QWidget* parent = nullptr);

    /// The box zooms that view from now on and shows its zoom. Further views follow the first one
    /// in their zoom, also when it is changed in the view itself.
    void Attach(PictureView& view);
    /// Shows the whole picture in each view.
    void ZoomToFit();
    /// Percent, 1 to 3200.
    void SetZoom(double percent);
    /// The Tab key goes from that widget to the parts of this one, which a designer's list of tab
    /// stops cannot say.
    void FollowInTabOrder(QWidget& before);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeBox();
    [[nodiscard]] QToolButton* MakeButton(const char* name, const char* icon, const QString& tip);
    [[nodiscard]] double Zoom() const;
    void TakeText();
    void StepBy(int points);
    void FollowView(const PictureView& view);
    void ShowZoom();

    QComboBox* m_box = nullptr;
    QToolButton* m_out = nullptr;
    QToolButton* m_in = nullptr;
    std::vector<QPointer<PictureView>> m_views;
    QString m_shown;
    bool m_following = false; ///< one view passes its zoom on to the others
};

} // namespace zol
