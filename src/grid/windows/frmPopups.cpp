// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/frmPopups.h"

#include <QCursor>
#include <QMenu>

#include "grid/tools/BackstitchTool.h"
#include "grid/tools/LineMenu.h"
#include "model/ProgramContext.h"
#include "windowkit/IconFamily.h"

namespace zol {

frmPopups::frmPopups(BackstitchTool& lines, const ProgramContext& context, QWidget* parent)
    : QObject(parent),
      m_lines(lines),
      m_menu(std::make_unique<QMenu>(parent)) {
    setObjectName(QStringLiteral("frmPopups"));
    m_menu->setObjectName(QStringLiteral("mnuLines"));
    QAction* remove = m_menu->addAction(IconFamily::Icon(QStringLiteral("line-delete")),
                                        QStringLiteral("&Delete"));
    remove->setObjectName(QStringLiteral("mnuLineDelete"));
    connect(remove, &QAction::triggered, this, [this] { m_lines.DeleteSelected(); });
    AddStyles(*m_menu);
    QAction* color =
        m_menu->addAction(QString::fromStdString("Set to &Current " + context.ColorWord()));
    color->setObjectName(QStringLiteral("mnuLineColor"));
    connect(color, &QAction::triggered, this, [this] { m_lines.SetColorOfSelected(); });
    m_menu->addSeparator();
    QAction* cancel = m_menu->addAction(QStringLiteral("Cancel"));
    cancel->setObjectName(QStringLiteral("mnuLineCancel"));
}

frmPopups::~frmPopups() = default;

void frmPopups::AddStyles(QMenu& menu) {
    m_styles = menu.addMenu(QStringLiteral("Change &Style"));
    m_styles->setObjectName(QStringLiteral("mnuLineStyle"));
    int index = 0;
    for (const LineStyleItem& item : LineStyleItems) {
        QAction* action = m_styles->addAction(QString::fromUtf8(item.Caption));
        action->setObjectName(QLatin1String("mnuLineStyleSet") + QString::number(index++));
        action->setCheckable(true);
        action->setData(static_cast<int>(item.Style));
        connect(action, &QAction::triggered, this,
                [this, style = item.Style] { m_lines.SetStyleOfSelected(style); });
    }
}

void frmPopups::OpenLineMenu(int lineStyle) {
    for (QAction* action : m_styles->actions()) {
        action->setChecked(action->data().toInt() == lineStyle);
    }
    m_menu->exec(QCursor::pos());
}

} // namespace zol
