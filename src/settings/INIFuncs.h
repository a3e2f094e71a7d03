// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>
#include <memory>
#include <string>

#include "model/Doors.h"

class QSettings;

namespace zol {

/// The settings store: text values by section and name in an INI file of the user. Section and
/// value names match without regard to case. Every write goes to the file at once, under a lock
/// and merged with what other running programs wrote, so two of them never spoil it; the last
/// writer of a value wins.
class INIFuncs : public SettingsDoor {
public:
    static constexpr int MaxValueLength = 255;

    /// The user's own store, named "Korvanta 6".
    explicit INIFuncs(MessageDoor* messages = nullptr);
    /// A store in a file of that name.
    explicit INIFuncs(const std::filesystem::path& file, MessageDoor* messages = nullptr);
    ~INIFuncs() override;

    /// The value up to its first zero byte, cut at 255 characters, without blanks at either end;
    /// the default as it stands if there is none.
    [[nodiscard]] std::string ReadSetting(const std::string& section, const std::string& name,
                                          const std::string& defaultValue) const override;
    /// Tells "Error " and the code if the store cannot be opened, once in a run, and tries to
    /// write all the same.
    void WriteSetting(const std::string& section, const std::string& name,
                      const std::string& value) override;

private:
    [[nodiscard]] QString FindKey(const std::string& section, const std::string& name) const;

    std::unique_ptr<QSettings> m_store;
    MessageDoor* m_messages;
    bool m_failureTold = false;
};

} // namespace zol
