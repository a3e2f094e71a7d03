// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneLibrary.h"

#include <dlfcn.h>

#include "import/scan/SaneWords.h"

namespace zol {

namespace {

std::string LastLinkerError() {
    const char* const text = dlerror();
    return text == nullptr ? std::string() : std::string(text);
}

/// True if the library has the operation.
template<typename Operation>
bool Find(void* library, const char* name, Operation& operation) {
    operation = reinterpret_cast<Operation>(dlsym(library, name));
    return operation != nullptr;
}

} // namespace

std::optional<ScanProblem> SaneLibrary::Load() {
    if (m_isLoaded) {
        return std::nullopt;
    }
    // It is never unloaded: drivers leave threads and exit handlers behind that live in it.
    void* const library = dlopen(m_fileName.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        return SaneWords::NoLibrary(m_fileName, LastLinkerError());
    }
    m_isLoaded =
        Find(library, "sane_init", m_sane.Init) && Find(library, "sane_exit", m_sane.Exit) &&
        Find(library, "sane_get_devices", m_sane.GetDevices) &&
        Find(library, "sane_open", m_sane.Open) && Find(library, "sane_close", m_sane.Close) &&
        Find(library, "sane_get_option_descriptor", m_sane.GetOption) &&
        Find(library, "sane_control_option", m_sane.Control) &&
        Find(library, "sane_get_parameters", m_sane.GetParameters) &&
        Find(library, "sane_start", m_sane.Start) && Find(library, "sane_read", m_sane.Read) &&
        Find(library, "sane_cancel", m_sane.Cancel) &&
        Find(library, "sane_strstatus", m_sane.TextOfStatus);
    if (!m_isLoaded) {
        return SaneWords::NoLibrary(m_fileName, LastLinkerError());
    }
    return std::nullopt;
}

std::optional<ScanProblem> SaneLibrary::Begin() {
    if (m_isReady) {
        return std::nullopt;
    }
    if (auto problem = Load()) {
        return problem;
    }
    SANE_Int version = 0;
    const SANE_Status status = m_sane.Init(&version, nullptr);
    if (status != SANE_STATUS_GOOD) {
        return ProblemOf(status);
    }
    m_isReady = true;
    if (SANE_VERSION_MAJOR(version) != SANE_CURRENT_MAJOR) {
        End();
        return SaneWords::NoLibrary(m_fileName, "it is of another major version");
    }
    return std::nullopt;
}

void SaneLibrary::End() {
    if (m_isReady) {
        m_sane.Exit();
        m_isReady = false;
    }
}

SANE_Status SaneLibrary::GetDevices(const SANE_Device*** list) const {
    return m_sane.GetDevices(list, SANE_FALSE);
}

SANE_Status SaneLibrary::Open(const std::string& name, SANE_Handle* handle) const {
    return m_sane.Open(name.c_str(), handle);
}

void SaneLibrary::Close(SANE_Handle handle) const {
    m_sane.Close(handle);
}

const SANE_Option_Descriptor* SaneLibrary::GetOption(SANE_Handle handle, SANE_Int option) const {
    return m_sane.GetOption(handle, option);
}

SANE_Status SaneLibrary::Control(SANE_Handle handle, SANE_Int option, SANE_Action action,
                                 void* value) const {
    // What a change did to other options is of no interest: they are read anew each time.
    SANE_Int effects = 0;
    return m_sane.Control(handle, option, action, value, &effects);
}

SANE_Status SaneLibrary::GetParameters(SANE_Handle handle, SANE_Parameters* answer) const {
    return m_sane.GetParameters(handle, answer);
}

SANE_Status SaneLibrary::Start(SANE_Handle handle) const {
    return m_sane.Start(handle);
}

SANE_Status SaneLibrary::Read(SANE_Handle handle, SANE_Byte* data, SANE_Int room,
                              SANE_Int* length) const {
    return m_sane.Read(handle, data, room, length);
}

void SaneLibrary::Cancel(SANE_Handle handle) const {
    m_sane.Cancel(handle);
}

std::string SaneLibrary::TextOfStatus(SANE_Status status) const {
    return SaneWords::TextOf(m_sane.TextOfStatus(status));
}

ScanProblem SaneLibrary::ProblemOf(SANE_Status status) const {
    return SaneWords::OfStatus(status, TextOfStatus(status));
}

ScanProblem SaneLibrary::ProblemOfOpening(SANE_Status status) const {
    return SaneWords::OfOpening(status, TextOfStatus(status));
}

} // namespace zol
