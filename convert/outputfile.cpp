// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "outputfile.h"

#include "failure.h"

#include <QFileInfo>
#include <QRandomGenerator>

#include <filesystem>

namespace convert {

namespace {

std::filesystem::path nativePath(const QString &path)
{
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

// Where a link leads to, so that the link stays.
QString target(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

// A name beside a file that nothing else is likely to take.
QString nameBeside(const QString &path)
{
    constexpr int base = 36;
    const quint32 number = QRandomGenerator::global()->generate();
    return path + QLatin1Char('.') + QString::number(number, base) + QLatin1String(".part");
}

QString messageOf(const std::error_code &error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

const QString existsAlready = QStringLiteral("the file exists already, see --force");

} // namespace

OutputFile::OutputFile(const QString &path, Existing existing)
    : m_path(path), m_existing(existing), m_file(nameBeside(target(path)))
{
    const QFileInfo there(path);
    if (there.exists() && existing == Existing::Keep)
        fail(existsAlready);
    if (there.exists() && !there.isFile())
        fail(QStringLiteral("this is no file that can be replaced"));
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        fail(m_file.errorString());
}

OutputFile::~OutputFile()
{
    m_file.remove();
    if (!m_former.isEmpty())
        QFile::remove(m_former);
}

void OutputFile::complete()
{
    flush();
    m_file.close();
    if (m_file.error() != QFileDevice::NoError)
        fail(m_file.errorString());
}

void OutputFile::putInPlace()
{
    const std::filesystem::path beside = nativePath(m_file.fileName());
    const std::filesystem::path place = nativePath(target(m_path));
    std::error_code error;
    if (m_existing == Existing::Keep) {
        // A second name, unlike a new one, never takes that of a file made meanwhile.
        std::filesystem::create_hard_link(beside, place, error);
        if (!error)
            return;
        if (QFileInfo::exists(m_path))
            fail(existsAlready);
    } else if (QFileInfo::exists(m_path)) {
        m_former = nameBeside(target(m_path));
        std::filesystem::create_hard_link(place, nativePath(m_former), error);
    }
    std::filesystem::rename(beside, place, error);
    if (error)
        fail(messageOf(error));
}

void OutputFile::takeBack()
{
    std::error_code error;
    if (m_former.isEmpty())
        std::filesystem::remove(nativePath(m_path), error);
    else if (QFileInfo::exists(m_former))
        std::filesystem::rename(nativePath(m_former), nativePath(target(m_path)), error);
}

void OutputFile::take(std::string_view text)
{
    while (!text.empty()) {
        const qint64 count = m_file.write(text.data(), static_cast<qint64>(text.size()));
        if (count <= 0)
            fail(m_file.errorString());
        text.remove_prefix(static_cast<size_t>(count));
    }
}

void OutputFile::fail(const QString &reason) const
{
    throw Failure(Failure::Cause::Output, m_path.toStdString() + ": " + reason.toStdString());
}

void putInPlace(OutputFile &first, OutputFile &second)
{
    first.complete();
    second.complete();
    first.putInPlace();
    try {
        second.putInPlace();
    } catch (const Failure &) {
        first.takeBack();
        throw;
    }
}

} // namespace convert
