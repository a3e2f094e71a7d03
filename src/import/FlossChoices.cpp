// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/FlossChoices.h"

#include <algorithm>
#include <system_error>

#include "flosses/AvailColors.h"
#include "flosses/CatalogueList.h"
#include "flosses/Palette.h"
#include "import/ImportSession.h"
#include "model/CodePage.h"
#include "model/ProgramContext.h"
#include "model/SafeFile.h"

namespace zol::FlossChoices {

namespace fs = std::filesystem;

std::vector<FlossChoice> Families(const ProgramContext& context) {
    std::vector<FlossChoice> lines;
    for (const CatalogueName& catalogue : ListCatalogues(context)) {
        lines.push_back({catalogue.Name, CataloguePath(context, catalogue.FileName)});
    }
    return lines;
}

std::vector<FlossChoice> Palettes(const ProgramContext& context) {
    std::vector<FlossChoice> lines;
    std::error_code error;
    for (const fs::directory_entry& item : fs::directory_iterator(context.AppPath, error)) {
        std::error_code unreadable;
        if (item.is_regular_file(unreadable) &&
            LowerCase(PathText(item.path().extension())) == ".fls") {
            lines.push_back({PathText(item.path().filename()), item.path()});
        }
    }
    std::sort(lines.begin(), lines.end(), [](const FlossChoice& a, const FlossChoice& b) {
        const std::string lowerA = LowerCase(a.Text);
        const std::string lowerB = LowerCase(b.Text);
        return lowerA != lowerB ? lowerA < lowerB : a.Text < b.Text;
    });
    lines.resize(std::min(lines.size(), MostPalettes));
    lines.insert(lines.begin(), {CurrentPalette, {}});
    return lines;
}

bool ChooseFamily(ImportSession& session, const ProgramContext& context, const FlossChoice& line) {
    AvailColors catalogue(context);
    if (!catalogue.Initialize(line.File)) {
        session.ChooseNothing();
        return false;
    }
    session.ChooseCatalogue(catalogue);
    return true;
}

bool ChoosePalette(ImportSession& session, ProgramContext& context, const FlossChoice& line,
                   const Palette& patternPalette) {
    if (line.File.empty()) {
        session.ChooseCurrentPalette(patternPalette);
        return true;
    }
    const QuietScope quiet(context); // the caller words the failure
    Palette palette = Palette::Empty(context);
    // Files of the oldest form are loaded and yet answered with false.
    if (!palette.LoadFromDisk(line.File) && palette.GetEntriesCount() == 0) {
        session.ChooseNothing();
        return false;
    }
    session.ChoosePalette(palette);
    return true;
}

} // namespace zol::FlossChoices
