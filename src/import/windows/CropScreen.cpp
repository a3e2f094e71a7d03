// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/CropScreen.h"

#include <QKeyEvent>
#include <QPainter>

#include <utility>

#include "import/PictureFiles.h"
#include "import/PictureOps.h"
#include "import/windows/PictureMarks.h"
#include "import/windows/WithinMemory.h"
#include "import/windows/ui_CropScreen.h"
#include "windowkit/Theme.h"
#include "windowkit/WaitCursor.h"

namespace zol {

namespace {

/// How near to a side of the band the pointer takes it, in pixels of the window.
constexpr double TakingReach = 6;
/// What a key of an arrow moves by with Ctrl.
constexpr int BigNudge = 10;
/// Milliseconds that the size of the band may lag behind it.
constexpr int SizesDelay = 40;

QString SizeText(int width, int height) {
    return QString::fromStdString(PictureFiles::SizeWords(width, height));
}

Qt::CursorShape PointerOf(unsigned part) {
    const bool left = (part & PictureBand::LeftSide) != 0;
    const bool right = (part & PictureBand::RightSide) != 0;
    const bool top = (part & PictureBand::TopSide) != 0;
    const bool bottom = (part & PictureBand::BottomSide) != 0;
    if (part == PictureBand::Nothing) {
        return Qt::CrossCursor;
    }
    if (part == PictureBand::Middle) {
        return Qt::SizeAllCursor;
    }
    if ((left && top) || (right && bottom)) {
        return Qt::SizeFDiagCursor;
    }
    if ((right && top) || (left && bottom)) {
        return Qt::SizeBDiagCursor;
    }
    return left || right ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

CropScreen::CropScreen(ImportDesk& desk, QWidget* parent)
    : WizardScreen(parent),
      m_desk(desk),
      m_ui(std::make_unique<Ui::CropScreen>()) {
    m_ui->setupUi(this);
    m_ui->zoom->Attach(*m_ui->lpicCrop);
    m_ui->lpicCrop->SetEmpty(PictureLevels::Empty::Transparent);
    m_ui->lpicCrop->SetPointer(Qt::CrossCursor);
    m_ui->lpicCrop->installEventFilter(this);
    ConnectView();
    m_sizesDue.setSingleShot(true);
    connect(&m_sizesDue, &QTimer::timeout, this, &CropScreen::ShowSizes);
    connect(m_ui->cmdCrop, &QPushButton::clicked, this,
            [this] { WithinMemory(m_desk.Messages, [this] { Crop(); }); });
    connect(m_ui->cmdResetCrop, &QPushButton::clicked, this,
            [this] { WithinMemory(m_desk.Messages, [this] { ResetCrop(); }); });
    ShowSizes();
}

CropScreen::~CropScreen() = default;

void CropScreen::ConnectView() {
    PictureView& view = *m_ui->lpicCrop;
    view.SetOverlay([this](QPainter& painter, const PicturePlace& place) {
        if (m_band.HasBand()) {
            PictureMarks::DrawBand(painter, place, BandRect(), Theme::Accent(palette()));
        }
    });
    connect(&view, &PictureView::Pressed, this, [this](QPointF place) {
        ChangeBand([&] { m_band.Press({place.x(), place.y()}, Reach()); });
    });
    connect(&view, &PictureView::Moved, this, [this](QPointF place, bool dragging) {
        if (dragging) {
            ChangeBand([&] { m_band.MoveTo({place.x(), place.y()}); });
        } else {
            ShowPointerAt(place);
        }
    });
    connect(&view, &PictureView::Released, this, [this](QPointF place) {
        ChangeBand([&] {
            m_band.MoveTo({place.x(), place.y()});
            m_band.Release();
        });
        ShowSizes();
        ShowPointerAt(place);
    });
}

QString CropScreen::Instruction() const {
    return tr("Click and drag the mouse cursor to select the area of the image you wish to keep, "
              "and click the Crop button.");
}

void CropScreen::DisplayScreen(bool keepPicture) {
    if (!keepPicture) {
        m_taken = m_desk.Work.TheImage;
        Show(m_taken);
    }
}

bool CropScreen::ValidateScreen() {
    if (m_picture) {
        const WaitCursor wait;
        auto remapped = std::make_shared<Picture>(*m_picture);
        RemapWhite(*remapped);
        m_desk.Work.TheImage = std::move(remapped);
    }
    return true;
}

/// Takes the band away, since it lay on another picture.
void CropScreen::Show(SharedPicture picture) {
    m_picture = std::move(picture);
    if (m_picture) {
        m_band.Start(m_picture->ImageWidth(), m_picture->ImageHeight());
    } else {
        m_band.Start(0, 0);
    }
    m_ui->lpicCrop->ShowPicture(m_picture);
    ShowSizes();
}

void CropScreen::Crop() {
    if (m_picture && m_band.HasBand()) {
        const WaitCursor wait;
        Show(std::make_shared<Picture>(CropPicture(*m_picture, m_band.Rect())));
    }
}

/// What was erased since then stays empty, also when whites are remapped once more.
void CropScreen::ResetCrop() {
    const SharedPicture& travelling = m_desk.Work.TheImage;
    if (!travelling || travelling == m_taken) {
        Show(travelling);
        return;
    }
    const WaitCursor wait;
    auto marked = std::make_shared<Picture>(*travelling);
    MarkErased(*marked);
    Show(std::move(marked));
}

/// Repaints what differs after a change of the band.
template<typename Change>
void CropScreen::ChangeBand(Change change) {
    const QRectF before = BandRect();
    change();
    const QRectF after = BandRect();
    if (before != after) {
        PictureView& view = *m_ui->lpicCrop;
        view.UpdateOverlay(PictureMarks::BandChange(view.Place(), before, after));
        if (!m_sizesDue.isActive()) {
            m_sizesDue.start(SizesDelay);
        }
    }
}

QRectF CropScreen::BandRect() const {
    const PixelRect& rect = m_band.Rect();
    return m_band.HasBand() ? QRectF(rect.Left, rect.Top, rect.Width, rect.Height) : QRectF();
}

PictureBand::Reach CropScreen::Reach() const {
    const PicturePlace& place = m_ui->lpicCrop->Place();
    const double reach = TakingReach * place.Ratio;
    return {reach / place.ScaleX(), reach / place.ScaleY()};
}

void CropScreen::ShowPointerAt(QPointF place) {
    m_ui->lpicCrop->SetPointer(PointerOf(m_band.PartAt({place.x(), place.y()}, Reach())));
}

void CropScreen::ShowSizes() {
    m_sizesDue.stop();
    const bool any = m_picture && !m_picture->IsEmpty();
    m_ui->lblPictureSize->setText(any ? SizeText(m_picture->ImageWidth(), m_picture->ImageHeight())
                                      : QString());
    const PixelRect& band = m_band.Rect();
    m_ui->lblBandSize->setText(m_band.HasBand() ? SizeText(band.Width, band.Height)
                                                : tr("Nothing is selected."));
    m_ui->cmdCrop->setEnabled(m_band.HasBand());
    m_ui->cmdResetCrop->setEnabled(any);
}

bool CropScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && TakeArrow(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return WizardScreen::eventFilter(watched, event);
}

/// Arrows move the band, with Shift its right and lower side; without a band they scroll.
bool CropScreen::TakeArrow(const QKeyEvent& event) {
    const int by = (event.modifiers() & Qt::ControlModifier) != 0 ? BigNudge : 1;
    const int key = event.key();
    const int across = key == Qt::Key_Left ? -by : (key == Qt::Key_Right ? by : 0);
    const int down = key == Qt::Key_Up ? -by : (key == Qt::Key_Down ? by : 0);
    if ((across == 0 && down == 0) || !m_band.HasBand()) {
        return false;
    }
    ChangeBand([&] {
        if ((event.modifiers() & Qt::ShiftModifier) != 0) {
            m_band.Stretch(across, down);
        } else {
            m_band.Nudge(across, down);
        }
    });
    ShowSizes();
    return true;
}

void CropScreen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_band.HasBand()) {
        ChangeBand([&] { m_band.Clear(); });
        ShowSizes();
    } else if (event->matches(QKeySequence::SelectAll) && m_picture) {
        ChangeBand([&] { m_band.SelectAll(); });
        ShowSizes();
    } else {
        WizardScreen::keyPressEvent(event);
    }
}

} // namespace zol
