// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "flosses/AvailColors.h"
#include "settings/INIFuncs.h"
#include "settings/basOptions.h"
#include "settings/windows/frmOptions.h"
#include "support/DialogHands.h"
#include "support/TestPaths.h"

namespace zol::test {

using StoredValues = std::map<std::string, std::string>; ///< by "section/name"

/// The options dialog over a store of its own, driven by mouse and keys.
class OptionsWindow {
public:
    /// The pages by the order of their tabs.
    static constexpr int Pages = 5;

    /// `file` is what the store begins with.
    explicit OptionsWindow(const StoredValues& values = {}, const QByteArray& file = {}) {
        QFile begin(StoreFile());
        if (begin.open(QIODevice::WriteOnly)) {
            begin.write(file);
            begin.close();
        }
        m_context.AppPath = m_folder.filePath(QStringLiteral("app")).toStdString();
        std::filesystem::create_directories(m_context.AppPath);
        std::filesystem::copy(std::filesystem::path(BuildDataFolder) / "Flosses",
                              m_context.AppPath / "Flosses");
        Store = std::make_unique<INIFuncs>(std::filesystem::path(StoreFile().toStdString()));
        for (const auto& [key, value] : values) {
            const std::size_t slash = key.find('/');
            Store->WriteSetting(key.substr(0, slash), key.substr(slash + 1), value);
        }
        Settings = basOptions::LoadOptions(*Store, m_context);
        Open();
    }

    void Open() {
        Dialog =
            std::make_unique<frmOptions>(OptionsDesk{Settings, *Store, m_context,
                                                     [this] {
                                                         ++Applied;
                                                         HeldAtApply.push_back(Held);
                                                     },
                                                     [this](bool hold) { Held += hold ? 1 : -1; }});
        Dialog->show();
    }

    template<typename Widget = QWidget>
    [[nodiscard]] Widget& Find(const char* name) {
        return PartOf<Widget>(*Dialog, name);
    }
    /// Turns to the page of a control.
    template<typename Widget = QWidget>
    [[nodiscard]] Widget& Show(const char* name) {
        auto& control = Find<Widget>(name);
        auto& tabs = Find<QTabWidget>("tbsOptions");
        for (int page = 0; page < tabs.count(); ++page) {
            if (tabs.widget(page)->isAncestorOf(&control)) {
                QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {},
                                  tabs.tabBar()->tabRect(page).center());
            }
        }
        return control;
    }
    void Click(const char* button) {
        auto& box = Show<QAbstractButton>(button);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    }
    /// Chooses a line by the keys.
    void Choose(const char* combo, int line) {
        auto& list = Show<QComboBox>(combo);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i < line; ++i) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
    }
    void Type(const char* field, const char* keys) {
        auto& line = Show<QLineEdit>(field);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, QLatin1String(keys));
    }
    [[nodiscard]] QString Text(const char* field) { return Find<QLineEdit>(field).text(); }

    /// Everything in the store but the sizes of windows, by "section/name".
    [[nodiscard]] std::map<QString, QString> Stored() const {
        const QSettings file(StoreFile(), QSettings::IniFormat);
        std::map<QString, QString> values;
        for (const QString& key : file.allKeys()) {
            if (!key.startsWith(QStringLiteral("Windows/"))) {
                values[key] = file.value(key).toString();
            }
        }
        return values;
    }
    [[nodiscard]] QByteArray StoreBytes() const {
        QFile file(StoreFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] ProgramContext& Context() { return m_context; }

    std::unique_ptr<INIFuncs> Store;
    Options Settings;
    std::unique_ptr<frmOptions> Dialog;
    int Applied = 0;
    int Held = 0;
    std::vector<int> HeldAtApply; ///< for each time that the options were applied

private:
    [[nodiscard]] QString StoreFile() const { return m_folder.filePath(QStringLiteral("s.ini")); }

    QTemporaryDir m_folder;
    ProgramContext m_context;
};

} // namespace zol::test
