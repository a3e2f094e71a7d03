// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "model/Doors.h"

namespace zol {

class AvailColors;
class Palette;

/// What patterns and palettes need to know of the running program. Made once by whoever starts
/// it and held by reference; a load never moves it. The doors may be null: then nothing is told
/// and nothing can be asked (a question counts as cancelled).
struct ProgramContext {
    std::filesystem::path AppPath; ///< folder that holds "Flosses", "Patterns", "Default.fls"

    int StitchStrands = 2;     ///< default strands for stitches
    int BackStitchStrands = 2; ///< default strands for backstitches

    std::string DefaultAuthor;
    std::string DefaultTitle;
    std::string DefaultCopyright;
    std::string DefaultFabric;

    std::string SymbolFontName = "Korvanta Symbols";
    bool SymbolFontBold = false;
    bool SymbolFontItalic = false;
    /// Character set of a font by name; a program without fonts leaves it empty, which gives 0.
    std::function<int(const std::string&)> FontCharSet;

    bool BritishSpelling = false;
    int ColorDepth = 24;              ///< bits per pixel of the display
    std::uint8_t FrenchKnotStyle = 0; ///< Orientation of new knots; set and put back by copies

    /// Refresh the RGB values of a new pattern's palette from the current catalogue.
    bool RecolorPatterns = false;
    /// The current catalogue; null until one is loaded.
    std::shared_ptr<AvailColors> CurrentCatalogue;
    /// "dmc.col", from which old palettes take their master identities; null until one asks.
    std::shared_ptr<AvailColors> MappingCatalogue;
    /// What "Default.fls" gave at the start; null: palettes start with the built-in list.
    std::shared_ptr<const Palette> StartupPalette;

    MessageDoor* Messages = nullptr;
    ProgressDoor* Progress = nullptr;
    SymbolDoor* Symbols = nullptr;

    [[nodiscard]] std::string ColorWord() const { return BritishSpelling ? "Colour" : "Color"; }
    [[nodiscard]] std::string GrayWord() const { return BritishSpelling ? "Grey" : "Gray"; }

    void Tell(const std::string& text, MessageIcon icon, const std::string& title = {}) const {
        if (Messages != nullptr) {
            Messages->Tell(text, icon, title);
        }
    }
};

/// Keeps the message door shut for a while: for work whose failures the caller words, or ignores.
class QuietScope {
public:
    explicit QuietScope(ProgramContext& context)
        : m_context(context),
          m_saved(std::exchange(context.Messages, nullptr)) {}
    ~QuietScope() { m_context.Messages = m_saved; }
    QuietScope(const QuietScope&) = delete;
    QuietScope& operator=(const QuietScope&) = delete;

private:
    ProgramContext& m_context;
    MessageDoor* m_saved;
};

} // namespace zol
