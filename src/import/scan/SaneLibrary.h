// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <sane/sane.h>

#include <optional>
#include <string>

#include "import/scan/ScannerDoor.h"

namespace zol {

/// SANE as the running system has it: its library, looked for when Begin is first called, and the
/// operations found in it. Belongs to one thread, since SANE may be called by one only; the
/// exception is Cancel, which SANE lets anybody call while the handle is open.
class SaneLibrary {
public:
    /// `fileName` as the dynamic linker takes it.
    explicit SaneLibrary(std::string fileName) : m_fileName(std::move(fileName)) {}
    ~SaneLibrary() { End(); }
    SaneLibrary(const SaneLibrary&) = delete;
    SaneLibrary& operator=(const SaneLibrary&) = delete;

    /// Makes SANE ready, if it isn't; what keeps it from being so, otherwise.
    [[nodiscard]] std::optional<ScanProblem> Begin();
    /// SANE forgets what it knows of devices: many drivers look for them only as it begins. No
    /// handle may be open.
    void End();

    // From here on: only between Begin and End.

    [[nodiscard]] SANE_Status GetDevices(const SANE_Device*** list) const;
    [[nodiscard]] SANE_Status Open(const std::string& name, SANE_Handle* handle) const;
    void Close(SANE_Handle handle) const;
    [[nodiscard]] const SANE_Option_Descriptor* GetOption(SANE_Handle handle,
                                                          SANE_Int option) const;
    [[nodiscard]] SANE_Status Control(SANE_Handle handle, SANE_Int option, SANE_Action action,
                                      void* value) const;
    [[nodiscard]] SANE_Status GetParameters(SANE_Handle handle, SANE_Parameters* answer) const;
    [[nodiscard]] SANE_Status Start(SANE_Handle handle) const;
    [[nodiscard]] SANE_Status Read(SANE_Handle handle, SANE_Byte* data, SANE_Int room,
                                   SANE_Int* length) const;
    void Cancel(SANE_Handle handle) const;

    [[nodiscard]] ScanProblem ProblemOf(SANE_Status status) const;
    [[nodiscard]] ScanProblem ProblemOfOpening(SANE_Status status) const;

private:
    struct Operations {
        decltype(&sane_init) Init = nullptr;
        decltype(&sane_exit) Exit = nullptr;
        decltype(&sane_get_devices) GetDevices = nullptr;
        decltype(&sane_open) Open = nullptr;
        decltype(&sane_close) Close = nullptr;
        decltype(&sane_get_option_descriptor) GetOption = nullptr;
        decltype(&sane_control_option) Control = nullptr;
        decltype(&sane_get_parameters) GetParameters = nullptr;
        decltype(&sane_start) Start = nullptr;
        decltype(&sane_read) Read = nullptr;
        decltype(&sane_cancel) Cancel = nullptr;
        decltype(&sane_strstatus) TextOfStatus = nullptr;
    };

    [[nodiscard]] std::optional<ScanProblem> Load();
    [[nodiscard]] std::string TextOfStatus(SANE_Status status) const;

    std::string m_fileName;
    Operations m_sane;
    bool m_isLoaded = false;
    bool m_isReady = false;
};

} // namespace zol
