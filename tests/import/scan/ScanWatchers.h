// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "import/scan/ScannerDoor.h"

namespace zol::test {

/// Lets a scan go on until so many rows have come, and keeps what came.
class KeepingWatcher : public ScanWatcher {
public:
    explicit KeepingWatcher(int cancelAfterRows = -1) : m_cancelAfterRows(cancelAfterRows) {}

    bool MayGoOn() override { return m_cancelAfterRows < 0 || rows < m_cancelAfterRows; }
    void TakeRows(const ScanRows& came) override {
        ++calls;
        const int count = static_cast<int>(came.Pixels.size()) / came.Width;
        rows = came.First + count;
        heights.push_back(came.Height);
        shares.push_back(came.Share);
        pixels.resize(static_cast<std::size_t>(came.First) * static_cast<std::size_t>(came.Width));
        pixels.insert(pixels.end(), came.Pixels.begin(), came.Pixels.end());
    }

    int calls = 0;
    int rows = 0; ///< that are there
    std::vector<int> heights;
    std::vector<double> shares;
    std::vector<Colour> pixels; ///< as they came last

private:
    int m_cancelAfterRows;
};

/// Cancels as soon as it is asked.
class NeverWatcher : public ScanWatcher {
public:
    bool MayGoOn() override { return false; }
};

} // namespace zol::test
