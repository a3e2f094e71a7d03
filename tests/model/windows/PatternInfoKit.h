// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

#include <string>

#include "model/windows/frmPatternInfo.h"
#include "settings/INIFuncs.h"
#include "support/DialogHands.h"
#include "support/ScriptedUser.h"

namespace zol::test {

/// What a dialog of properties needs around it.
class PatternInfoDesk {
public:
    [[nodiscard]] frmPatternInfo::Desk Desk(bool inches = true) {
        return {User, Store, Context, inches, QFont(QStringLiteral("DejaVu Sans"), 10)};
    }

private:
    QTemporaryDir m_folder;

public:
    ScriptedUser User;
    ProgramContext Context;
    INIFuncs Store{std::filesystem::path(m_folder.path().toStdString()) / "settings.ini"};
};

/// The dialog on the screen, used by mouse and keys.
class ShownPatternInfo : public frmPatternInfo {
public:
    ShownPatternInfo(PatternInfoDesk& desk, const PatternInfo& present, Uses use = Uses::Present,
                     bool inches = true)
        : frmPatternInfo(use, present, desk.Desk(inches)) {
        show();
        activateWindow();
        m_isActive = QTest::qWaitForWindowActive(this);
    }
    [[nodiscard]] bool IsActive() const { return m_isActive; }

    template<typename Widget>
    [[nodiscard]] Widget& Find(const char* name) {
        return PartOf<Widget>(*this, name);
    }
    /// The field that keys go to: a text field, or that of a box.
    [[nodiscard]] QWidget& Field(const char* name) { return Find<QWidget>(name); }
    [[nodiscard]] QString TextOf(const char* name) {
        auto* box = qobject_cast<QComboBox*>(&Field(name));
        return box != nullptr ? box->currentText() : Find<QLineEdit>(name).text();
    }
    void Click(const char* name) { ClickIn(*this, name); }
    /// Replaces a field's content, key by key.
    void Type(const char* name, const QString& text) { TypeIn(*this, name, text); }
    /// Replaces a field's content past the filter of its keys.
    void Paste(const char* name, const QString& text) {
        auto* box = qobject_cast<QComboBox*>(&Field(name));
        QLineEdit& field = box != nullptr ? *box->lineEdit() : Find<QLineEdit>(name);
        QWidget& keys = Field(name);
        keys.setFocus();
        field.selectAll();
        field.insert(text);
    }
    void Ok() { Click("cmdOK"); }
    [[nodiscard]] bool HasFocus(const char* name) {
        return QApplication::focusWidget() == &Field(name);
    }

private:
    bool m_isActive = false;
};

} // namespace zol::test
