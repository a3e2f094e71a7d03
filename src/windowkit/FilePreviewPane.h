// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <filesystem>
#include <functional>

#include "model/Doors.h"
#include "windowkit/LatestJob.h"

class QFileDialog;
class QLabel;

namespace zol {

/// Shows what is in the file that a dialog's selection stands on. The pictures are made beside the
/// dialog, which stays usable whatever the file holds.
class FilePreviewPane : public QWidget {
    Q_OBJECT

public:
    /// Pixels of the screen that a preview takes at most, each way.
    static constexpr int Side = 240;
    using Maker = std::function<FilePreview(const std::filesystem::path&, ProgressDoor&)>;

    /// Puts one beside the dialog's files. The platform's own dialog has no room for it, so the
    /// dialog becomes Qt's.
    static void AddTo(QFileDialog& dialog, Maker maker);

private:
    FilePreviewPane(Maker maker, QWidget* parent);
    void ShowFile(const QString& file);
    void Show(const FilePreview& preview);

    Maker m_maker;
    QLabel* m_picture = nullptr;
    QLabel* m_words = nullptr;
    LatestJob m_job;
};

} // namespace zol
