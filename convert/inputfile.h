// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "failure.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QIODevice;

namespace convert {

// A file that is read once, from its beginning to its end, in lines or in blocks of bytes. What it
// hands out stays until the next call. Where the file cannot be read, calls throw a Failure.
class InputFile {
public:
    explicit InputFile(const QString &path);
    // An open device that stands for a file of that name.
    InputFile(std::unique_ptr<QIODevice> device, const QString &name);
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    // The next line without its LF or CR LF; false at the end of the file.
    bool nextLine(std::string_view &line);
    // The next bytes, so many or, at the end of the file, fewer.
    std::string_view nextBytes(size_t count);

    // What is wrong with the line that was read last, or with the file.
    Failure failureOfLine(const std::string &what) const;
    Failure failureOfFile(const std::string &what) const;
    // "FILE:LINE: ", of the line that was read last; of an empty file, its first line.
    std::string place() const;

private:
    bool readMore();

    std::unique_ptr<QIODevice> m_device;
    std::string m_name; // in UTF-8
    std::vector<char> m_buffer;
    size_t m_begin = 0; // of what is in the buffer and was not handed out
    size_t m_end = 0;
    std::int64_t m_line = 0; // number of the line read last, from 1 on
};

} // namespace convert
