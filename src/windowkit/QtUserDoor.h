// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "model/Doors.h"

namespace zol {

/// The doors to the user as message boxes and the platform's file dialogs. They are modal to the
/// parent's window, or to the whole program without one.
class QtUserDoor : public MessageDoor, public FileDoor {
public:
    explicit QtUserDoor(QWidget* parent = nullptr) : m_parent(parent) {}

    /// The parent may go at any time; the doors then stand alone.
    void SetParent(QWidget* parent) { m_parent = parent; }

    /// Without a title a box is titled "Korvanta".
    void Tell(const std::string& text, MessageIcon icon, const std::string& title) override;
    void TellMore(const std::string& text, const std::string& more, MessageIcon icon,
                  const std::string& title) override;
    /// Escape means Cancel, or No where there is no Cancel.
    [[nodiscard]] MessageAnswer Ask(const std::string& text, MessageIcon icon,
                                    MessageButtons buttons, const std::string& title) override;

    [[nodiscard]] std::optional<std::filesystem::path>
    AskOpenFile(const FileChoice& choice) override;
    [[nodiscard]] std::optional<std::filesystem::path>
    AskSaveFile(const FileChoice& choice) override;

    /// "Words|*.PAT|More|*.bmp" as Qt writes filters, as it stands and with letters of either case:
    /// "Words (*.PAT *.[pP][aA][tT])" and "More (*.bmp *.[bB][mM][pP])".
    [[nodiscard]] static QStringList NameFilters(const std::string& filter);

private:
    QPointer<QWidget> m_parent;
};

} // namespace zol
