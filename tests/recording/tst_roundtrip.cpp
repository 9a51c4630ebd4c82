// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "recordingwriter.h"

#include "asciilayout.h"
#include "writtenpair.h"

#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <memory>

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const QString realFolder = QStringLiteral(SOURCE_DIR "/../shared/recordings/real/");

// The fields of a file's lines as bytes, without the line ends.
using Lines = QList<QByteArrayList>;

Lines linesOf(const QString &path)
{
    Lines lines;
    for (QByteArray line : contents(path).split('\n')) {
        line.replace("\r", "");
        lines += line.split(',');
    }
    return lines;
}

// The data lines alone: the first line with fewer than two fields ends them.
Lines samplesOf(const QString &path)
{
    Lines lines = linesOf(path);
    const auto end = std::find_if(
        lines.begin(), lines.end(), [](const QByteArrayList &fields) { return fields.size() < 2; });
    lines.erase(end, lines.end());
    return lines;
}

double microseconds(const QByteArrayList &sample)
{
    return sample.at(1).toDouble();
}

// What of a pair breaks the layout, each kind once, in the order of the alphabet.
QByteArrayList faultKinds(const QByteArray &configuration, const QByteArray &data)
{
    QByteArrayList kinds;
    for (const LayoutFault &fault : faultsOfPair(configuration.toStdString(), data.toStdString())) {
        const QByteArray kind = QByteArray::fromStdString(fault.what);
        if (!kinds.contains(kind))
            kinds += kind;
    }
    std::sort(kinds.begin(), kinds.end());
    return kinds;
}

bool isSameToSixDigits(double actual, double expected, double scale)
{
    return std::abs(actual - expected) <= 5.1e-6 * scale;
}

bool isWithin(const QByteArrayList &kinds, const QByteArrayList &all)
{
    return std::all_of(kinds.cbegin(), kinds.cend(),
        [&all](const QByteArray &kind) { return all.contains(kind); });
}

} // namespace

// Recordings saved and opened again. What a copy must hold is taken from the files themselves, line
// by line, and not through the reader.
class TestRoundTrip : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void wholeCopies_data();
    void wholeCopies();
    void copiesKeepToTheLayout_data();
    void copiesKeepToTheLayout();
    void copiesOpenAsTheOriginalAndCopyToTheSameBytes_data();
    void copiesOpenAsTheOriginalAndCopyToTheSameBytes();
    void copiesInPart_data();
    void copiesInPart();
    void copiesInPrimaryValues_data();
    void copiesInPrimaryValues();

private:
    void generate(const char *name, const char *options);
    QString stem(const QString &name) const;
    const CFGProperties *original(const QString &name);
    void addRecordings() const;

    QTemporaryDir m_generated;
    std::map<QString, std::unique_ptr<CFGProperties>> m_originals;
};

// Makes a pair with the generator; options are separated by blanks.
void TestRoundTrip::generate(const char *name, const char *options)
{
    const QStringList arguments = QString::fromLatin1(options).split(QLatin1Char(' '))
        + QStringList{m_generated.filePath(QLatin1String(name))};
    QCOMPARE(QProcess::execute(QStringLiteral(MAKERECORDING), arguments), 0);
}

void TestRoundTrip::initTestCase()
{
    generate("made-noisy", "--samples 6000 --rate 4000 --analog 12 --digital 20 --noise 300");
    generate("made-60hz-without-digitals", "--samples 500 --frequency 60 --rate 1250 --digital 0");
    generate("made-without-analogs", "--samples 500 --analog 0 --digital 9");
    generate("made-one-sample", "--samples 1");
}

// The path of a recording without its ending.
QString TestRoundTrip::stem(const QString &name) const
{
    if (name == QLatin1String("earth-fault"))
        return QStringLiteral(SOURCE_DIR "/examples/earth-fault");
    return name.startsWith(QLatin1String("made-")) ? m_generated.filePath(name) : realFolder + name;
}

const CFGProperties *TestRoundTrip::original(const QString &name)
{
    std::unique_ptr<CFGProperties> &recording = m_originals[name];
    if (!recording) {
        recording = std::make_unique<CFGProperties>();
        recording->filePath = stem(name) + QLatin1String(".cfg");
        readWithoutPhasors(*recording);
    }
    return recording.get();
}

