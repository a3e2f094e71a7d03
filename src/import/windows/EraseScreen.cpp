// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/EraseScreen.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "import/Eraser.h"
#include "import/windows/PictureMarks.h"
#include "import/windows/WithinMemory.h"
#include "import/windows/ui_EraseScreen.h"
#include "windowkit/WaitCursor.h"

namespace zol {

namespace {

PicturePoint PointOf(QPointF place) {
    return {place.x(), place.y()};
}

QString HelpText(bool eraser) {
    return eraser ? EraseScreen::tr("Select an eraser size, then click and drag the mouse to "
                                    "erase an area.")
                  : EraseScreen::tr("Select the type of are you want to draw, then draw by "
                                    "clicking and holding down the left mouse button.");
}

} // namespace

EraseScreen::EraseScreen(ImportDesk& desk, QWidget* parent)
    : WizardScreen(parent),
      m_desk(desk),
      m_ui(std::make_unique<Ui::EraseScreen>()) {
    m_ui->setupUi(this);
    m_ui->zoom->Attach(*m_ui->lpicErase);
    ConnectView();
    ConnectChoices();
    ShowTool();
}

EraseScreen::~EraseScreen() = default;

void EraseScreen::ConnectView() {
    PictureView& view = *m_ui->lpicErase;
    view.SetOverlay(
        [this](QPainter& painter, const PicturePlace& place) { Paint(painter, place); });
    connect(&view, &PictureView::Pressed, this,
            [this](QPointF place) { Try([&] { Press(place); }); });
    connect(&view, &PictureView::Moved, this,
            [this](QPointF place, bool dragging) { Try([&] { Move(place, dragging); }); });
    connect(&view, &PictureView::Released, this,
            [this](QPointF place) { Try([&] { Release(place); }); });
    connect(&view, &PictureView::Left, this, [this] { MoveRing(std::nullopt); });
    connect(&view, &PictureView::ZoomChanged, this, &EraseScreen::ShowPointer);
}

void EraseScreen::ConnectChoices() {
    connect(m_ui->optEraseBy0, &QRadioButton::toggled, this, &EraseScreen::ShowTool);
    for (QRadioButton* size : {m_ui->optEraser0, m_ui->optEraser1, m_ui->optEraser2}) {
        connect(size, &QRadioButton::toggled, this, &EraseScreen::ShowPointer);
    }
    connect(m_ui->cmdClearSelected, &QPushButton::clicked, this,
            [this] { Try([this] { ClearSelected(); }); });
    connect(m_ui->cmdClearUnselected, &QPushButton::clicked, this,
            [this] { Try([this] { ClearUnselected(); }); });
    connect(m_ui->cmdUndo, &QPushButton::clicked, this, [this] { Try([this] { UndoErase(); }); });
    connect(m_ui->cmdResetErase, &QPushButton::clicked, this,
            [this] { Try([this] { ResetErase(); }); });
}

/// A stroke that there is no memory for ends, so that it is told once.
template<typename Work>
void EraseScreen::Try(const Work& work) {
    if (!WithinMemory(m_desk.Messages, work)) {
        m_stroking = false;
        if (m_drawing) {
            FreeRegion();
        }
    }
}

QString EraseScreen::Instruction() const {
    return tr("Here you can erase sections of the image using the Eraser tool or by selecting and "
              "clearing areas.");
}

void EraseScreen::DisplayScreen(bool keepPicture) {
    const WaitCursor wait;
    KeepRoomForHelp();
    if (keepPicture) {
        m_work.MakeOwn();
    } else {
        m_work.Take(m_desk.Work.TheImage);
    }
    FreeRegion();
    ShowChange({});
    ShowPointer();
}

/// For the longer of the two, so that nothing below moves when the tool changes.
void EraseScreen::KeepRoomForHelp() {
    const QRect column(0, 0, m_ui->fraEraseButtons->minimumSizeHint().width(), 0);
    const auto height = [&](bool eraser) {
        return m_ui->lblHelp->fontMetrics()
            .boundingRect(column, Qt::TextWordWrap, HelpText(eraser))
            .height();
    };
    m_ui->lblHelp->setMinimumHeight(std::max(height(true), height(false)));
}

bool EraseScreen::ValidateScreen() {
    FreeRegion();
    if (m_work.HasPicture()) {
        m_desk.Work.TheImage = m_work.HandOn();
    }
    return true;
}

bool EraseScreen::UsesEraser() const {
    return m_ui->optEraseBy0->isChecked();
}

int EraseScreen::EraserSize() const {
    if (m_ui->optEraser0->isChecked()) {
        return Eraser::Sizes[0];
    }
    return m_ui->optEraser1->isChecked() ? Eraser::Sizes[1] : Eraser::Sizes[2];
}

AreaOutline::Shape EraseScreen::MaskMode() const {
    if (m_ui->optMaskMode0->isChecked()) {
        return AreaOutline::Shape::Freehand;
    }
    return m_ui->optMaskMode1->isChecked() ? AreaOutline::Shape::Rectangle
                                           : AreaOutline::Shape::Oval;
}

void EraseScreen::Press(QPointF place) {
    if (!m_work.HasPicture()) {
        return;
    }
    if (UsesEraser()) {
        m_stroking = true;
        m_strokeAt = place;
        ShowChange(m_work.BeginStroke(PointOf(place), EraserSize()));
    } else {
        BeginOutline(place);
    }
}

void EraseScreen::Move(QPointF place, bool dragging) {
    MoveRing(place);
    if (dragging && m_stroking) {
        StrokeTo(place);
    } else if (dragging && m_drawing) {
        m_outline.ExtendTo(place, *m_ui->lpicErase);
    }
}

void EraseScreen::Release(QPointF place) {
    if (std::exchange(m_stroking, false)) {
        StrokeTo(place);
    } else if (std::exchange(m_drawing, false)) {
        EndOutline(place);
    }
}

/// A long way is gone in parts, so that a slant does not repaint the whole rectangle round it.
void EraseScreen::StrokeTo(QPointF place) {
    const QPointF from = std::exchange(m_strokeAt, place);
    const QPointF way = place - from;
    const double length = std::max(std::abs(way.x()), std::abs(way.y()));
    const int parts = 1 + static_cast<int>(std::min(length, 1e6) / (4 * EraserSize()));
    for (int part = 1; part <= parts; ++part) {
        ShowChange(m_work.MoveStroke(PointOf(from + way * (double(part) / parts))));
    }
}

void EraseScreen::BeginOutline(QPointF place) {
    FreeRegion();
    m_drawing = true;
    const Picture& picture = *m_work.Shown();
    m_outline.Begin(MaskMode(), place, picture.ImageWidth(), picture.ImageHeight());
}

void EraseScreen::EndOutline(QPointF place) {
    m_outline.ExtendTo(place, *m_ui->lpicErase);
    m_outline.SelectIn(m_region);
    if (!m_region.HasRegion()) {
        m_outline.Clear();
    }
    m_ui->lpicErase->viewport()->update();
    ShowCommands();
}

/// Also gives up one that is being drawn.
void EraseScreen::FreeRegion() {
    m_drawing = false;
    m_outline.Clear();
    const int width = m_work.HasPicture() ? m_work.Shown()->ImageWidth() : 0;
    const int height = m_work.HasPicture() ? m_work.Shown()->ImageHeight() : 0;
    m_region = PictureRegion(width, height);
    m_ui->lpicErase->viewport()->update();
    ShowCommands();
}

void EraseScreen::ClearSelected() {
    const WaitCursor wait;
    ShowChange(m_work.ClearSelected(m_region));
    FreeRegion();
}

void EraseScreen::ClearUnselected() {
    const WaitCursor wait;
    ShowChange(m_work.ClearUnselected(m_region));
    FreeRegion();
}

void EraseScreen::UndoErase() {
    if (m_work.CanUndo()) {
        const WaitCursor wait;
        ShowChange(m_work.Undo());
    }
}

void EraseScreen::ResetErase() {
    const WaitCursor wait;
    m_work.Reset(m_desk.Work.TheImage);
    FreeRegion();
    ShowChange({});
}

/// Help and choices of the tool that is chosen.
void EraseScreen::ShowTool() {
    const bool eraser = UsesEraser();
    m_ui->fraTool->setCurrentWidget(eraser ? m_ui->fraEraser : m_ui->fraMask);
    m_ui->lblHelp->setText(HelpText(eraser));
    m_stroking = false;
    FreeRegion();
    ShowPointer();
}

/// The eraser's ring is the pointer itself while it is small enough for one.
void EraseScreen::ShowPointer() {
    PictureView& view = *m_ui->lpicErase;
    m_paintsRing = false;
    if (!UsesEraser() || view.Place().IsEmpty()) {
        view.SetPointer(Qt::CrossCursor);
    } else if (const auto ring = PictureMarks::RingPointer(view.Place(), EraserSize())) {
        view.SetPointer(*ring);
    } else {
        m_paintsRing = true;
        view.SetPointer(Qt::CrossCursor);
    }
    view.viewport()->update();
}

QRectF EraseScreen::RingRect() const {
    const double half = EraserSize() / 2.0;
    return m_ring ? QRectF(*m_ring - QPointF(half, half), *m_ring + QPointF(half, half)) : QRectF();
}

void EraseScreen::MoveRing(std::optional<QPointF> place) {
    PictureView& view = *m_ui->lpicErase;
    const int reach = static_cast<int>(std::ceil(PictureMarks::RingReach * view.Place().Ratio));
    for (int turn = 0; turn < 2; ++turn) {
        if (m_paintsRing && m_ring) {
            view.UpdateOverlay(RingRect(), reach);
        }
        m_ring = place;
    }
}

void EraseScreen::Paint(QPainter& painter, const PicturePlace& place) const {
    if (m_paintsRing && m_ring) {
        PictureMarks::DrawRing(painter, place, *m_ring, EraserSize());
    }
    if (m_drawing || m_region.HasRegion()) {
        m_outline.Paint(painter, place, !m_drawing);
    }
}

/// A copy that took the picture's place is shown from scratch.
void EraseScreen::ShowChange(const PixelRect& changed) {
    PictureView& view = *m_ui->lpicErase;
    if (view.Shown() != m_work.Shown()) {
        view.ShowPicture(m_work.Shown());
    } else {
        view.PictureChanged({changed.Left, changed.Top, changed.Width, changed.Height});
    }
    ShowCommands();
}

void EraseScreen::ShowCommands() {
    m_ui->cmdClearSelected->setEnabled(m_region.HasRegion());
    m_ui->cmdClearUnselected->setEnabled(m_region.HasRegion());
    m_ui->cmdUndo->setEnabled(m_work.CanUndo());
    m_ui->cmdResetErase->setEnabled(m_work.HasPicture());
}

void EraseScreen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && (m_region.HasRegion() || m_drawing)) {
        FreeRegion();
    } else if (event->key() == Qt::Key_Delete && m_region.HasRegion()) {
        Try([this] { ClearSelected(); });
    } else if (event->matches(QKeySequence::Undo)) {
        Try([this] { UndoErase(); });
    } else {
        WizardScreen::keyPressEvent(event);
    }
}

} // namespace zol
