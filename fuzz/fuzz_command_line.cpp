// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "files/CommandLineFile.h"

using namespace zol;

namespace {

/// A name is a piece of the text, and cleaning does not lengthen it either.
void Check(const std::string& text) {
    const std::string name = CommandLineText::FileNameOf(text);
    if (text.find(name) == std::string::npos) {
        std::abort();
    }
    const std::string clean = CommandLineText::CleanFileName(name);
    const std::string bare = CommandLineText::FileNameOnly(clean);
    if (clean.size() > name.size() || bare.find('/') != std::string::npos ||
        !clean.ends_with(bare)) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    (void)CommandLineText::WantsPatternViewer(text);
    Check(text);
    return 0;
}