void TestRoundTrip::addRecordings() const
{
    QTest::addColumn<QString>("name");
    QStringList names{QStringLiteral("earth-fault"), QStringLiteral("made-noisy"),
        QStringLiteral("made-60hz-without-digitals"), QStringLiteral("made-without-analogs"),
        QStringLiteral("made-one-sample")};
    const QStringList real = QDir(realFolder).entryList({QStringLiteral("*.cfg")}, QDir::Files);
    for (const QString &file : real)
        names += file.chopped(4);
    if (real.isEmpty())
        qInfo("The recordings of real devices are not beside these sources: skipped.");
    for (const QString &name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

void TestRoundTrip::wholeCopies_data()
{
    addRecordings();
}

void TestRoundTrip::wholeCopies()
{
    QFETCH(QString, name);
    const CFGProperties *const recording = original(name);
    QCOMPARE(recording->loaded, 1);
    const RecordingFolder folder;
    const RecordingWriter writer(*recording, {}, {});
    QVERIFY(!writer.write(folder.path("copy.cfg"), -infinite, infinite).hasFailed());

    // Names, byte for byte: number, id, phase, circuit and unit; of a digital channel the state.
    const Lines configuration = linesOf(stem(name) + QLatin1String(".cfg"));
    const Lines copied = linesOf(folder.path("copy.cfg"));
    QCOMPARE(copied.at(0).mid(0, 2), configuration.at(0).mid(0, 2));
    QCOMPARE(copied.at(1), configuration.at(1));
    const int analog = configuration.at(1).at(1).chopped(1).toInt();
    const int digital = configuration.at(1).at(2).chopped(1).toInt();
    for (int k = 0; k < analog; ++k) {
        QCOMPARE(copied.at(2 + k).size(), 13);
        QCOMPARE(copied.at(2 + k).mid(0, 5), configuration.at(2 + k).mid(0, 5));
    }
    for (int j = 0; j < digital; ++j) {
        QByteArrayList fields = configuration.at(2 + analog + j);
        while (fields.size() < 5)
            fields += QByteArray();
        QCOMPARE(copied.at(2 + analog + j), fields);
    }

    const Lines samples = samplesOf(stem(name) + QLatin1String(".dat"));
    const Lines copies = samplesOf(folder.path("copy.dat"));
    QCOMPARE(copies.size(), samples.size());
    for (int i = 0; i < samples.size(); ++i) {
        const QByteArrayList &sample = samples.at(i);
        const QByteArrayList &copy = copies.at(i);
        QCOMPARE(copy.size(), 2 + analog + digital + (digital == 0 ? 1 : 0));
        QCOMPARE(copy.at(0).toInt(), i + 1);
        const double time = microseconds(sample) - microseconds(samples.constFirst());
        QVERIFY(std::abs(microseconds(copy) - time) <= 0.5);
        for (int c = 2; c < 2 + analog + digital; ++c) {
            const double value = sample.at(c).toDouble();
            QVERIFY(value == std::trunc(value)); // of all these recordings
            QCOMPARE(copy.at(c), QByteArray::number(qint64(value)));
        }
    }
}

void TestRoundTrip::copiesKeepToTheLayout_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArrayList>("faults"); // which the original brings along
    QTest::addColumn<QByteArray>("start"); // of the copy
    QTest::addColumn<QByteArray>("trigger");
    const auto row = [this](const char *name, const QByteArrayList &faults, const char *start,
                         const char *trigger) {
        const QString file = QString::fromLatin1(name);
        if (QFileInfo::exists(stem(file) + QLatin1String(".cfg")))
            QTest::newRow(name) << file << faults << QByteArray(start) << QByteArray(trigger);
    };
    row("earth-fault", {}, "14/03/2024,09:26:53.500", "14/03/2024,09:26:53.700");
    row("made-noisy", {}, "14/03/2024,09:26:53.500", "14/03/2024,09:26:53.687");
    row("made-60hz-without-digitals", {}, "14/03/2024,09:26:53.500", "14/03/2024,09:26:53.550");
    row("made-without-analogs", {}, "14/03/2024,09:26:53.500", "14/03/2024,09:26:53.531");
    row("made-one-sample", {}, "14/03/2024,09:26:53.500", "14/03/2024,09:26:53.500");
    row("bay-cp1251-crlf", {}, "05/08/2020,14:46:26.406", "05/08/2020,14:46:26.906");
    row("dfr-1991-gbk",
        {"min or max is no whole number of five digits", "the channels are not counted from 1",
            "the first sample has no date and time", "the flag is neither P nor S",
            "the normal state is neither 0 nor 1", "the revision year is not 1999",
            "the trigger has no date and time"},
        "09/17/15,10:52:52.910", "09/17/15,10:52:53.065");
    row("line-110-digitals", {}, "25/06/2022,21:46:07.483", "25/06/2022,21:46:07.983");
    row("line-relay-gbk", {"a value is no whole number of five digits", "the stamps run back"},
        "24/12/2012,17:30:48.384", "24/12/2012,17:30:48.384");
    row("pq-monitor-1999", {}, "11/07/2012,08:44:21.010", "11/07/2012,08:44:21.051");
    row("recorder-1991-cp866",
        {"the first sample has no date and time", "the flag is neither P nor S",
            "the normal state is neither 0 nor 1", "the revision year is not 1999",
            "the trigger has no date and time"},
        "03/11/13,15:19:07.000", "03/11/13,15:19:07.080");
    row("simulator-40000", {"the unit has not 1 to 32 letters"}, "09/10/2018,08:41:02.673",
        "09/10/2018,08:41:03.073");
    // The trigger lies before the first stamp and moves to it.
    row("small-2013-missing", {"the revision year is not 1999"}, "12/01/2011,05:55:30.147",
        "12/01/2011,05:55:30.147");
    row("small-2013-utf8", {"the revision year is not 1999"}, "12/01/2011,05:55:30.822",
        "12/01/2011,05:55:30.822");
}

void TestRoundTrip::copiesKeepToTheLayout()
{
    QFETCH(QString, name);
    QFETCH(QByteArrayList, faults);
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, trigger);
    const Written copy = written(*original(name), -infinite, infinite);
    const QByteArrayList found = faultKinds(copy.configuration, copy.data);
    QVERIFY2(found == faults, found.join("; ").constData());
    const QByteArrayList lines = copy.configuration.split('\n');
    QCOMPARE(lines.at(lines.size() - 4), start);
    QCOMPARE(lines.at(lines.size() - 3), trigger);
}

