// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/FileCommandsView.h"

namespace zol {

/// Shows the wait cursor for as long as it lives.
class FileBusyScope {
public:
    explicit FileBusyScope(FileCommandsView& view) : m_view(view) { m_view.SetBusy(true); }
    ~FileBusyScope() { m_view.SetBusy(false); }
    FileBusyScope(const FileBusyScope&) = delete;
    FileBusyScope& operator=(const FileBusyScope&) = delete;

private:
    FileCommandsView& m_view;
};

} // namespace zol
