// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

#include <memory>

#include "import/PictureBand.h"
#include "import/windows/ImportDesk.h"
#include "import/windows/WizardScreen.h"

namespace Ui {
class CropScreen;
}

class QKeyEvent;

namespace zol {

/// Keeps a part of the picture: a rubber band over `lpicCrop`, drawn and adjusted with the mouse or
/// the arrows' keys.
class CropScreen : public WizardScreen {
    Q_OBJECT

public:
    explicit CropScreen(ImportDesk& desk, QWidget* parent = nullptr);
    ~CropScreen() override;

    [[nodiscard]] QString Instruction() const override;
    void DisplayScreen(bool keepPicture) override;
    [[nodiscard]] bool ValidateScreen() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ConnectView();
    void Show(SharedPicture picture);
    void Crop();
    void ResetCrop();
    template<typename Change>
    void ChangeBand(Change change);
    [[nodiscard]] bool TakeArrow(const QKeyEvent& event);
    void ShowPointerAt(QPointF place);
    void ShowSizes();
    [[nodiscard]] PictureBand::Reach Reach() const;
    [[nodiscard]] QRectF BandRect() const;

    ImportDesk& m_desk;
    std::unique_ptr<Ui::CropScreen> m_ui;
    SharedPicture m_picture;
    SharedPicture m_taken; ///< the picture that travelled when the screen was filled
    PictureBand m_band;
    QTimer m_sizesDue; ///< a new text lays the window out, which is too much for each move
};

} // namespace zol