void TestRoundTrip::copiesOpenAsTheOriginalAndCopyToTheSameBytes_data()
{
    addRecordings();
}

void TestRoundTrip::copiesOpenAsTheOriginalAndCopyToTheSameBytes()
{
    QFETCH(QString, name);
    const CFGProperties &recording = *original(name);
    const Written first = written(recording, -infinite, infinite);
    const RecordingFolder folder;
    CFGProperties copy;
    folder.read(copy, first.configuration, first.data);
    QCOMPARE(copy.loaded, 1);
    QCOMPARE(copy.stationName, recording.stationName);
    QCOMPARE(copy.analogIds, recording.analogIds);
    QCOMPARE(copy.digitalIds, recording.digitalIds);
    QCOMPARE(copy.toPrimary, recording.toPrimary);
    QCOMPARE(copy.samplesPerCycle, recording.samplesPerCycle);
    QCOMPARE(copy.sampleTimes.size(), recording.sampleTimes.size());
    for (int i = 0; i < copy.sampleTimes.size(); ++i) {
        const double time = recording.sampleTimes.at(i) - recording.sampleTimes.constFirst();
        QVERIFY(std::abs(copy.sampleTimes.at(i) - time) < 0.00051); // of ms; microseconds are whole
    }
    QCOMPARE(copy.digitalChannels.size(), recording.digitalChannels.size());
    for (int j = 0; j < copy.digitalChannels.size(); ++j)
        QCOMPARE(copy.digitalChannels.at(j)->values, recording.digitalChannels.at(j)->values);
    QCOMPARE(copy.analogChannels.size(), recording.analogChannels.size());
    for (int k = 0; k < copy.analogChannels.size(); ++k) {
        const AnalogChannel &one = *recording.analogChannels.at(k);
        const AnalogChannel &other = *copy.analogChannels.at(k);
        QCOMPARE(other.rawValues, one.rawValues);
        const auto a = static_cast<double>(one.a);
        QVERIFY(isSameToSixDigits(static_cast<double>(other.a), a, std::abs(a)));
        QCOMPARE(other.primary, one.primary);
        QCOMPARE(other.secondary, one.secondary);
    }

    const Written second = written(copy, -infinite, infinite);
    QCOMPARE(second.configuration, first.configuration);
    QVERIFY(second.data == first.data);
}

