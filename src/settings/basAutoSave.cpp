// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/basAutoSave.h"

#include <fstream>
#include <system_error>

#include "model/CodePage.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// The name as the file can hold it. One that the code page cannot hold would come back as the
/// name of another file; without a name the designer is asked where to save.
std::string StorableName(const std::string& fileName) {
    return CodePage::ToUtf8(CodePage::FromUtf8(fileName)) == fileName ? fileName : std::string();
}

} // namespace

basAutoSave::basAutoSave(DesignHolder& open, RunFolder& run, Clock clock)
    : m_open(open),
      m_run(run),
      m_clock(std::move(clock)) {}

std::unique_ptr<OpenDesign> basAutoSave::CheckForRecovery(MessageDoor& messages,
                                                          const DesignMakers& makers) {
    for (const DeadRun& run : m_run.TakeDeadRuns(FileName)) {
        const MessageAnswer answer =
            messages.Ask("Auto Save has detected a pattern for recovery. Do you wish to recover "
                         "previous pattern?",
                         MessageIcon::Question, MessageButtons::YesNo, "Auto Recovery Alert");
        if (answer == MessageAnswer::No) {
            run.Remove();
        }
        if (answer != MessageAnswer::Yes) {
            continue;
        }
        std::unique_ptr<OpenDesign> design = RecoverAutoSave(run.Path() / FileName, makers);
        if (design != nullptr) {
            // It stays until the next save or a clean end, but now as the file of this run. Should
            // the renaming fail, the old place keeps it for the next start.
            std::error_code error;
            fs::rename(run.Path() / FileName, AutoSavePath(), error);
            if (!error) {
                run.Remove();
            }
            return design;
        }
    }
    return nullptr;
}

std::unique_ptr<OpenDesign> basAutoSave::RecoverAutoSave(const fs::path& file,
                                                         const DesignMakers& makers) {
    std::ifstream bytes(file, std::ios::binary);
    if (!bytes) {
        return nullptr;
    }
    try {
        ByteReader stream(bytes);
        const std::string name = Trimmed(stream.ReadString());
        const auto maker = makers.find(static_cast<char>(stream.ReadU8()));
        if (maker == makers.end()) {
            return nullptr;
        }
        std::unique_ptr<OpenDesign> design = maker->second(name, stream);
        if (design != nullptr) {
            design->GetPattern().SetChanged(true);
        }
        return design;
    } catch (const RunTimeError&) {
        return nullptr; // a name that passes the end of the file
    }
}

void basAutoSave::AutoSaveTick(bool force, bool quiet) {
    const auto now = m_clock();
    if (!force && m_lastAutoSave &&
        std::chrono::floor<std::chrono::minutes>(now - *m_lastAutoSave) < Interval) {
        return;
    }
    if (!force && m_view != nullptr && m_view->IsInLongMode()) {
        return;
    }
    if (m_run.Path().empty() || m_open.Design().Cells().empty()) {
        return;
    }
    m_lastAutoSave = now;
    AutoSaveView* const view = quiet ? nullptr : m_view;
    if (view != nullptr) {
        view->SetBusy(true);
    }
    Write();
    if (view != nullptr) {
        view->SetBusy(false);
    }
}

void basAutoSave::Write() const {
    OpenDesign& design = m_open.Get();
    Pattern& pattern = design.GetPattern();
    const QuietScope quiet(pattern.Context());
    const bool changed = pattern.IsChanged();
    ByteWriter stream;
    try {
        stream.WriteString(StorableName(design.FileName()));
        stream.WriteU8(static_cast<std::uint8_t>(design.RecoveryKind()));
        if (design.WriteTo(stream) == ErrNone) {
            (void)SafeFile::Replace(AutoSavePath(), stream.Bytes());
        }
    } catch (const RunTimeError&) {
        // A name longer than its length field can say: no path is.
    }
    pattern.SetChanged(changed);
}

void basAutoSave::ClearAutoSave() const {
    if (!m_run.Path().empty()) {
        std::error_code ignored;
        fs::remove(AutoSavePath(), ignored);
    }
}

} // namespace zol
