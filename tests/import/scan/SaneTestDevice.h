// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <dlfcn.h>

#include <cstdlib>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>

#include "support/TempFolder.h"

namespace zol::test {

/// The scanner that SANE brings for tests of programs like ours, and no other: SANE is told to
/// look for its settings in a folder of this process. There it reads them anew whenever scanners
/// are looked for. To be made before SANE is first used, the user's own settings stay unread.
class SaneTestDevice {
public:
    using Settings = std::initializer_list<std::pair<std::string, std::string>>;

    static constexpr const char* Name = "test:0";

    /// `settings` over the device's own: black pictures in gray of 8 bits, 50 dots an inch, an area
    /// of 80 by 100 of 200 by 200 millimetres.
    SaneTestDevice(Settings settings = {}) {
        std::map<std::string, std::string> all{{"number_of_devices", "1"},
                                               {"mode", "Gray"},
                                               {"depth", "8"},
                                               {"resolution", "50.0"},
                                               {"resolution_min", "1.0"},
                                               {"resolution_max", "1200.0"},
                                               {"resolution_quant", "1.0"},
                                               {"hand-scanner", "false"},
                                               {"three-pass", "false"},
                                               {"three-pass-order", "RGB"},
                                               {"test-picture", "\"Solid black\""},
                                               {"read-limit", "false"},
                                               {"read-delay", "false"},
                                               {"read-status-code", "\"Default\""},
                                               {"fuzzy-parameters", "false"},
                                               {"ppl-loss", "0"},
                                               {"geometry_min", "0.0"},
                                               {"geometry_max", "200.0"},
                                               {"geometry_quant", "1.0"}};
        for (const auto& [name, value] : settings) {
            all[name] = value;
        }
        std::string text;
        for (const auto& [name, value] : all) {
            text.append(name).append(" ").append(value).append("\n");
        }
        WriteFile(Folder() / "test.conf", text);
        WriteFile(Folder() / "dll.conf", "test\n");
        static const bool isKept = KeepDriver();
        static_cast<void>(isKept);
    }

private:
    /// SANE unloads a driver when it ends, and what the driver then leaves behind the leak checker
    /// could tell from no leak of ours. So it stays in memory.
    static bool KeepDriver() {
        void* const sane = dlopen("libsane.so.1", RTLD_NOW | RTLD_LOCAL);
        if (sane == nullptr) {
            return false;
        }
        const auto init = reinterpret_cast<int (*)(int*, void*)>(dlsym(sane, "sane_init"));
        const auto look = reinterpret_cast<int (*)(void*, int)>(dlsym(sane, "sane_get_devices"));
        const auto end = reinterpret_cast<void (*)()>(dlsym(sane, "sane_exit"));
        void* devices = nullptr;
        init(nullptr, nullptr);
        look(&devices, 1);
        const bool isKept =
            dlopen("libsane-test.so.1", RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE) != nullptr;
        end();
        return isKept;
    }
    /// One for the whole process, since SANE asks for it once.
    static const TempFolder& Folder() {
        static const TempFolder folder;
        static const bool isSet = setenv("SANE_CONFIG_DIR", folder.Path().c_str(), 1) ==
                                  0; // NOLINT(concurrency-mt-unsafe)
        static_cast<void>(isSet);
        return folder;
    }
};

} // namespace zol::test
