// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

class QAction;
class QMenu;
class QWidget;

namespace zol {

class BackstitchTool;
struct ProgramContext;

/// The menus that open at the pointer: `mnuLines`, the commands on a backstitch line.
class frmPopups : public QObject {
    Q_OBJECT

public:
    frmPopups(BackstitchTool& lines, const ProgramContext& context, QWidget* parent);
    ~frmPopups() override;

    /// Opens the menu at the pointer and waits until it closes. With no line selected
    /// (`lineStyle` -1) its commands do nothing.
    void OpenLineMenu(int lineStyle);

private:
    void AddStyles(QMenu& menu);

    BackstitchTool& m_lines;
    std::unique_ptr<QMenu> m_menu;
    QMenu* m_styles = nullptr;
};

} // namespace zol
