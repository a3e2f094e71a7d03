// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>

#include <memory>
#include <optional>

#include "import/EraseWork.h"
#include "import/PictureRegion.h"
#include "import/windows/AreaOutline.h"
#include "import/windows/ImportDesk.h"
#include "import/windows/WizardScreen.h"

namespace Ui {
class EraseScreen;
}

class QKeyEvent;

namespace zol {

/// Empties parts of the picture `lpicErase`: with an eraser of three sizes, or by selecting an area
/// and clearing it or all around it.
class EraseScreen : public WizardScreen {
    Q_OBJECT

public:
    explicit EraseScreen(ImportDesk& desk, QWidget* parent = nullptr);
    ~EraseScreen() override;

    [[nodiscard]] QString Instruction() const override;
    void DisplayScreen(bool keepPicture) override;
    [[nodiscard]] bool ValidateScreen() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ConnectView();
    void ConnectChoices();
    [[nodiscard]] bool UsesEraser() const;
    [[nodiscard]] int EraserSize() const;
    [[nodiscard]] AreaOutline::Shape MaskMode() const;

    template<typename Work>
    void Try(const Work& work);
    void Press(QPointF place);
    void Move(QPointF place, bool dragging);
    void Release(QPointF place);
    void StrokeTo(QPointF place);
    void BeginOutline(QPointF place);
    void EndOutline(QPointF place);
    void FreeRegion();

    void ClearSelected();
    void ClearUnselected();
    void UndoErase();
    void ResetErase();

    void ShowTool();
    void KeepRoomForHelp();
    void ShowPointer();
    void ShowChange(const PixelRect& changed);
    void ShowCommands();
    void MoveRing(std::optional<QPointF> place);
    [[nodiscard]] QRectF RingRect() const;
    void Paint(QPainter& painter, const PicturePlace& place) const;

    ImportDesk& m_desk;
    std::unique_ptr<Ui::EraseScreen> m_ui;
    EraseWork m_work;
    PictureRegion m_region{0, 0};

    AreaOutline m_outline; ///< of the area that is being drawn or selected
    bool m_drawing = false;

    QPointF m_strokeAt;
    bool m_stroking = false;
    std::optional<QPointF> m_ring; ///< where it is painted, when it is too large for a pointer
    bool m_paintsRing = false;
};

} // namespace zol
