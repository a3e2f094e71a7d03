// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

namespace zol {

class DesignHolder;
class MainCommands;
class Pattern;
class Undo;

/// The commands that rearrange the whole design: centering, cropping, clearing the palette. Each
/// is one undo step.
class DesignCommands {
public:
    /// `changed` runs after a command has changed the design.
    DesignCommands(MainCommands& commands, DesignHolder& open, Undo& steps,
                   std::function<void()> changed);

private:
    void Run(const std::string& label, const std::function<void(Pattern&)>& work);

    DesignHolder& m_open;
    Undo& m_steps;
    std::function<void()> m_changed;
};

} // namespace zol
