// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "model/Pattern.h"
#include "print/Paper.h"
#include "support/TempFolder.h"

namespace zol::test {

/// Paper with an unprintable border, of which only the measures matter.
class MeasuredPaper : public Paper {
public:
    MeasuredPaper(int width, int height, int borderX = 0, int borderY = 0)
        : Paper(QPageSize(QSizeF(width, height) / 20.0, QPageSize::Point)),
          m_size(width, height),
          m_border(borderX, borderY) {}

    [[nodiscard]] int Width() const override { return m_size.width(); }
    [[nodiscard]] int Height() const override { return m_size.height(); }
    [[nodiscard]] int ScaleWidth() const override { return Width() - 2 * m_border.width(); }
    [[nodiscard]] int ScaleHeight() const override { return Height() - 2 * m_border.height(); }

private:
    QSize m_size; ///< twips
    QSize m_border;
};

/// A program with a catalogue "DMC" of four flosses, another one, and an empty startup palette.
class PrintScene {
public:
    PrintScene() {
        context.AppPath = m_folder.Path();
        std::filesystem::create_directories(m_folder / "Flosses");
        context.StartupPalette = std::make_shared<const Palette>(Palette::Empty(context));
        context.CurrentCatalogue = MakeCatalogue("DMC", "dmc.col", {"310", "321", "702", "973"});
        MakeCatalogue("Anchor", "anchor.col", {"403", "9046", "226", "290"});
    }

    /// Rows carry the identities 1, 2, ... in the order given.
    std::shared_ptr<AvailColors> MakeCatalogue(const std::string& name, const std::string& file,
                                               const std::vector<std::string>& ids) {
        auto catalogue = std::make_shared<AvailColors>(context);
        catalogue->Setheader(name, 0, name, 0);
        int masterID = 0;
        for (const std::string& id : ids) {
            ++masterID;
            std::string description = name;
            description.append(" floss ").append(id);
            catalogue->AddEntry(masterID, description, id, 10, 20, 30, masterID, 0, 0, "");
        }
        EXPECT_TRUE(catalogue->SaveToFile(m_folder.Path() / "Flosses" / file));
        EXPECT_TRUE(catalogue->Initialize(file));
        return catalogue;
    }

    [[nodiscard]] std::unique_ptr<Pattern> MakePattern(int width, int height, int countX = 14,
                                                       int countY = 14) {
        auto pattern = std::make_unique<Pattern>(context);
        pattern->Initialize(width, height, countX, countY);
        return pattern;
    }

    /// Adds a floss of the main catalogue; answers its number.
    static int AddFloss(Pattern& pattern, Colour rgb, const std::string& id, int masterID,
                        std::string_view symbol, const std::string& manufacturer = "DMC") {
        Palette& palette = pattern.GetPalette();
        EXPECT_EQ(palette.AddPaletteEntry(rgb, id, "Floss " + id, manufacturer, symbol, 2, 1, 0,
                                          masterID, LineStraight, manufacturer),
                  PaletteAdded);
        palette.Sort(SortOrderAdded);
        return palette.GetEntriesCount();
    }

    [[nodiscard]] std::filesystem::path Path(const std::string& name) const {
        return m_folder / name;
    }
    [[nodiscard]] const std::filesystem::path& Folder() const { return m_folder.Path(); }

private:
    TempFolder m_folder;

public:
    ProgramContext context;
};

} // namespace zol::test
