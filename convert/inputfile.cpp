// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "inputfile.h"

#include <QFile>

#include <algorithm>
#include <cstring>

namespace convert {

namespace {

constexpr size_t blockSize = 1 << 18; // bytes read at once
constexpr size_t mostLineBytes = 1 << 26; // of a line; no recording of 999,999 channels has more

std::unique_ptr<QIODevice> opened(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw Failure(
            Failure::Cause::Input, path.toStdString() + ": " + file->errorString().toStdString());
    return file;
}

} // namespace

InputFile::InputFile(const QString &path) : InputFile(opened(path), path) { }

InputFile::InputFile(std::unique_ptr<QIODevice> device, const QString &name)
    : m_device(std::move(device)), m_name(name.toStdString()), m_buffer(2 * blockSize)
{
}

InputFile::~InputFile() = default;

bool InputFile::nextLine(std::string_view &line)
{
    const void *feed = nullptr;
    for (size_t searched = 0; !feed;) {
        const char *const at = m_buffer.data() + m_begin;
        const size_t there = m_end - m_begin;
        if (there > searched)
            feed = std::memchr(at + searched, '\n', there - searched);
        searched = there;
        if (there > mostLineBytes) {
            ++m_line;
            throw failureOfLine("the line is too long");
        }
        if (!feed && !readMore())
            break;
    }
    if (!feed && m_begin == m_end)
        return false;
    ++m_line;
    const char *const begin = m_buffer.data() + m_begin;
    const char *const end = feed ? static_cast<const char *>(feed) : m_buffer.data() + m_end;
    m_begin = std::min(m_begin + static_cast<size_t>(end - begin) + 1, m_end);
    line = std::string_view(begin, static_cast<size_t>(end - begin));
    if (feed && !line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return true;
}

std::string_view InputFile::nextBytes(size_t count)
{
    while (m_end - m_begin < count && readMore()) { }
    const std::string_view bytes(m_buffer.data() + m_begin, std::min(count, m_end - m_begin));
    m_begin += bytes.size();
    return bytes;
}

Failure InputFile::failureOfLine(const std::string &what) const
{
    return {Failure::Cause::Input, place() + what};
}

Failure InputFile::failureOfFile(const std::string &what) const
{
    return {Failure::Cause::Input, m_name + ": " + what};
}

std::string InputFile::place() const
{
    return m_name + ':' + std::to_string(std::max<std::int64_t>(m_line, 1)) + ": ";
}

// Adds what the file has next to the buffer, in which the rest moves to the front.
bool InputFile::readMore()
{
    const size_t kept = m_end - m_begin;
    if (kept > 0 && m_begin > 0)
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, kept);
    m_begin = 0;
    m_end = kept;
    if (m_buffer.size() - kept < blockSize)
        m_buffer.resize(2 * m_buffer.size());
    const qint64 count = m_device->read(m_buffer.data() + kept, blockSize);
    if (count < 0)
        throw failureOfFile(m_device->errorString().toStdString());
    m_end += static_cast<size_t>(count);
    return count > 0;
}

} // namespace convert
