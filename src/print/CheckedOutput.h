// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>

#include <filesystem>

namespace zol {

/// A file to write to that remembers the first error. A PDF writer takes no notice of failed
/// writes, so the file has to.
class CheckedOutput : public QIODevice {
public:
    CheckedOutput() = default;
    ~CheckedOutput() override;
    Q_DISABLE_COPY_MOVE(CheckedOutput)

    /// A new file, which must not exist yet. 0 or a run-time error number, as for the others.
    [[nodiscard]] int CreateFile(const std::filesystem::path& path);
    /// A device or pipe that is there.
    [[nodiscard]] int OpenDevice(const std::filesystem::path& path);
    /// Writes what is buffered and closes; the first error of all.
    [[nodiscard]] int Finish();
    [[nodiscard]] int ErrorNumber() const;

    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    [[nodiscard]] int Open(const std::filesystem::path& path, int flags);
    void Flush();

    int m_handle = -1;
    int m_systemError = 0;
    QByteArray m_buffer;
};

} // namespace zol
