// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/CheckedOutput.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "model/SafeFile.h"

namespace zol {

namespace {

constexpr qsizetype BufferSize = 256 * 1024;

} // namespace

CheckedOutput::~CheckedOutput() {
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

int CheckedOutput::CreateFile(const std::filesystem::path& path) {
    return Open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC);
}

int CheckedOutput::OpenDevice(const std::filesystem::path& path) {
    return Open(path, O_WRONLY | O_CLOEXEC);
}

int CheckedOutput::Open(const std::filesystem::path& path, int flags) {
    m_handle = ::open(path.c_str(), flags, 0666);
    if (m_handle < 0) {
        m_systemError = errno;
    } else {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    return ErrorNumber();
}

int CheckedOutput::ErrorNumber() const {
    return SafeFile::ErrorNumberOf(m_systemError);
}

qint64 CheckedOutput::readData(char* data, qint64 maxSize) {
    Q_UNUSED(data)
    Q_UNUSED(maxSize)
    return -1;
}

qint64 CheckedOutput::writeData(const char* data, qint64 size) {
    m_buffer.append(data, static_cast<qsizetype>(size));
    if (m_buffer.size() >= BufferSize) {
        Flush();
    }
    return m_systemError == 0 ? size : -1;
}

void CheckedOutput::Flush() {
    const char* next = m_buffer.constData();
    auto left = static_cast<std::size_t>(m_buffer.size());
    while (left > 0 && m_systemError == 0) {
        const ssize_t done = ::write(m_handle, next, left);
        if (done > 0) {
            next += done;
            left -= static_cast<std::size_t>(done);
        } else if (done < 0 && errno != EINTR) {
            m_systemError = errno;
        }
    }
    m_buffer.clear();
}

int CheckedOutput::Finish() {
    if (m_handle < 0) {
        return ErrorNumber();
    }
    Flush();
    close();
    const int closed = ::close(m_handle);
    m_handle = -1;
    if (closed != 0 && m_systemError == 0) {
        m_systemError = errno;
    }
    return ErrorNumber();
}

} // namespace zol
