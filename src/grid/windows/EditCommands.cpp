// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/EditCommands.h"

#include <QMenu>

#include <optional>
#include <utility>

#include "files/FilePlaces.h"
#include "grid/tools/DrawModes.h"
#include "grid/tools/EditBox.h"
#include "grid/windows/MainCommands.h"
#include "grid/windows/MainMenus.h"
#include "grid/windows/StatusLine.h"
#include "model/CodePage.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

EditCommands::EditCommands(MainCommands& commands, MainMenus& menus, DrawModes& modes, Desk desk,
                           std::function<void()> done)
    : m_commands(commands),
      m_menus(menus),
      m_modes(modes),
      m_box(modes.Box()),
      m_desk(desk),
      m_done(std::move(done)) {
    ConnectCommands();
    m_box.SetFollower([this] { UpdateEditMenus(); });
    UpdateEditMenus();
}

void EditCommands::ConnectCommands() {
    const auto connect = [this](const char* name, auto run) {
        m_commands.Connect(name, &m_commands.At(name), [this, run] {
            run();
            m_done();
        });
    };
    const auto turn = [this, connect](const char* name, TransformOperation operation) {
        connect(name, [this, operation] { m_box.TransformEditBox(operation); });
    };
    connect("mnuEditCut", [this] { m_box.CutEditBox(); });
    connect("mnuEditCopy", [this] { m_box.CopyEditBox(); });
    connect("mnuEditPaste", [this] { Paste(); });
    connect("mnuSelectAll", [this] { SelectAll(); });
    connect("mnuEditErase", [this] { m_box.EraseEditBox(); });
    connect("mnuEditCopyTo", [this] { CopyTo(); });
    connect("mnuEditPasteFrom", [this] { PasteFrom(); });
    turn("mnuFlipHorizontal", TransformOperation::FlipHorizontal);
    turn("mnuFlipVertical", TransformOperation::FlipVertical);
    turn("mnuRotate90", TransformOperation::Rotate90);
    turn("mnuRotate180", TransformOperation::Rotate180);
    turn("mnuRotate270", TransformOperation::Rotate270);
    QMenu& menu = m_menus.At("mnuEdit");
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [this] { UpdateEditMenus(); });
}

void EditCommands::UpdateEditMenus() {
    const bool isThere = m_box.Content() != nullptr;
    m_commands.SetEnabled({"mnuEditCut", "mnuEditCopy", "mnuEditErase", "mnuEditCopyTo",
                           "mnuFlipHorizontal", "mnuFlipVertical", "mnuRotate90", "mnuRotate180",
                           "mnuRotate270"},
                          isThere);
    for (const char* menu : {"mnuEditFlip", "mnuEditRotate"}) {
        m_menus.At(menu).setEnabled(isThere);
    }
    m_commands.SetEnabled({"mnuEditPaste"}, m_box.IsClipboardFilled());
    const SquareRect box = m_box.GetEditBoxRect();
    if (m_box.IsActive()) {
        m_desk.Status.ShowSelection(box.Right - box.Left + 1, box.Bottom - box.Top + 1);
    } else {
        m_desk.Status.ShowSelection(0, 0);
    }
}

void EditCommands::SelectAll() {
    m_modes.SetDrawMode(DrawEditBox);
    m_box.SelectAll();
}

void EditCommands::Paste() {
    // Asked first: a change of the draw mode lands what floats.
    if (m_box.HasRoomForClipboard()) {
        m_modes.SetDrawMode(DrawEditBox);
        m_box.PasteClipboard();
    }
}

void EditCommands::LayPattern(std::shared_ptr<Pattern> block, const std::string& label) {
    if (m_box.HasRoomFor(*block)) {
        m_modes.SetDrawMode(DrawEditBox);
        m_box.PastePattern(std::move(block), label);
        m_done();
    }
}

// --- Files --------------------------------------------------------------------------------

void EditCommands::PasteFrom() {
    FileChoice choice;
    choice.Title = "Paste From ...";
    choice.Filter = "Korvanta Pattern Files|*.PAT";
    choice.Folder = m_folder.empty()
                        ? FilePlaces::PatternsFolder(m_desk.Open.Design().Context().AppPath)
                        : m_folder;
    const std::optional<std::filesystem::path> file = m_desk.Files.AskOpenFile(choice);
    if (!file) {
        return;
    }
    m_folder = file->parent_path();
    if (std::shared_ptr<Pattern> block = Load(*file)) {
        LayPattern(std::move(block), "Paste From");
    }
}

std::shared_ptr<Pattern> EditCommands::Load(const std::filesystem::path& file) {
    Pattern& design = m_desk.Open.Design();
    auto block = std::make_shared<Pattern>(design.Context());
    int result = ErrNone;
    {
        const QuietScope quiet(design.Context());
        result = block->Load(file);
    }
    if (result != ErrNone) {
        m_desk.Messages.TellMore(std::to_string(result) + " loading " + PathText(file),
                                 RunTimeErrorText(result) + ". The pattern on the grid stays as "
                                                            "it is.",
                                 MessageIcon::Exclamation, {});
        return nullptr;
    }
    block->GetPalette().Sort(design.GetPalette().GetSortOrder());
    return block;
}

void EditCommands::CopyTo() {
    Pattern* block = m_box.ContentWithHeader();
    if (block == nullptr) {
        return;
    }
    FileChoice choice;
    choice.Title = "Copy To ...";
    choice.Filter = "Korvanta Pattern Files|*.PAT";
    choice.DefaultExtension = "pat";
    choice.Folder =
        m_folder.empty() ? FilePlaces::PatternsFolder(block->Context().AppPath) : m_folder;
    const std::optional<std::filesystem::path> file = m_desk.Files.AskSaveFile(choice);
    if (!file) {
        return;
    }
    m_folder = file->parent_path();
    int result = ErrNone;
    {
        const QuietScope quiet(block->Context());
        result = block->Save(*file);
    }
    if (result != ErrNone) {
        m_desk.Messages.TellMore(std::to_string(result) + "error saving pattern: ",
                                 RunTimeErrorText(result) + ". The file stays as it was, and the "
                                                            "edit box too.",
                                 MessageIcon::Exclamation, {});
    }
}

} // namespace zol