void TestRoundTrip::copiesInPart_data()
{
    addRecordings();
}

void TestRoundTrip::copiesInPart()
{
    QFETCH(QString, name);
    const Lines samples = samplesOf(stem(name) + QLatin1String(".dat"));
    // From the stamp of one sample to that of another, so that both ends are hit.
    const auto [start, end] = std::minmax({microseconds(samples.at(samples.size() / 3)),
        microseconds(samples.at(samples.size() * 2 / 3))});
    QByteArrayList numbers;
    for (int i = 0; i < samples.size(); ++i) {
        const double time = microseconds(samples.at(i));
        if (time >= start && time > end)
            break; // also where stamps run back later
        if (time >= start)
            numbers += QByteArray::number(i + 1);
    }
    QVERIFY(samples.size() == 1 || numbers.size() < samples.size());

    const Written part = written(*original(name), start / 1000, end / 1000);
    QByteArrayList copied;
    for (const QByteArray &line : part.data.split('\n'))
        copied += line.split(',').constFirst();
    QCOMPARE(copied, numbers);
    QCOMPARE(part.data.split('\n').constFirst().split(',').at(1), QByteArray("0"));
    const Written whole = written(*original(name), -infinite, infinite);
    QVERIFY(isWithin(
        faultKinds(part.configuration, part.data), faultKinds(whole.configuration, whole.data)));

    const RecordingFolder folder;
    CFGProperties copy;
    folder.read(copy, part.configuration, part.data);
    QCOMPARE(copy.sampleCount, numbers.size());
    const int offset = numbers.constFirst().toInt() - 1;
    for (int k = 0; k < copy.analogChannels.size(); ++k) {
        QCOMPARE(copy.analogChannels.at(k)->rawValues,
            original(name)->analogChannels.at(k)->rawValues.mid(offset, numbers.size()));
    }
}

void TestRoundTrip::copiesInPrimaryValues_data()
{
    addRecordings();
}

void TestRoundTrip::copiesInPrimaryValues()
{
    QFETCH(QString, name);
    const CFGProperties &recording = *original(name);
    const Written primary = writtenAsPrimary(recording);
    const Written whole = written(recording, -infinite, infinite);
    QVERIFY(primary.data == whole.data);
    QVERIFY(isWithin(faultKinds(primary.configuration, primary.data),
        faultKinds(whole.configuration, whole.data)));
    const RecordingFolder folder;
    CFGProperties copy;
    folder.read(copy, primary.configuration, primary.data);
    QCOMPARE(copy.loaded, 1);
    QCOMPARE(copy.analogChannels.size(), recording.analogChannels.size());
    for (int k = 0; k < copy.analogChannels.size(); ++k) {
        const AnalogChannel &one = *recording.analogChannels.at(k);
        const AnalogChannel &other = *copy.analogChannels.at(k);
        QCOMPARE(other.ps, QStringLiteral("P"));
        QCOMPARE(other.toPrimary, 1.0);
        const bool hasSide = one.ps == QLatin1String("P") || one.ps == QLatin1String("S");
        const auto a = static_cast<double>(recording.analogA.at(k));
        const auto b = static_cast<double>(recording.analogB.at(k));
        for (int i = 0; i < copy.sampleCount; ++i) {
            const double scale
                = std::abs(a * static_cast<double>(one.rawValues.at(i))) + std::abs(b);
            const auto value = static_cast<double>(one.values.at(i));
            const auto copied = static_cast<double>(other.values.at(i));
            QVERIFY(isSameToSixDigits(copied, value * one.toPrimary, scale * one.toPrimary));
            // Of a channel without a known side the ratings alone speak for the secondary one.
            if (hasSide)
                QVERIFY(isSameToSixDigits(
                    copied * other.toSecondary, value * one.toSecondary, scale * one.toSecondary));
        }
    }
}

QTEST_GUILESS_MAIN(TestRoundTrip)
#include "tst_roundtrip.moc"
