// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "configurationreader.h"
#include "datareader.h"
#include "interruption.h"
#include "phasors.h"
#include "textreader.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

using Reader = void (*)(QIODevice &device, CFGProperties &recording);

constexpr qint64 megabyte = 1 << 20;

// A file of 256 MB: a beginning, then the same line again and again. Counts the bytes it gives.
class LongFile : public QIODevice {
public:
    LongFile(const QByteArray &beginning, const QByteArray &line)
        : m_beginning(beginning), m_line(line)
    {
        open(QIODevice::ReadOnly);
    }

    qint64 size() const override { return 256 * megabyte; }
    qint64 given() const { return m_given; }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        const qint64 count = std::min(most, size() - m_given);
        for (qint64 i = 0; i < count; ++i, ++m_given) {
            data[i] = m_given < m_beginning.size()
                ? m_beginning.at(static_cast<int>(m_given))
                : m_line.at(static_cast<int>((m_given - m_beginning.size()) % m_line.size()));
        }
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    const QByteArray m_beginning;
    const QByteArray m_line;
    qint64 m_given = 0;
};

void runInThread(const std::function<void()> &work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->start();
    thread->wait();
}

// Whether work is given up in a thread that is asked to end.
bool isGivenUp(const std::function<void()> &work)
{
    bool result = false;
    runInThread([&] {
        QThread::currentThread()->requestInterruption();
        try {
            work();
        } catch (const Interruption &) {
            result = true;
        }
    });
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Reader)

class TestInterruption : public QObject {
    Q_OBJECT

private slots:
    void looksOnceInSoManySteps();
    void noOneWhoIsNotAskedGivesUp();
    void readersGiveUpSoon_data();
    void readersGiveUpSoon();
    void phasorsGiveUpSoon_data();
    void phasorsGiveUpSoon();
    void aLoadThatIsGivenUpLeavesNothing();
};

void TestInterruption::looksOnceInSoManySteps()
{
    QVERIFY(!isGivenUp([] { countWork(stepsBetweenLooks - 1); }));
    QVERIFY(isGivenUp([] {
        countWork(stepsBetweenLooks - 1);
        countWork(1);
    }));
    QVERIFY(isGivenUp([] { countWork(10 * stepsBetweenLooks); }));
}

void TestInterruption::noOneWhoIsNotAskedGivesUp()
{
    bool isDone = false;
    runInThread([&] {
        countWork(10 * stepsBetweenLooks);
        isDone = true;
    });
    QVERIFY(isDone);
}

void TestInterruption::readersGiveUpSoon_data()
{
    QTest::addColumn<Reader>("reader");
    QTest::addColumn<int>("columns"); // of the data
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<qint64>("most"); // bytes read
    const auto row = [](const char *name, Reader reader, int columns, const QByteArray &beginning,
                         const QByteArray &line, qint64 most) {
        QTest::newRow(name) << reader << columns << beginning << line << most;
    };
    row("a configuration without end", readConfiguration, 0, "", "\n", megabyte / 8);
    row("a configuration in one line", readConfiguration, 0, "", "a", 2 * megabyte);
    row("short lines of data", readData, 1, "", "1,1,5\n", 4 * megabyte);
    row("long lines of data", readData, 1000, "", "1,1," + QByteArray("5,").repeated(1000) + "\n",
        4 * megabyte);
    row("missing fields", readData, 1000, "1,1," + QByteArray("5,").repeated(1000) + "\n",
        "1,1,5,5,5,5,5,5,5\n", megabyte);
    row("a text of many lines", readTextExport, 0, "Ua,Ub\n", "01/01/2020-00:00:00:000,1,2\n",
        2 * megabyte);
    row("a text of many names", readTextExport, 0, "", ",", 2 * megabyte);
    row("a text of empty lines", readTextExport, 0, "Ua,Ub\n", "\n", megabyte / 8);
}

void TestInterruption::readersGiveUpSoon()
{
    QFETCH(Reader, reader);
    QFETCH(int, columns);
    QFETCH(QByteArray, beginning);
    QFETCH(QByteArray, line);
    QFETCH(qint64, most);
    CFGProperties recording;
    recording.totalChannelCount = columns;
    recording.analogChannelCount = columns;
    LongFile file(beginning, line);
    QVERIFY(isGivenUp([&] { reader(file, recording); }));
    QVERIFY2(file.given() <= most, qPrintable(QString::number(file.given())));
}

void TestInterruption::phasorsGiveUpSoon_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("most"); // samples that get a phasor, of one channel after the other
    QTest::newRow("an ordinary cycle") << 1000000 << 20 << 10000;
    QTest::newRow("a long cycle") << 1000000 << 4093 << 50;
    QTest::newRow("a cycle longer than the recording") << 100000 << 1000000 << 100;
    QTest::newRow("very many short channels") << 1 << 20 << 10000;
    QTest::newRow("no meaningful cycle") << 1000 << 0 << 5000000;
}

void TestInterruption::phasorsGiveUpSoon()
{
    QFETCH(int, samples);
    QFETCH(int, size);
    QFETCH(int, most);
    int computed = 0;
    QVERIFY(isGivenUp([&] {
        for (int channels = 0; channels < 1000000; ++channels) {
            AnalogChannel channel;
            channel.a = 1;
            channel.rawValues.fill(1, samples);
            try {
                computePhasors(channel, size);
            } catch (...) {
                computed += channel.fftMagnitudes.size();
                throw;
            }
            computed += channel.fftMagnitudes.size();
        }
    }));
    QVERIFY2(computed <= most, qPrintable(QString::number(computed)));
}

void TestInterruption::aLoadThatIsGivenUpLeavesNothing()
{
    const QTemporaryDir folder;
    QFile configuration(folder.filePath(QStringLiteral("long.cfg")));
    QFile data(folder.filePath(QStringLiteral("long.dat")));
    QVERIFY(configuration.open(QIODevice::WriteOnly) && data.open(QIODevice::WriteOnly));
    configuration.write("Harju,J07,1999\n1,1A,0D\n1,I,A,,A,1,0,0,-9,9,1,1,P\n50\n1\n1000,1\n");
    configuration.close();
    data.write(QByteArray("1,1,5\n").repeated(800000));
    data.close();
    CFGProperties recording;
    recording.filePath = configuration.fileName();
    recording.loaded = 1;
    const QSignalSpy finished(&recording, &CFGProperties::initFinished);
    QVERIFY(!isGivenUp([&] { recording.init(); }));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(recording.loaded, 0);
    QCOMPARE(recording.stationName, QString());
    QVERIFY(recording.analogChannels.isEmpty());
}

QTEST_GUILESS_MAIN(TestInterruption)
#include "tst_interruption.moc"
