// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/FileMenu.h"

#include <QAction>

#include "files/FileCommands.h"
#include "grid/windows/MainCommands.h"
#include "grid/windows/MainMenus.h"
#include "settings/MRUFuncs.h"

namespace zol {

FileMenu::FileMenu(MainCommands& commands, MainMenus& menus, FileCommands& files, MRUFuncs& recent)
    : m_menus(menus),
      m_files(files),
      m_recent(recent) {
    const auto connect = [&commands](const char* name, auto run) {
        commands.Connect(name, &commands.At(name), run);
    };
    connect("mnuFileNew", [this] { m_files.New(); });
    connect("mnuFileOpen", [this] { m_files.Open(); });
    connect("mnuFileSave", [this] { m_files.Save(); });
    connect("mnuFileSaveAs", [this] { m_files.SaveAs(); });
    int index = 0;
    for (QAction* entry : m_menus.RecentFiles()) {
        QObject::connect(entry, &QAction::triggered, entry,
                         [this, index] { m_files.OpenRecent(index); });
        ++index;
    }
    m_recent.SetMenu([this](const std::vector<std::string>& paths) { ShowRecent(paths); });
}

FileMenu::~FileMenu() {
    m_recent.SetMenu({});
}

void FileMenu::ShowRecent(const std::vector<std::string>& paths) {
    std::size_t index = 0;
    for (QAction* entry : m_menus.RecentFiles()) {
        const bool isThere = index < paths.size();
        if (isThere) {
            // A path's own ampersand is no mnemonic.
            QString path = QString::fromStdString(paths[index]);
            path.replace(QLatin1Char('&'), QLatin1String("&&"));
            entry->setText(path);
        }
        entry->setVisible(isThere);
        ++index;
    }
    m_menus.RecentSeparator().setVisible(!paths.empty());
}

} // namespace zol
