// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "grid/windows/Workshop.h"
#include "import/PatternFromPicture.h"

class QWidget;

namespace zol {

class DrawModes;
class frmImportWizard;
class MainCommands;
struct ImportWork;

/// The command that makes a design of a picture. Keeps the wizard that was left, so that its import
/// can be resumed, over another design too unless it is one into an edit box.
class ImportCommands {
public:
    /// What the window does about an import.
    struct Followers {
        std::function<void()> EndTool; ///< before: what floats over the design is let go
        std::function<void()> Changed; ///< after: everything may be other
        std::function<void(const std::string&)> ShowNote;
    };

    /// `window` is what the wizard stands over; all of it outlives this.
    ImportCommands(MainCommands& commands, const Workshop& workshop, const DrawModes& modes,
                   QWidget& window, Followers followers);
    ~ImportCommands();

    /// A picture file that was dropped onto the window: a new import of it.
    void ImportFile(const std::filesystem::path& file);
    /// Another design stands on the grid. An import that was left with an edit box of the one
    /// before would go into squares that nobody chose here, so it cannot be resumed; any other can.
    void ForgetEditBox();

private:
    void Import();
    void BeginAnew(std::optional<SquareRect> editBox);
    void ShowWizard();
    [[nodiscard]] std::optional<SquareRect> EditBoxInDesign() const;
    /// The edit box for a new import. One that floats lands first, so that the import begins with
    /// the design, and the flosses, that it will change.
    [[nodiscard]] std::optional<SquareRect> LandEditBox();
    [[nodiscard]] ImportStatus CreateThePattern(ImportWork& work);
    void TellResult();

    Workshop m_workshop;
    const DrawModes& m_modes;
    QWidget& m_window;
    Followers m_followers;
    std::unique_ptr<frmImportWizard> m_wizard;
    ImportFigures m_figures; ///< of the last import that was carried out
};

} // namespace zol
