// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "model/Doors.h"

namespace zol::test {

/// A user who answers questions and file dialogs in a given order. What was shown is kept; a
/// question without an answer left counts as cancelled and is kept in `unanswered`, which a test
/// has to find empty.
class ScriptedUser : public MessageDoor, public FileDoor {
public:
    struct Message {
        std::string text;
        std::string more;
        MessageIcon icon = MessageIcon::None;
        MessageButtons buttons = MessageButtons::Ok;
        std::string title;
    };

    void Tell(const std::string& text, MessageIcon icon, const std::string& title) override {
        told.push_back({text, {}, icon, MessageButtons::Ok, title});
    }
    void TellMore(const std::string& text, const std::string& more, MessageIcon icon,
                  const std::string& title) override {
        told.push_back({text, more, icon, MessageButtons::Ok, title});
    }
    MessageAnswer Ask(const std::string& text, MessageIcon icon, MessageButtons buttons,
                      const std::string& title) override {
        asked.push_back({text, {}, icon, buttons, title});
        return Next(answers, text).value_or(MessageAnswer::Cancel);
    }
    std::optional<std::filesystem::path> AskOpenFile(const FileChoice& choice) override {
        openDialogs.push_back(choice);
        return Next(files, choice.Title).value_or(std::nullopt);
    }
    std::optional<std::filesystem::path> AskSaveFile(const FileChoice& choice) override {
        saveDialogs.push_back(choice);
        return Next(files, choice.Title).value_or(std::nullopt);
    }

    [[nodiscard]] std::vector<std::string> ToldTexts() const { return TextsOf(told); }
    [[nodiscard]] std::vector<std::string> AskedTexts() const { return TextsOf(asked); }

    std::deque<MessageAnswer> answers;
    std::deque<std::optional<std::filesystem::path>> files; ///< nothing: the dialog is cancelled
    std::vector<Message> told;
    std::vector<Message> asked;
    std::vector<FileChoice> openDialogs;
    std::vector<FileChoice> saveDialogs;
    std::vector<std::string> unanswered;

private:
    template<typename Value>
    std::optional<Value> Next(std::deque<Value>& script, const std::string& question) {
        if (script.empty()) {
            unanswered.push_back(question);
            return std::nullopt;
        }
        Value value = script.front();
        script.pop_front();
        return value;
    }
    static std::vector<std::string> TextsOf(const std::vector<Message>& messages) {
        std::vector<std::string> texts;
        texts.reserve(messages.size());
        for (const Message& message : messages) {
            texts.push_back(message.text);
        }
        return texts;
    }
};

} // namespace zol::test
