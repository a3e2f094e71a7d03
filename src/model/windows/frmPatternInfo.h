// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

#include "model/PatternInfo.h"
#include "model/ProgramContext.h"

class QComboBox;

namespace Ui {
class frmPatternInfo;
}

namespace zol {

class InstructionsEditor;
class NumericFilter;

/// Asks for the properties of a pattern, of a new one or of the one that stands open. Modal; the
/// caller gives them to the pattern.
class frmPatternInfo : public QDialog {
    Q_OBJECT

public:
    enum class Uses { New, Present };
    /// What the dialog works with; all of it outlives it.
    struct Desk {
        MessageDoor& Messages;
        SettingsDoor& Store;
        const ProgramContext& Context;
        bool UseInches;         ///< else centimetres
        QFont InstructionsFont; ///< of instructions without a font of their own
    };

    frmPatternInfo(Uses use, const PatternInfo& present, const Desk& desk,
                   QWidget* parent = nullptr);
    ~frmPatternInfo() override;

    /// What was chosen; as it was before until the dialog has been accepted.
    [[nodiscard]] const PatternInfo& Chosen() const { return m_chosen; }

    void accept() override;
    /// Asks first if instructions were written that would be lost.
    void reject() override;

private:
    void SetUpFields();
    void FillFields();
    void ConnectFields();

    [[nodiscard]] PatternSizeFields Fields() const;
    void ShowSize(const PatternSizeFields& fields);
    /// The size in the other unit, below the fields.
    void ShowOtherSize();
    void SwitchUnits(bool useUnits);
    void TieClothCounts(bool square);
    void FollowClothCount();

    [[nodiscard]] PatternInfo InFields(const PatternSizeFields& fields) const;
    [[nodiscard]] bool MayResize(const PatternInfo& wanted);
    void Tell(const PatternInfoFault& fault);
    [[nodiscard]] QWidget& FieldOf(PatternInfoField field) const;

    Uses m_use;
    PatternInfo m_present;
    PatternInfo m_chosen;
    Desk m_desk;
    bool m_usesUnits = false; ///< the size fields hold lengths
    std::unique_ptr<Ui::frmPatternInfo> m_ui;
    InstructionsEditor* m_editor = nullptr;
    NumericFilter* m_widthFilter = nullptr;
    NumericFilter* m_heightFilter = nullptr;
};

} // namespace zol
