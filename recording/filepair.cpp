// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filepair.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>

namespace {

// Bytes: on most systems a name has up to 255, of which a temporary one takes seven.
constexpr int longestName = 248;
// What a buffer could not write at the end would be lost: the toolkit does not tell of it and
// replaces the file all the same.
constexpr QIODevice::OpenMode anew = QIODevice::WriteOnly | QIODevice::Unbuffered;
constexpr QIODevice::OpenMode asItIs = anew | QIODevice::Append | QIODevice::ExistingOnly;

struct Target {
    const NewFile &wanted;
    const bool isThere; // as a file, before anything is written
    std::unique_ptr<QFileDevice> file; // null where it cannot be opened

    QSaveFile *replacement() const { return qobject_cast<QSaveFile *>(file.get()); }
    WriteOutcome failure() const { return {wanted.path, file->errorString()}; }
};

// A file that takes its place when it is committed, or, where its folder takes no new file, the
// file itself with its contents still in it. Folders and devices are not opened, also those behind
// a link: they would be replaced by a file. A way through a folder that is not there is none, even
// where it turns back: the replacement would be made, but could not take its place.
std::unique_ptr<QFileDevice> opened(const QString &path)
{
    const QFileInfo there(path);
    if ((there.exists() && !there.isFile()) || !QFileInfo(there.path()).isDir()
        || QFile::encodeName(there.fileName()).size() > longestName)
        return nullptr;
    auto inPlace = std::make_unique<QFile>(path);
    if (there.exists() && !inPlace->open(asItIs))
        return nullptr;
    auto replacement = std::make_unique<QSaveFile>(path);
    if (replacement->open(anew))
        return replacement;
    const QFileInfo folder(QFileInfo(there.canonicalFilePath()).path());
    if (inPlace->isOpen() && !folder.isWritable())
        return inPlace;
    return nullptr;
}

Target target(const NewFile &wanted)
{
    const bool isThere = QFileInfo(wanted.path).isFile();
    return {wanted, isThere, opened(wanted.path)};
}

bool write(const Target &target)
{
    if (!target.replacement())
        target.file->resize(0);
    target.wanted.write(*target.file);
    return target.file->error() == QFileDevice::NoError;
}

// Takes the contents of a file aside, to be committed where they must come back.
WriteOutcome copyAside(const QString &path, QSaveFile &copy)
{
    constexpr qint64 blockSize = 1 << 18; // bytes
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {path, file.errorString()};
    if (!copy.open(anew))
        return {path, copy.errorString()};
    for (QByteArray part; !(part = file.read(blockSize)).isEmpty();)
        writeAll(copy, part.constData(), part.size());
    for (const QFileDevice *device : std::initializer_list<const QFileDevice *>{&file, &copy}) {
        if (device->error() != QFileDevice::NoError)
            return {path, device->errorString()};
    }
    return {};
}

// Of a first file whose second one cannot follow, what was there comes back.
WriteOutcome putInPlace(const Target &first, const Target &second)
{
    QSaveFile former(first.wanted.path);
    const bool areBothReplaced = first.replacement() && second.replacement();
    if (areBothReplaced && first.isThere) {
        WriteOutcome outcome = copyAside(first.wanted.path, former);
        if (outcome.hasFailed())
            return outcome;
    }
    if (first.replacement() && !first.replacement()->commit())
        return first.failure();
    if (second.replacement() && !second.replacement()->commit()) {
        if (former.isOpen())
            former.commit();
        else if (areBothReplaced)
            QFile::remove(QFileInfo(first.wanted.path).canonicalFilePath());
        return second.failure();
    }
    return {};
}

} // namespace

// A file that took a part of a text has no error until the rest is tried.
void writeAll(QFileDevice &file, const char *text, qint64 size)
{
    while (size > 0 && file.error() == QFileDevice::NoError) {
        const qint64 count = std::max<qint64>(file.write(text, size), 0);
        text += count;
        size -= count;
    }
}

WriteOutcome replaceFile(const QString &path, const QByteArray &contents)
{
    QSaveFile file(path);
    if (file.open(anew)) {
        writeAll(file, contents.constData(), contents.size());
        if (file.error() == QFileDevice::NoError && file.commit())
            return {};
    }
    return {path, file.errorString()};
}

WriteOutcome writePair(const NewFile &first, const NewFile &second)
{
    const std::array<Target, 2> targets{target(first), target(second)};
    const bool areBothThere = targets[0].isThere && targets[1].isThere;
    if (areBothThere && (!targets[0].file || !targets[1].file))
        return {};
    // Before contents in place go, the new file beside them must be complete.
    for (const bool isReplaced : {true, false}) {
        for (const Target &target : targets) {
            if (target.file && (target.replacement() != nullptr) == isReplaced && !write(target))
                return target.failure();
        }
    }
    return putInPlace(targets[0], targets[1]);
}
