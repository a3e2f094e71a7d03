// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/Doors.h"

namespace zol::test {

/// Remembers what the user was told and answers as the test says.
class RecordingMessages : public MessageDoor {
public:
    struct Message {
        std::string text;
        MessageIcon icon;
        std::string title;
    };

    void Tell(const std::string& text, MessageIcon icon, const std::string& title) override {
        told.push_back({text, icon, title});
    }
    MessageAnswer Ask(const std::string& text, MessageIcon icon, MessageButtons /*buttons*/,
                      const std::string& title) override {
        told.push_back({text, icon, title});
        return answer;
    }

    std::vector<Message> told;
    MessageAnswer answer = MessageAnswer::Yes;
};

/// Counts progress calls and cancels after a number of questions.
class RecordingProgress : public ProgressDoor {
public:
    void StartStatus(const std::string& text, int maximum) override {
        started.emplace_back(text, maximum);
    }
    void UpdateStatus(int value) override { updates.push_back(value); }
    void StopStatus() override { ++stopped; }
    bool MayGoOn() override { return cancelAfter < 0 || asked++ < cancelAfter; }

    std::vector<std::pair<std::string, int>> started;
    std::vector<int> updates;
    int stopped = 0;
    int asked = 0;
    int cancelAfter = -1; ///< questions answered with yes before the cancel; -1: never
};

/// Settings in memory.
class MapSettings : public SettingsDoor {
public:
    std::string ReadSetting(const std::string& section, const std::string& name,
                            const std::string& defaultValue) const override {
        const auto found = values.find({section, name});
        return found == values.end() ? defaultValue : found->second;
    }
    void WriteSetting(const std::string& section, const std::string& name,
                      const std::string& value) override {
        values[{section, name}] = value;
    }

    std::map<std::pair<std::string, std::string>, std::string> values;
};

} // namespace zol::test
