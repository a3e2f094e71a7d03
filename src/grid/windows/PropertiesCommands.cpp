// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/PropertiesCommands.h"

#include <utility>

#include "grid/windows/MainCommands.h"
#include "model/Pattern.h"

namespace zol {

PropertiesCommands::PropertiesCommands(MainCommands& commands, const Workshop& workshop,
                                       QWidget& window, Followers followers)
    : m_workshop(workshop),
      m_window(window),
      m_followers(std::move(followers)) {
    commands.Connect("mnuPatternInfo", &window, [this] { ChangeProperties(); });
}

std::optional<PatternInfo> PropertiesCommands::Ask(frmPatternInfo::Uses use,
                                                   const PatternInfo& present) {
    const Options& settings = m_workshop.Settings;
    const QFont font(QString::fromStdString(settings.TextInfoFontName), settings.TextInfoFontSize);
    frmPatternInfo dialog(
        use, present,
        {m_workshop.Messages, m_workshop.Store, m_workshop.Context, settings.UsesInches(), font},
        &m_window);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Chosen()) : std::nullopt;
}

std::optional<PatternInfo> PropertiesCommands::AskNewPattern(const PatternInfo& defaults) {
    return Ask(frmPatternInfo::Uses::New, defaults);
}

void PropertiesCommands::ChangeProperties() {
    const PatternInfo present = PatternInfo::Of(m_workshop.Open.Design());
    const auto wanted = Ask(frmPatternInfo::Uses::Present, present);
    // Looking at the properties is no step, and leaves the last one to be undone.
    if (wanted && *wanted != present) {
        GiveToDesign(*wanted);
    }
}

void PropertiesCommands::GiveToDesign(const PatternInfo& wanted) {
    m_followers.EndTool();
    {
        const UndoStep step(m_workshop.Steps, UndoKind::Snapshot, "Change Pattern Info");
        wanted.ApplyTo(m_workshop.Open.Design());
    }
    m_followers.Changed();
}

} // namespace zol
