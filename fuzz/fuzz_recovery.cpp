// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "files/PatternOpener.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "settings/basAutoSave.h"

using namespace zol;

namespace {

/// Recovery reads a file; one of each process holds what comes.
class RecoveryFile {
public:
    RecoveryFile()
        : m_path(std::filesystem::temp_directory_path() /
                 ("korvanta-fuzz-recovery-" + std::to_string(getpid()))) {}
    ~RecoveryFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    RecoveryFile(const RecoveryFile&) = delete;
    RecoveryFile& operator=(const RecoveryFile&) = delete;

    const std::filesystem::path& Write(const char* data, std::size_t size) const {
        std::ofstream file(m_path, std::ios::binary | std::ios::trunc);
        file.write(data, static_cast<std::streamsize>(size));
        file.close();
        if (!file) {
            std::abort();
        }
        return m_path;
    }

private:
    std::filesystem::path m_path;
};

/// What came back counts as changed, has a title, and can be kept for the next recovery.
void Check(OpenDesign& design) {
    ByteWriter again;
    if (!design.GetPattern().IsChanged() || design.WindowTitle().empty() ||
        design.RecoveryKind() != 'P') {
        std::abort();
    }
    if (design.WriteTo(again) != 0) {
        return; // not every pattern that can be read has a place for all of it in a file
    }
    ByteReader stream(again.Bytes());
    if (design.ReadFrom(stream) != 0) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const RecoveryFile file;
    ProgramContext context;
    Pattern pattern(context);
    PatternOpener opener(pattern);
    const DesignMakers makers{{opener.Kind(), [&](const std::string& name, ByteReader& stream) {
                                   return opener.Recover(name, stream).Design;
                               }}};
    const auto& path = file.Write(reinterpret_cast<const char*>(data), size);
    const std::unique_ptr<OpenDesign> design = basAutoSave::RecoverAutoSave(path, makers);
    if (design != nullptr) {
        Check(*design);
    }
    return 0;
}
