// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <sane/sane.h>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace zol::test {

/// One option of the fake device.
struct FakeOption {
    std::string Name;
    SANE_Value_Type Type = SANE_TYPE_INT;
    SANE_Unit Unit = SANE_UNIT_NONE;
    SANE_Word Word = 0;                ///< its value, if it is a number or a flag
    std::string Text;                  ///< its value, if it is a text
    std::optional<SANE_Range> Range{}; ///< a constraint, as are the next two
    std::vector<SANE_Word> Words{};    ///< without their number
    std::vector<const char*> Texts{};  ///< without the null at the end
    SANE_Int Cap = SANE_CAP_SOFT_SELECT | SANE_CAP_SOFT_DETECT;
    SANE_Int Size = static_cast<SANE_Int>(sizeof(SANE_Word));
};

/// One frame: what the device says of it and what it sends.
struct FakeFrame {
    SANE_Parameters Parameters{};
    std::vector<SANE_Byte> Bytes;
    SANE_Status End = SANE_STATUS_EOF; ///< once the bytes are gone
};

/// A SANE library with one device, that does whatever a test wants of a driver, also what no
/// driver should. The library holds one of these; a test gets at it by the operation
/// `fake_sane` and sets it up before any call.
struct FakeSane {
    enum class Place { Nowhere, GetDevices, Read };

    SANE_Int Version = SANE_VERSION_CODE(1, 0, 0);
    SANE_Status OfInit = SANE_STATUS_GOOD;
    SANE_Status OfGetDevices = SANE_STATUS_GOOD;
    SANE_Status OfOpen = SANE_STATUS_GOOD;
    SANE_Status OfStart = SANE_STATUS_GOOD;
    std::vector<SANE_Device> Devices;
    std::vector<FakeOption> Options;
    std::vector<FakeFrame> Frames;
    std::optional<SANE_Int> ReadLength; ///< a lie about how much was read
    int EmptyReads = 0;                 ///< reads that bring nothing, before the first bytes
    Place HangsIn = Place::Nowhere;     ///< until let go
    bool CancelLetsGo = false;          ///< a cancel is enough

    // What was done with it.

    std::set<std::thread::id> Threads; ///< that called, but for a cancel
    int Inits = 0;
    int Exits = 0;
    int Opens = 0;
    int Closes = 0;
    int Starts = 0;
    int Cancels = 0;
    std::vector<std::string> Sets; ///< "mode=Color", in order

    std::mutex Mutex;
    std::condition_variable Changed;
    bool IsHanging = false;

    void LetGo() {
        const std::lock_guard lock(Mutex);
        HangsIn = Place::Nowhere;
        Changed.notify_all();
    }
    /// Waits until no device stands open; calls that were left may still be on their way out.
    void AwaitAllClosed() {
        std::unique_lock lock(Mutex);
        Changed.wait(lock, [this] { return Closes == Opens; });
    }
    void AwaitExit() {
        std::unique_lock lock(Mutex);
        Changed.wait(lock, [this] { return Exits == Inits; });
    }
    [[nodiscard]] const FakeOption* Find(const std::string& name) const {
        for (const FakeOption& option : Options) {
            if (option.Name == name) {
                return &option;
            }
        }
        return nullptr;
    }
};

} // namespace zol::test
