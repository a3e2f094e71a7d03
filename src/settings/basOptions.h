// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "model/Doors.h"
#include "model/ProgramContext.h"
#include "settings/Options.h"

namespace zol::basOptions {

/// The record's built-in defaults: every row's own, with folders below `context.AppPath`.
[[nodiscard]] Options BuiltInOptions(const ProgramContext& context);

/// Reads every option from the store, section by section. The default floss file is loaded into
/// `context.CurrentCatalogue` as soon as "Options" has named it, and the rest of the context
/// takes its values at the end. No value is created by reading, except that the folders of
/// custom stitches and stitched fonts come into being where they can.
[[nodiscard]] Options LoadOptions(const SettingsDoor& store, ProgramContext& context);

/// Writes the options that the options dialog edits, and no others, as defaults of later runs.
void SaveOptions(const Options& options, SettingsDoor& store);

/// Writes one of them by its section and name in the store.
void SaveOption(const Options& options, SettingsDoor& store, std::string_view section,
                std::string_view name);
/// Writes the print styles of stitches and lines.
void SavePrintStyles(const Options& options, SettingsDoor& store);

/// What choices in the record lead to: colours by their indexes, the floss file's catalogue, the
/// context.
void FollowChoices(const SettingsDoor& store, Options& options, ProgramContext& context);

/// Gives the context what patterns and palettes need of the options.
void ApplyOptions(const Options& options, ProgramContext& context);

} // namespace zol::basOptions
