// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "configurationreader.h"
#include "datareader.h"
#include "readerror.h"
#include "textreader.h"

#include "recordingbuilder.h"
#include "smallrecording.h"

#include <QBuffer>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

using Reader = void (*)(QIODevice &device, CFGProperties &recording);

// A device that fails behind so many bytes.
class FailingBuffer : public QBuffer {
public:
    FailingBuffer(const QByteArray &bytes, qint64 sound) : m_sound(sound)
    {
        setData(bytes);
        open(QIODevice::ReadOnly);
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 left = m_sound - m_read;
        if (left <= 0)
            return -1;
        const qint64 count = QBuffer::readData(data, std::min(size, left));
        m_read += count;
        return count;
    }

private:
    const qint64 m_sound;
    qint64 m_read = 0;
};

// A file to which something happens once its first bytes have been read.
class ChangingFile : public QFile {
public:
    ChangingFile(const QString &path, std::function<void()> change)
        : QFile(path), m_change(std::move(change))
    {
        open(QIODevice::ReadOnly);
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = QFile::readData(data, size);
        if (m_change)
            std::exchange(m_change, nullptr)();
        return count;
    }

private:
    std::function<void()> m_change;
};

QByteArray wide(const QByteArray &text)
{
    QByteArray bytes("\xff\xfe");
    for (const char letter : text)
        bytes.append(letter).append('\0');
    return bytes;
}

using Change = std::function<void(const QString &path)>;

} // namespace

Q_DECLARE_METATYPE(Reader)
Q_DECLARE_METATYPE(Change)

class TestReadFaults : public QObject {
    Q_OBJECT

private slots:
    void aFailureIsNotTheEnd_data();
    void aFailureIsNotTheEnd();
    void aFileThatCannotBeReadFailsToLoad_data();
    void aFileThatCannotBeReadFailsToLoad();
    void aFileMayChangeWhileItIsRead_data();
    void aFileMayChangeWhileItIsRead();
};

void TestReadFaults::aFailureIsNotTheEnd_data()
{
    QTest::addColumn<Reader>("reader");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("sound"); // bytes before the failure
    const auto rows = [](const char *name, Reader reader, const QByteArray &bytes, int lineEnd) {
        const auto row = [&](const char *place, int sound) {
            QTest::addRow("%s %s", name, place) << reader << bytes << sound;
        };
        row("from the first byte on", 0);
        row("in a line", lineEnd - 4);
        row("between two lines", lineEnd);
        row("before the last byte", bytes.size() - 1);
    };
    rows("a configuration", readConfiguration, smallConfiguration(), 32);
    rows("data", readData, "1,0,5\n2,1000,6\n3,2000,7\n", 15);
    // More than is read at once.
    rows("long data", readData, QByteArray("1,1000,50\n").repeated(100000), 600000);
    const QByteArray text = "#a[A]\n01/02/2020-10:00:00:000,5\n01/02/2020-10:00:00:020,6\n";
    rows("an export", readTextExport, text, 32);
    rows("an export of two bytes a letter", readTextExport, wide(text), 66);
}

void TestReadFaults::aFailureIsNotTheEnd()
{
    QFETCH(Reader, reader);
    QFETCH(QByteArray, bytes);
    QFETCH(int, sound);
    CFGProperties recording;
    FailingBuffer device(bytes, sound);
    QVERIFY_EXCEPTION_THROWN(reader(device, recording), ReadError);
    CFGProperties read;
    QBuffer whole(&bytes);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    reader(whole, read);
}

// This process's own memory looks like a file, and its first bytes cannot be read.
void TestReadFaults::aFileThatCannotBeReadFailsToLoad_data()
{
    QTest::addColumn<QString>("faulty");
    QTest::newRow("the configuration") << QStringLiteral("rec.cfg");
    QTest::newRow("the data") << QStringLiteral("rec.dat");
    QTest::newRow("an export") << QStringLiteral("rec.txt");
}

void TestReadFaults::aFileThatCannotBeReadFailsToLoad()
{
    QFETCH(QString, faulty);
#ifdef Q_OS_WIN
    QSKIP("a link is a file of its own on Windows");
#endif
    const QString memory = QStringLiteral("/proc/self/mem");
    QFile tried(memory);
    if (!tried.open(QIODevice::ReadOnly) || tried.read(1).size() == 1)
        QSKIP("there is no such file here");
    const RecordingFolder folder;
    const QString good = writeSmallRecording(folder.path(""), QStringLiteral("good"));
    const QString path
        = folder.path(faulty.endsWith(QLatin1String(".txt")) ? "rec.txt" : "rec.cfg");
    writeSmallRecording(folder.path(""), QStringLiteral("rec"));
    QFile::remove(folder.path(qPrintable(faulty)));
    QVERIFY(QFile::link(memory, folder.path(qPrintable(faulty))));
    CFGProperties recording;
    for (int time = 0; time < 2; ++time) {
        recording.filePath = path;
        recording.init();
        QCOMPARE(recording.loaded, 0);
        QCOMPARE(recording.sampleCount, 0);
        QVERIFY(recording.stationName.isEmpty());
        QVERIFY(recording.analogChannels.isEmpty());
        recording.filePath = good;
        recording.init();
        QCOMPARE(recording.loaded, 1);
        QCOMPARE(recording.sampleCount, 40);
    }
}

void TestReadFaults::aFileMayChangeWhileItIsRead_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("samples"); // of 100,000, the first 26,214 read before the change
    const auto resized = [](qint64 bytes) {
        return [bytes](const QString &path) { QVERIFY(QFile::resize(path, bytes)); };
    };
    QTest::newRow("nothing happens") << Change([](const QString &) {}) << 100000;
    QTest::newRow("it shrinks behind what was read") << Change(resized(500000)) << 50000;
    QTest::newRow("it shrinks in a line") << Change(resized(500005)) << 50001;
    QTest::newRow("it shrinks to less than was read") << Change(resized(1000)) << 26215;
    QTest::newRow("it is emptied") << Change(resized(0)) << 26215;
    QTest::newRow("it grows") << Change([](const QString &path) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::Append));
        file.write("1,1000,50\n");
    }) << 100001;
#ifdef Q_OS_UNIX // Windows lets nobody remove a file that is read
    QTest::newRow("it is removed")
        << Change([](const QString &path) { QVERIFY(QFile::remove(path)); }) << 100000;
    QTest::newRow("another takes its place") << Change([](const QString &path) {
        QVERIFY(QFile::remove(path));
        QVERIFY(writeTextFile(path, "1,0,7\n"));
    }) << 100000;
#endif
}

void TestReadFaults::aFileMayChangeWhileItIsRead()
{
    QFETCH(Change, change);
    QFETCH(int, samples);
    const RecordingFolder folder;
    const QString path = folder.path("rec.dat");
    QVERIFY(writeTextFile(path, QByteArray("1,1000,50\n").repeated(100000)));
    ChangingFile file(path, [&] { change(path); });
    CFGProperties recording;
    recording.analogChannelCount = 1;
    recording.totalChannelCount = 1;
    recording.analogIndexes.append(1);
    readData(file, recording);
    QCOMPARE(recording.sampleCount, samples);
    QCOMPARE(recording.analogChannels.size(), 1);
    QCOMPARE(recording.analogChannels.constFirst()->rawValues.size(), samples);
    QCOMPARE(recording.analogChannels.constFirst()->rawValues.constFirst(), 50.0F);
}

QTEST_GUILESS_MAIN(TestReadFaults)
#include "tst_readfaults.moc"
