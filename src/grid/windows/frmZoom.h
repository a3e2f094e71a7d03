// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmZoom;
}

namespace zol {

/// Asks for a zoom: one of six, or any number. Modal; the caller changes the zoom.
class frmZoom : public QDialog {
    Q_OBJECT

public:
    explicit frmZoom(int gridZoom, QWidget* parent = nullptr);
    ~frmZoom() override;

    /// What was chosen, as it stands there: not brought into 1 to 1000.
    [[nodiscard]] int Percent() const;

private:
    void EnableCustom(bool custom);

    std::unique_ptr<Ui::frmZoom> m_ui;
};

} // namespace zol
