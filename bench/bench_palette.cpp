// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Replacing a floss of the scene, against a pass that counts the cells of each floss; and opening
// the palette editor on 200 flosses and the largest catalogue, against opening it on none.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBackingStore>

#include <array>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "Folder.h"
#include "Ratio.h"
#include "Scene.h"
#include "flosses/windows/frmPalette.h"
#include "settings/INIFuncs.h"

namespace zol {

namespace {

/// Says yes to everything.
class Yes : public MessageDoor, public PaletteDialogs {
public:
    void Tell(const std::string&, MessageIcon, const std::string&) override {}
    MessageAnswer Ask(const std::string&, MessageIcon, MessageButtons,
                      const std::string&) override {
        ++Asked;
        return MessageAnswer::Yes;
    }
    RemovalAnswer AskRemoval(const RemovalQuestion&) override { return RemovalAnswer::Cancel; }
    std::optional<ReplacementAnswer> AskReplacement(const ReplacementQuestion&) override {
        return ReplacementAnswer{2};
    }
    std::optional<CustomFloss> AskCustomFloss(bool) override { return std::nullopt; }
    std::optional<std::string> AskSymbol(int, const FlossLook&) override { return std::nullopt; }

    int Asked = 0;
};

void CountCells(const Pattern& pattern, std::array<std::uint32_t, 256>& counts) {
    for (const StitchCell& cell : pattern.Cells()) {
        ++counts[cell.PaletteIndex];
    }
}

/// Asked and counted, stitches rewritten, the entry removed.
void ReplaceFloss(benchmark::State& state) {
    ProgramContext context;
    std::unique_ptr<Pattern> scene;
    Yes user;
    int replaced = 0;
    const auto refill = [&] {
        scene = std::make_unique<Pattern>(context);
        FillScene(*scene);
    };
    refill();
    std::array<std::uint32_t, 256> counts{};
    Ratio(state, 4).Measure(
        [&] {
            CountCells(*scene, counts);
            benchmark::DoNotOptimize(counts);
        },
        [&] {
            if (scene->GetPalette().GetEntriesCount() < 100) {
                refill();
            }
        },
        [&] {
            PaletteEditor editor({*scene, user, user}, 7);
            replaced += editor.Replace() ? 1 : 0;
        });
    if (replaced == 0 || user.Asked != replaced) {
        state.SkipWithError("no stitches were replaced");
    }
}

void WriteCatalogue(const ProgramContext& context, const char* name, int flosses) {
    AvailColors catalogue(context);
    catalogue.Setheader(name, 1, name, 0);
    CatalogueRow row;
    for (int i = 0; i < flosses; ++i) {
        row.MasterID = i + 1;
        row.FlossID.Set(std::to_string(i * 7 % flosses));
        row.Description.Set("floss of some colour " + std::to_string(i));
        row.Red = static_cast<std::int16_t>(i * 37 % 256);
        row.Green = static_cast<std::int16_t>(i * 101 % 256);
        row.Blue = static_cast<std::int16_t>(i * 53 % 256);
        catalogue.AppendRow(row);
    }
    if (!catalogue.SaveToFile(context.AppPath / "Flosses" / name)) {
        throw std::runtime_error("no catalogue was written");
    }
}

/// From the call to the painted window.
void Open(Pattern& design, MessageDoor& user, SettingsDoor& store, const char* catalogue) {
    frmPalette window({design, user, store, catalogue, 1});
    window.show();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    if (window.backingStore() == nullptr) {
        throw std::runtime_error("the window was not painted");
    }
}

void OpenEditor(benchmark::State& state) {
    constexpr int largestCatalogue = 500;
    constexpr int flosses = 200;
    const Folder folder;
    ProgramContext context;
    context.AppPath = folder / ".";
    std::filesystem::create_directories(folder / "Flosses");
    WriteCatalogue(context, "largest.col", largestCatalogue);
    WriteCatalogue(context, "none.col", 0);
    INIFuncs store(folder / "settings.ini");
    Yes user;
    Pattern full(context);
    full.Initialize(10, 10, 14, 14);
    Pattern empty(context);
    empty.Initialize(10, 10, 14, 14);
    empty.GetPalette().ClearPalette();
    while (full.GetPalette().GetEntriesCount() < flosses) {
        const int i = full.GetPalette().GetEntriesCount();
        full.GetPalette().AddPaletteEntry(static_cast<Colour>(i * 7919), std::to_string(i), "floss",
                                          "DMC", full.GetPalette().GetNextAvailableSymbol(), 2, 1,
                                          0, i, 0, "");
    }
    Ratio(state, 1.5)
        .Measure([&] { Open(empty, user, store, "none.col"); },
                 [&] { Open(full, user, store, "largest.col"); });
}

} // namespace

BENCHMARK(ReplaceFloss)->Apply(AsRatio);
BENCHMARK(OpenEditor)->Apply(AsRatio);

} // namespace zol

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
