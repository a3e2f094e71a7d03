// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/SaneSession.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include "import/PictureOps.h"
#include "import/scan/SaneDevice.h"
#include "import/scan/SaneSettings.h"
#include "import/scan/SaneWords.h"
#include "import/scan/ScanFrames.h"

namespace zol {

namespace {

constexpr int MaxDevices = 1000;
constexpr std::size_t ReadAtOnce = 32768;
// How long to leave a device alone that has nothing to say yet.
constexpr std::chrono::milliseconds Pause{5};

ScanSource SourceOf(const SANE_Device& device) {
    ScanSource source;
    source.Name = device.name;
    const std::string vendor = SaneWords::TextOf(device.vendor);
    const std::string model = SaneWords::TextOf(device.model);
    source.Words = vendor;
    if (!vendor.empty() && !model.empty()) {
        source.Words += ' ';
    }
    source.Words += model;
    if (source.Words.empty()) {
        source.Words = SaneWords::TextOf(device.name);
    }
    return source;
}

/// Two scanners of one make are told apart by what the system calls them.
void TellTwinsApart(std::vector<ScanSource>& sources) {
    const std::vector<ScanSource> plain = sources;
    for (ScanSource& source : sources) {
        const auto same =
            std::count_if(plain.begin(), plain.end(), [&source](const ScanSource& other) {
                return other.Words == source.Words;
            });
        if (same > 1) {
            source.Words += " (" + SaneWords::TextOf(source.Name.c_str()) + ")";
        }
    }
}

struct OpenedDevice {
    std::unique_ptr<SaneDevice> Device;
    ScanProblem Problem;
};

OpenedDevice Open(SaneLibrary& sane, const std::string& source) {
    if (auto problem = sane.Begin()) {
        return {nullptr, std::move(*problem)};
    }
    SANE_Handle handle = nullptr;
    const SANE_Status status = sane.Open(source, &handle);
    if (status != SANE_STATUS_GOOD) {
        return {nullptr, sane.ProblemOfOpening(status)};
    }
    return {std::make_unique<SaneDevice>(sane, handle), {}};
}

/// A scan that has been asked for, frame by frame. SANE wants to hear of its end, however it ends.
class RunningScan {
public:
    RunningScan(const SaneLibrary& sane, SANE_Handle handle, ScanCall& call)
        : m_sane(sane),
          m_handle(handle),
          m_call(call) {}
    ~RunningScan() {
        m_call.SetInterrupt({});
        m_sane.Cancel(m_handle);
    }
    RunningScan(const RunningScan&) = delete;
    RunningScan& operator=(const RunningScan&) = delete;

    /// All frames of one picture.
    [[nodiscard]] std::optional<ScanProblem> ReadPicture(ScanFrames& frames) {
        while (!frames.IsWhole()) {
            if (auto problem = ReadFrame(frames)) {
                // What a cancelled device says of itself is of no interest.
                return m_call.IsCancelled() ? SaneWords::Cancelled() : std::move(problem);
            }
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] std::optional<ScanProblem> ReadFrame(ScanFrames& frames) {
        SANE_Status status = m_sane.Start(m_handle);
        SANE_Parameters parameters{};
        if (status == SANE_STATUS_GOOD) {
            // Only now are they exact.
            status = m_sane.GetParameters(m_handle, &parameters);
        }
        if (status != SANE_STATUS_GOOD) {
            return m_sane.ProblemOf(status);
        }
        if (auto problem = frames.BeginFrame(parameters)) {
            return problem;
        }
        m_call.SetInterrupt([this] { m_sane.Cancel(m_handle); });
        return ReadRows(frames);
    }

    [[nodiscard]] std::optional<ScanProblem> ReadRows(ScanFrames& frames) {
        std::array<SANE_Byte, ReadAtOnce> bytes{};
        while (!m_call.IsCancelled()) {
            SANE_Int length = 0;
            const SANE_Status status =
                m_sane.Read(m_handle, bytes.data(), static_cast<SANE_Int>(bytes.size()), &length);
            if (status == SANE_STATUS_EOF) {
                return frames.EndFrame();
            }
            if (status != SANE_STATUS_GOOD) {
                return m_sane.ProblemOf(status);
            }
            if (length < 0 || static_cast<std::size_t>(length) > bytes.size()) {
                return SaneWords::Damaged("a piece of " + std::to_string(length) + " bytes");
            }
            if (length == 0) {
                std::this_thread::sleep_for(Pause);
            }
            if (auto problem = frames.Take({bytes.data(), static_cast<std::size_t>(length)})) {
                return problem;
            }
            SendFreshRows(frames);
        }
        return SaneWords::Cancelled();
    }

    void SendFreshRows(ScanFrames& frames) {
        const ScanRows rows = frames.TakeFreshRows();
        if (!rows.Pixels.empty()) {
            m_call.Send(rows);
        }
    }

    const SaneLibrary& m_sane;
    SANE_Handle m_handle;
    ScanCall& m_call;
};

/// A picture that no memory would hold is refused before the device moves.
std::optional<ScanProblem> CheckSize(const SaneLibrary& sane, const SaneDevice& device) {
    SANE_Parameters estimate{};
    if (sane.GetParameters(device.Handle(), &estimate) != SANE_STATUS_GOOD || estimate.lines < 1 ||
        estimate.pixels_per_line < 1) {
        return std::nullopt;
    }
    return ScanFrames::Check(estimate);
}

} // namespace

SourcesFound SaneSession::FindSources(SaneLibrary& sane) {
    sane.End();
    if (auto problem = sane.Begin()) {
        return {{}, std::move(*problem)};
    }
    const SANE_Device** list = nullptr;
    const SANE_Status status = sane.GetDevices(&list);
    if (status != SANE_STATUS_GOOD) {
        return {{}, sane.ProblemOf(status)};
    }
    SourcesFound found;
    for (int i = 0; list != nullptr && i < MaxDevices && list[i] != nullptr; ++i) {
        if (list[i]->name != nullptr) {
            found.Sources.push_back(SourceOf(*list[i]));
        }
    }
    TellTwinsApart(found.Sources);
    return found;
}

AbilitiesFound SaneSession::AskAbilities(SaneLibrary& sane, const std::string& source) {
    OpenedDevice opened = Open(sane, source);
    if (!opened.Device) {
        return {{}, std::move(opened.Problem)};
    }
    return {SaneSettings::AbilitiesOf(*opened.Device), {}};
}

ScanResult SaneSession::Acquire(SaneLibrary& sane, const ScanRequest& request, ScanCall& call) {
    OpenedDevice opened = Open(sane, request.Source);
    if (!opened.Device) {
        return {{}, std::move(opened.Problem)};
    }
    const SANE_Status status = SaneSettings::Apply(*opened.Device, request);
    if (status != SANE_STATUS_GOOD) {
        return {{}, sane.ProblemOf(status)};
    }
    if (auto problem = CheckSize(sane, *opened.Device)) {
        return {{}, std::move(*problem)};
    }
    ScanFrames frames;
    {
        RunningScan scan(sane, opened.Device->Handle(), call);
        if (auto problem = scan.ReadPicture(frames)) {
            return {{}, std::move(*problem)};
        }
    }
    ScanResult result{frames.TakePicture(), {}};
    if (!request.Preview) {
        ReduceDepth(result.Image);
    }
    return result;
}

} // namespace zol
