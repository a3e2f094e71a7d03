// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/editing/MyColors.h"

#include <unistd.h>

#include <filesystem>

#include "flosses/AvailColors.h"
#include "flosses/CatalogueList.h"
#include "flosses/HSLFuncs.h"

namespace zol::MyColors {

namespace {

constexpr std::int32_t userBaseID = 10000;
/// 30 December 1899, from which dates count, to 1 January 1970.
constexpr double epochDays = 25569;

double DaysOf(std::chrono::system_clock::time_point now) {
    using Days = std::chrono::duration<double, std::ratio<86400>>;
    return epochDays + std::chrono::duration_cast<Days>(now.time_since_epoch()).count();
}

} // namespace

bool CanSave(const ProgramContext& context) {
    const std::filesystem::path folder = CatalogueFolder(context);
    std::error_code ignored;
    return std::filesystem::is_directory(folder, ignored) &&
           ::access(folder.c_str(), W_OK | X_OK) == 0;
}

bool Save(const ProgramContext& context, const CustomFloss& floss,
          std::chrono::system_clock::time_point now) {
    const std::filesystem::path file = CataloguePath(context, FileName);
    AvailColors catalogue(context);
    std::error_code failed;
    if (std::filesystem::exists(file, failed) || failed) {
        if (!catalogue.Initialize(file)) {
            return false;
        }
    } else {
        catalogue.Setheader(LongName, userBaseID, ShortName, DaysOf(now));
    }
    catalogue.AddEntry(0, Trimmed(floss.Description), Trimmed(floss.FlossID),
                       HSLFuncs::RedOf(floss.RGB), HSLFuncs::GreenOf(floss.RGB),
                       HSLFuncs::BlueOf(floss.RGB), catalogue.GetFlossCount() + 1, 0, 0, {});
    return catalogue.SaveToFile(file);
}

} // namespace zol::MyColors
