// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cerrno>
#include <fstream>
#include <new>
#include <utility>

#include "model/Pattern.h"
#include "model/PatternReader.h"
#include "model/PatternWriter.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// Runs `work` and answers its number; an error that it throws is shown and its number answered.
/// A wrong checksum is the caller's to word.
template<typename Work>
int Guarded(const ProgramContext& context, Work work) {
    try {
        return work();
    } catch (const RunTimeError& error) {
        if (error.Number() != ErrChecksumMismatch) {
            context.Tell(error.what(), MessageIcon::Exclamation);
        }
        return error.Number();
    } catch (const std::bad_alloc&) {
        context.Tell(RunTimeErrorText(ErrOutOfMemory), MessageIcon::Exclamation);
        return ErrOutOfMemory;
    }
}

void ThrowIfError(int number) {
    if (number != ErrNone) {
        throw RunTimeError(number);
    }
}

/// Streams of earlier releases. None of them is read so far, so every such file is foreign; the
/// caller words that.
int LoadRel5Pattern() {
    return ErrInvalidFormat;
}

} // namespace

int Pattern::Load(const fs::path& fileName) {
    const std::string name = PathText(fileName);
    return Guarded(*m_context, [&]() -> int {
        std::error_code error;
        const fs::file_status status = fs::status(fileName, error);
        if (status.type() == fs::file_type::not_found) {
            m_context->Tell("The file " + name + " does not exist. Open Failed.",
                            MessageIcon::Stop);
            return ErrNoSuchFile;
        }
        ThrowIfError(SafeFile::ErrorNumberOf(error.value()));
        if (!fs::is_regular_file(status)) {
            throw RunTimeError(ErrPathAccess);
        }
        std::ifstream file(fileName, std::ios::binary);
        if (!file) {
            throw RunTimeError(SafeFile::ErrorNumberOf(errno));
        }
        ByteReader stream(file);
        PatternReader reader(stream, 1, 0);
        if (!reader.ReadMagic()) {
            return LoadRel5Pattern();
        }
        Pattern fresh = reader.ReadPattern(*m_context);
        fresh.FileName = name;
        TakeContentOf(fresh);
        return ErrNone;
    });
}

int Pattern::Load(const std::string& fileName, ByteReader& stream, std::uint64_t offset,
                  std::uint64_t end) {
    return Guarded(*m_context, [&]() -> int {
        PatternReader reader(stream, offset != 0 ? offset : stream.Position(), end);
        if (!reader.ReadMagic()) {
            throw RunTimeError(ErrInvalidFormat);
        }
        Pattern fresh = reader.ReadPattern(*m_context);
        fresh.FileName = fileName;
        TakeContentOf(fresh);
        return ErrNone;
    });
}

int Pattern::Save(const fs::path& fileName, const fs::path& backup) {
    const std::string oldName = FileName;
    if (!fileName.empty()) {
        FileName = PathText(fileName);
    }
    const bool paletteChanged = m_palette.IsChanged();
    const int number = Guarded(*m_context, [&]() -> int {
        if (FileName.empty()) {
            throw RunTimeError(ErrPathAccess);
        }
        const std::vector<std::uint8_t> bytes = PatternWriter::Write(*this);
        ThrowIfError(SafeFile::Replace(PathOf(FileName), bytes, backup));
        SetChanged(false);
        return ErrNone;
    });
    if (number != ErrNone) {
        // Writing the palette block has taken its flag for saved.
        m_palette.SetChanged(paletteChanged);
        // Nothing stands under the new name, so the next save has to find the old one.
        FileName = oldName;
    }
    return number;
}

int Pattern::Save(const std::string& fileName, ByteWriter& stream, std::uint64_t offset) {
    const std::string oldName = std::exchange(FileName, fileName);
    const bool paletteChanged = m_palette.IsChanged();
    const int number = Guarded(*m_context, [&]() -> int {
        const std::uint64_t start = offset != 0 ? offset : stream.Position();
        ByteWriter fresh = PatternWriter::WriteStream(*this);
        if (start == 1 && stream.Bytes().empty()) {
            stream = std::move(fresh);
        } else {
            stream.Seek(start);
            stream.WriteBytes(fresh.Bytes());
        }
        // As if the checksum had been put in last.
        stream.Seek(start + PatternHeader::Size);
        SetChanged(false);
        return ErrNone;
    });
    if (number != ErrNone) {
        m_palette.SetChanged(paletteChanged);
        FileName = oldName;
    }
    return number;
}

} // namespace zol
