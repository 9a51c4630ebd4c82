// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "asciilayout.h"
#include "cfgproperties.h"
#include "converterrun.h"
#include "publishedforms.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

using Form = PublishedRecording::Form;

// Eighteen states take two words.
PublishedRecording recording()
{
    PublishedRecording made;
    made.analog += "2,UL1,A,Bay,kV,0.001,-1.5,16.7,-32767,32767";
    made.digital = QByteArrayList();
    for (int j = 1; j <= 18; ++j)
        made.digital += "S" + QByteArray::number(j);
    made.samples = {
        {0, {0, 1}, "000000000000000000"},
        {833, {32767, -32767}, "100000000000000001"},
        {1667, {-1, 255}, "000000010000000000"},
        {2500, {256, -256}, "000000001000000011"},
        {3333, {12345, -9}, "111111111111111111"},
    };
    return made;
}

const QByteArray writtenData = "1,0,0,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n"
                               "2,833,32767,-32767,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,1\r\n"
                               "3,1667,-1,255,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,0,0,0\r\n"
                               "4,2500,256,-256,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,1,1\r\n"
                               "5,3333,12345,-9,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1\r\n";

QByteArray writtenConfiguration(const QByteArray &ratio)
{
    QByteArray text = "Harju,Feeder J07,1999\r\n20,2A,18D\r\n"
                      "1,IL1,A,Bay,A,0.5,0.25,0,-32767,32767,"
        + ratio + "\r\n2,UL1,A,Bay,kV,0.001,-1.5,16.7,-32767,32767," + ratio + "\r\n";
    for (int j = 1; j <= 18; ++j)
        text += QByteArray::number(j) + ",S" + QByteArray::number(j) + ",,,0\r\n";
    return text
        + "50\r\n1\r\n1200,5\r\n15/03/2024,10:00:00.000000\r\n15/03/2024,10:00:00.001000\r\n"
          "ASCII\r\n1\r\n";
}

} // namespace

// The same recording in every form that the standard has.
class TestConverterForms : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ConverterFolder> m_folder;

    // Writes a recording in a form, as r.cfg and r.dat or as r.cff, and converts it to out.
    ConverterFolder::Outcome convert(
        const PublishedRecording &made, const Form &form, const QString &options = QString()) const
    {
        m_folder->write("r.cfg", made.configuration(form));
        m_folder->write("r.dat", made.data(form));
        return m_folder->run(options + QStringLiteral(" --force @r.cfg -o @out"));
    }

    static void addForms()
    {
        QTest::addColumn<int>("revision");
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("ASCII, without a year") << 0 << QByteArray("ASCII");
        QTest::newRow("BINARY, without a year") << 0 << QByteArray("BINARY");
        QTest::newRow("ASCII of 1991") << 1991 << QByteArray("ASCII");
        QTest::newRow("BINARY of 1991") << 1991 << QByteArray("BINARY");
        QTest::newRow("ASCII of 1999") << 1999 << QByteArray("ASCII");
        QTest::newRow("BINARY of 1999") << 1999 << QByteArray("BINARY");
        QTest::newRow("ASCII of 2013") << 2013 << QByteArray("ASCII");
        QTest::newRow("BINARY of 2013") << 2013 << QByteArray("BINARY");
        QTest::newRow("BINARY32 of 2013") << 2013 << QByteArray("BINARY32");
        QTest::newRow("FLOAT32 of 2013") << 2013 << QByteArray("FLOAT32");
    }

private slots:
    void init() { m_folder = std::make_unique<ConverterFolder>(); }

    void everyFormGivesTheSamePair_data() { addForms(); }
    void everyFormGivesTheSamePair();
    void everyFormGivesTheSameTable_data() { addForms(); }
    void everyFormGivesTheSameTable();
    void theViewerReadsThePair_data() { addForms(); }
    void theViewerReadsThePair();
    void markOfAMissingValue_data();
    void markOfAMissingValue();
    void numbersBeyondCounts_data();
    void numbersBeyondCounts();
    void moreDigitsThanAnyCount_data();
    void moreDigitsThanAnyCount();
    void valueThatLooksLikeAMarkStays_data();
    void valueThatLooksLikeAMarkStays();
    void timesOfSamples_data();
    void timesOfSamples();
    void ratesOfTheCopy_data();
    void ratesOfTheCopy();
    void decimalsOfTheMoments();
    void cellBeyondAllNumbers();
    void singleFiles_data();
    void singleFiles();
    void endMarkOfTheOldRevisions();
    void wordOfTheTypeInSmallLetters();
};

void TestConverterForms::everyFormGivesTheSamePair()
{
    QFETCH(int, revision);
    QFETCH(QByteArray, type);
    const QByteArray ratio = revision <= 1991 ? "1,1,P" : "400,1,S";
    const PublishedRecording made = recording();
    for (const char *lineEnd : {"\r\n", "\n"}) {
        const Form form{revision, type, lineEnd};
        const auto outcome = convert(made, form);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(m_folder->read("out.dat"), writtenData);
        QCOMPARE(m_folder->read("out.cfg"), writtenConfiguration(ratio));
        m_folder->write("one.cff", made.singleFile(form));
        QCOMPARE(m_folder->run(QStringLiteral("--force @one.cff")).errors, QByteArray());
        QCOMPARE(m_folder->read("one.dat"), writtenData);
        QCOMPARE(m_folder->read("one.cfg"), writtenConfiguration(ratio));
    }
    const auto faults = faultsOfPair(
        m_folder->read("out.cfg").toStdString(), m_folder->read("out.dat").toStdString());
    QVERIFY2(faults.empty(), faults.empty() ? "" : faults.front().what.c_str());
}

void TestConverterForms::everyFormGivesTheSameTable()
{
    QFETCH(int, revision);
    QFETCH(QByteArray, type);
    QCOMPARE(convert(recording(), {revision, type}, QStringLiteral("--csv")).status, 0);
    QCOMPARE(m_folder->read("out.csv"),
        QByteArray("Time (ms),IL1 (A),UL1 (kV),S1,S2,S3,S4,S5,S6,S7,S8,S9,S10,S11,S12,S13,S14,S15,"
                   "S16,S17,S18\r\n"
                   "0,0.25,-1.499,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n"
                   "0.833,16383.75,-34.267,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,1\r\n"
                   "1.667,-0.25,-1.245,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,0,0,0\r\n"
                   "2.5,128.25,-1.756,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,1,1\r\n"
                   "3.333,6172.75,-1.509,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1\r\n"));
}

void TestConverterForms::theViewerReadsThePair()
{
    QFETCH(int, revision);
    QFETCH(QByteArray, type);
    QCOMPARE(convert(recording(), {revision, type}).status, 0);
    CFGProperties read;
    read.filePath = m_folder->path(QStringLiteral("out.cfg"));
    read.init();
    QCOMPARE(read.loaded, 1);
    QCOMPARE(read.sampleTimes, QVector<double>({0, 0.833, 1.667, 2.5, 3.333}));
    QCOMPARE(read.analogChannels.size(), 2);
    QCOMPARE(read.analogChannels.at(0)->rawValues, QVector<float>({0, 32767, -1, 256, 12345}));
    QCOMPARE(read.analogChannels.at(1)->rawValues, QVector<float>({1, -32767, 255, -256, -9}));
    QCOMPARE(read.analogChannels.at(0)->values.at(4), 6172.75F);
    QCOMPARE(read.analogChannels.at(0)->toPrimary, revision <= 1991 ? 1.0 : 400.0);
    QCOMPARE(read.digitalChannels.size(), 18);
    QCOMPARE(read.digitalChannels.at(7)->values, QVector<int>({0, 0, 1, 0, 1}));
    QCOMPARE(read.digitalChannels.at(17)->values, QVector<int>({0, 1, 0, 1, 1}));
    QCOMPARE(read.triggerOffsetMs, 1);
    QCOMPARE(read.samplesPerCycle, 24);
}

void TestConverterForms::markOfAMissingValue_data()
{
    QTest::addColumn<int>("revision");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<double>("value"); // of the data
    QTest::addColumn<QByteArray>("range");
    QTest::addColumn<QByteArray>("field"); // of the pair
    QTest::addColumn<QByteArray>("cell"); // of the table, with a = 0.5 and b = 0.25
    const auto row = [](const char *name, int revision, const char *type, double value,
                         const char *range, const char *field, const char *cell) {
        QTest::newRow(name) << revision << QByteArray(type) << value << QByteArray(range)
                            << QByteArray(field) << QByteArray(cell);
    };
    constexpr double infinite = std::numeric_limits<double>::infinity();
    row("six nines in 1991", 1991, "ASCII", 999999, "-32767,32767", "", "");
    row("five nines are a number in 1991", 1991, "ASCII", 99999, "-32767,32767", "99999",
        "49999.75");
    row("six nines in the range of 1991", 1991, "ASCII", 999999, "-1000000,1000000", "999999",
        "499999.75");
    row("five nines in 1999", 1999, "ASCII", 99999, "-32767,32767", "99999", "");
    row("six nines are a number in 1999", 1999, "ASCII", 999999, "-32767,32767", "999999",
        "499999.75");
    row("five nines in 2013", 2013, "ASCII", 99999, "-32767,32767", "99999", "");
    row("five nines in a range that has them", 2013, "ASCII", 99999, "-100000,100000", "99999",
        "49999.75");
    row("8000 in BINARY", 1999, "BINARY", -32768, "-32767,32767", "99999", "");
    row("8000 in BINARY of 1991", 1991, "BINARY", -32768, "-32767,32767", "99999", "");
    row("8000 under a range with five nines", 1999, "BINARY", -32768, "-99999,99999", "", "");
    row("80000000 in BINARY32", 2013, "BINARY32", -2147483648.0, "-32767,32767", "", "");
    row("no number in FLOAT32", 2013, "FLOAT32", std::nan(""), "-32767,32767", "", "");
    row("minus infinity in FLOAT32", 2013, "FLOAT32", -infinite, "-32767,32767", "", "");
}

void TestConverterForms::markOfAMissingValue()
{
    QFETCH(int, revision);
    QFETCH(QByteArray, type);
    QFETCH(double, value);
    QFETCH(QByteArray, range);
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, cell);
    PublishedRecording made;
    made.analog = QByteArrayList{"1,IL1,A,Bay,A,0.5,0.25,0," + range};
    made.rates = QByteArrayList{"1200,2"};
    made.samples = {{0, {1}, "0"}, {833, {value}, "1"}};
    QCOMPARE(convert(made, {revision, type}).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), "1,0,1,0\r\n2,833," + field + ",1\r\n");
    QCOMPARE(convert(made, {revision, type}, QStringLiteral("--csv")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.csv"),
        "Time (ms),IL1 (A),Trip\r\n0,0.75,0\r\n0.833," + cell + ",1\r\n");
    // What is written means the same once more.
    m_folder->run(QStringLiteral("--force @r.cfg -o @once"));
    QCOMPARE(m_folder->run(QStringLiteral("--csv @once.cfg -o @again")).errors, QByteArray());
    QCOMPARE(m_folder->read("again.csv"), m_folder->read("out.csv"));
}

void TestConverterForms::numbersBeyondCounts_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("field");
    const auto row = [](const char *name, const char *type, double value, const char *field) {
        QTest::newRow(name) << QByteArray(type) << value << QByteArray(field);
    };
    row("greatest of BINARY32", "BINARY32", 2147483647.0, "2147483647");
    row("least of BINARY32", "BINARY32", -2147483647.0, "-2147483647");
    row("beyond 16 bits", "BINARY32", 32768, "32768");
    row("a third", "FLOAT32", 1.0 / 3, "0.33333334");
    row("a tenth", "FLOAT32", 0.1, "0.1");
    row("greatest of FLOAT32", "FLOAT32", 3.40282347e38, "3.4028234e+38");
    row("least that is not 0", "FLOAT32", 1.40129846e-45, "1e-45");
    row("minus nought", "FLOAT32", -0.0, "0");
    row("decimals in ASCII", "ASCII", -1.25, "-1.25");
    row("exponent in ASCII", "ASCII", 1.5e-7, "1.5e-07");
}

void TestConverterForms::numbersBeyondCounts()
{
    QFETCH(QByteArray, type);
    QFETCH(double, value);
    QFETCH(QByteArray, field);
    PublishedRecording made;
    made.rates = QByteArrayList{"1200,1"};
    made.samples = {{0, {value}, "0"}};
    QCOMPARE(convert(made, {2013, type}).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), "1,0," + field + ",0\r\n");
    CFGProperties read;
    read.filePath = m_folder->path(QStringLiteral("out.cfg"));
    read.init();
    QCOMPARE(read.analogChannels.at(0)->rawValues.at(0), static_cast<float>(value));
}

void TestConverterForms::moreDigitsThanAnyCount_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *name, const char *field, const char *written) {
        QTest::newRow(name) << QByteArray(field) << QByteArray(written);
    };
    row("sixteen digits", "9007199254740993", "9007199254740992");
    row("twenty-three digits", "12345678901234567890123", "1.2345678901234568e+22");
    row("negative", "-12345678901234567890123", "-1.2345678901234568e+22");
    row("zeros before them", "00000000000000000000000000000042", "42");
    row("decimals", "0.12345678901234567", "0.12345678901234566");
}

void TestConverterForms::moreDigitsThanAnyCount()
{
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, written);
    PublishedRecording made;
    made.rates = QByteArrayList{"1200,1"};
    m_folder->write("r.cfg", made.configuration({2013, "ASCII"}));
    m_folder->write("r.dat", "1,0," + field + ",1\n");
    QCOMPARE(m_folder->run(QStringLiteral("@r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), "1,0," + written + ",1\r\n");
}

void TestConverterForms::valueThatLooksLikeAMarkStays_data()
{
    QTest::addColumn<QByteArray>("range");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("below it") << QByteArray("-32767,32767") << QByteArray("-32767,99999");
    QTest::newRow("above it") << QByteArray("100000,300000") << QByteArray("99999,300000");
    QTest::newRow("around it") << QByteArray("-200000,200000") << QByteArray("-200000,200000");
}

void TestConverterForms::valueThatLooksLikeAMarkStays()
{
    QFETCH(QByteArray, range);
    QFETCH(QByteArray, written);
    PublishedRecording made;
    made.analog = QByteArrayList{"1,IL1,A,Bay,A,0.5,0.25,0," + range};
    made.rates = QByteArrayList{"1200,2"};
    made.samples = {{0, {99999}, "0"}, {833, {-2147483648.0}, "0"}};
    QCOMPARE(convert(made, {2013, "BINARY32"}).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,99999,0\r\n2,833,,0\r\n"));
    QVERIFY(
        m_folder->read("out.cfg").contains("1,IL1,A,Bay,A,0.5,0.25,0," + written + ",400,1,S\r\n"));
    QCOMPARE(m_folder->run(QStringLiteral("--csv @out.cfg -o @again")).errors, QByteArray());
    QCOMPARE(m_folder->read("again.csv"),
        QByteArray("Time (ms),IL1 (A),Trip\r\n0,49999.75,0\r\n0.833,,0\r\n"));
}

void TestConverterForms::timesOfSamples_data()
{
    QTest::addColumn<int>("revision");
    QTest::addColumn<QByteArrayList>("rates");
    QTest::addColumn<QByteArray>("startTime");
    QTest::addColumn<QByteArray>("multiplier");
    QTest::addColumn<QVector<qint64>>("stamps");
    QTest::addColumn<QByteArrayList>("times"); // of the pair
    const QByteArray start = "10:00:00.000000";
    const auto row = [](const char *name, int revision, const QByteArrayList &rates,
                         const QByteArray &startTime, const char *multiplier,
                         const QVector<qint64> &stamps, const QByteArrayList &times) {
        QTest::newRow(name) << revision << rates << startTime << QByteArray(multiplier) << stamps
                            << times;
    };
    row("stamps against the rate", 1999, {"1000,3"}, start, "1", {5, 7, 8}, {"5", "7", "8"});
    row("stamps times 10", 1999, {"1000,3"}, start, "10", {0, 7, 4000000000},
        {"0", "70", "40000000000"});
    row("stamps times a tenth", 1999, {"1000,3"}, start, "0.1", {1, 3, 25}, {"0.1", "0.3", "2.5"});
    row("greatest stamp", 1999, {"1000,2"}, start, "1", {0, 4294967294}, {"0", "4294967294"});
    row("nanoseconds", 2013, {"1000,3"}, "10:00:00.000000001", "1", {0, 1500, 2001},
        {"0", "1.5", "2.001"});
    row("nine decimals are no nanoseconds in 1999", 1999, {"1000,2"}, "10:00:00.000000001", "1",
        {0, 1500}, {"0", "1500"});
    row("by the rate", 1999, {"1200,4"}, start, "1", {-1, -1, -1, -1},
        {"0", "833", "1667", "2500"});
    row("by the rate, whatever the multiplier", 1999, {"1000,2"}, start, "7", {-1, -1},
        {"0", "1000"});
    row("by the rate, in nanoseconds", 2013, {"1200,2"}, "10:00:00.000000000", "1", {-1, -1},
        {"0", "833.333"});
    row("by two rates", 1999, {"1000,2", "2000,4"}, start, "1", {-1, -1, -1, -1, -1},
        {"0", "1000", "2000", "2500", "3000"});
    row("by a rate without samples", 1999, {"1000,2", "50,2", "2000,4"}, start, "1",
        {-1, -1, -1, -1}, {"0", "1000", "2000", "2500"});
    row("by the rate from the last stamp on", 1999, {"1000,4"}, start, "2", {50, -1, 700, -1},
        {"100", "1100", "1400", "2400"});
    row("stamps without rates", 1999, {"0,3"}, start, "1", {0, 10, 500}, {"0", "10", "500"});
}

void TestConverterForms::timesOfSamples()
{
    QFETCH(int, revision);
    QFETCH(QByteArrayList, rates);
    QFETCH(QByteArray, startTime);
    QFETCH(QByteArray, multiplier);
    QFETCH(QVector<qint64>, stamps);
    QFETCH(QByteArrayList, times);
    PublishedRecording made;
    made.rates = rates;
    made.startTime = startTime;
    made.multiplier = multiplier;
    for (const qint64 stamp : stamps)
        made.samples.append({stamp, {7}, "1"});
    for (const char *type : {"ASCII", "BINARY"}) {
        QCOMPARE(convert(made, {revision, type}).status, 0);
        QByteArrayList written;
        for (const QByteArray &line : m_folder->read("out.dat").split('\n'))
            written += line.split(',').value(1);
        written.removeLast();
        QCOMPARE(written, times);
    }
}

void TestConverterForms::ratesOfTheCopy_data()
{
    QTest::addColumn<QByteArrayList>("rates");
    QTest::addColumn<QVector<qint64>>("stamps");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("written");
    const QVector<qint64> four{0, 1000, 2000, 3000};
    QTest::newRow("as read") << QByteArrayList{"1000,2", "2000,4"} << four << QString()
                             << QByteArray("\r\n2\r\n1000,2\r\n2000,4\r\n");
    QTest::newRow("digits stay") << QByteArrayList{"1000.00,4"} << four << QString()
                                 << QByteArray("\r\n1\r\n1000.00,4\r\n");
    QTest::newRow("of a part") << QByteArrayList{"1000,2", "2000,4"} << four
                               << QStringLiteral("--from 1 --to 2")
                               << QByteArray("\r\n2\r\n1000,1\r\n2000,2\r\n");
    QTest::newRow("without samples in the part")
        << QByteArrayList{"1000,2", "2000,4"} << four << QStringLiteral("--from 2")
        << QByteArray("\r\n1\r\n2000,2\r\n");
    QTest::newRow("fewer samples than promised")
        << QByteArrayList{"1000,9"} << four << QString() << QByteArray("\r\n1\r\n1000,4\r\n");
    QTest::newRow("more samples than promised") << QByteArrayList{
        "1000,1", "2000,2"} << four << QString() << QByteArray("\r\n2\r\n1000,1\r\n2000,4\r\n");
    QTest::newRow("none, stamps that lie evenly")
        << QByteArrayList{"0,4"} << QVector<qint64>{0, 833, 1667, 2500} << QString()
        << QByteArray("\r\n1\r\n1200,4\r\n");
    QTest::newRow("none, stamps that do not")
        << QByteArrayList{"0,4"} << QVector<qint64>{0, 833, 1667, 2600} << QString()
        << QByteArray("\r\n1\r\n0,4\r\n");
    QTest::newRow("none, stamps that run back") << QByteArrayList{"0,2"} << QVector<qint64>{833, 0}
                                                << QString() << QByteArray("\r\n1\r\n0,2\r\n");
}

void TestConverterForms::ratesOfTheCopy()
{
    QFETCH(QByteArrayList, rates);
    QFETCH(QVector<qint64>, stamps);
    QFETCH(QString, options);
    QFETCH(QByteArray, written);
    PublishedRecording made;
    made.rates = rates;
    for (const qint64 stamp : stamps)
        made.samples.append({stamp, {7}, "1"});
    for (const char *type : {"ASCII", "BINARY"}) {
        QCOMPARE(convert(made, {1999, type}, options).status, 0);
        QVERIFY2(m_folder->read("out.cfg").contains(written + "15/03/2024"),
            m_folder->read("out.cfg").constData());
    }
}

// 1999 has six decimals.
void TestConverterForms::decimalsOfTheMoments()
{
    PublishedRecording made;
    made.rates = QByteArrayList{"1000,2"};
    made.startTime = "09:59:59.998999999";
    made.samples = {{0, {1}, "0"}, {1000000, {2}, "1"}};
    QCOMPARE(convert(made, {2013, "BINARY"}).errors, QByteArray());
    QVERIFY(m_folder->read("out.cfg").contains(
        "\r\n15/03/2024,09:59:59.998999\r\n15/03/2024,10:00:00.001000\r\n"));
    QVERIFY(faultsOfPair(
        m_folder->read("out.cfg").toStdString(), m_folder->read("out.dat").toStdString())
                .empty());
    CFGProperties original;
    original.filePath = m_folder->path(QStringLiteral("r.cfg"));
    original.readConfgFile();
    CFGProperties copy;
    copy.filePath = m_folder->path(QStringLiteral("out.cfg"));
    copy.readConfgFile();
    for (const CFGProperties *read : {&original, &copy}) {
        QCOMPARE(read->startTime, QStringLiteral("09:59:59.998"));
        QCOMPARE(read->triggerOffsetMs, 3);
    }
    // A part that begins 1 ms later.
    QCOMPARE(convert(made, {2013, "BINARY"}, QStringLiteral("--from 1")).errors, QByteArray());
    QVERIFY(m_folder->read("out.cfg").contains("\r\n15/03/2024,09:59:59.999999\r\n"));
}

void TestConverterForms::cellBeyondAllNumbers()
{
    PublishedRecording made;
    made.analog = QByteArrayList{"1,IL1,A,Bay,A,1e300,0.25,0,-32767,32767"};
    made.rates = QByteArrayList{"1000,3"};
    made.samples = {{0, {1e30}, "0"}, {1000, {-1e30}, "0"}, {2000, {0}, "0"}};
    QCOMPARE(convert(made, {2013, "FLOAT32"}, QStringLiteral("--csv")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.csv"),
        QByteArray("Time (ms),IL1 (A),Trip\r\n0,,0\r\n1,,0\r\n2,0.25,0\r\n"));
}

void TestConverterForms::singleFiles_data()
{
    QTest::addColumn<QByteArray>("search");
    QTest::addColumn<QByteArray>("replacement");
    QTest::newRow("headings in small letters") << QByteArray("--- file type: DAT BINARY: 24 ---")
                                               << QByteArray("--- file type: dat binary: 24 ---");
    QTest::newRow("heading without blanks") << QByteArray("--- file type: DAT BINARY: 24 ---")
                                            << QByteArray("--- file type:DAT BINARY:24---");
    QTest::newRow("heading without the number of bytes")
        << QByteArray("DAT BINARY: 24") << QByteArray("DAT BINARY");
    QTest::newRow("byte order mark") << QByteArray("Harju") << QByteArray("\xef\xbb\xbfHarju");
    QTest::newRow("byte order mark at the beginning")
        << QByteArray("--- file type: CFG ---") << QByteArray("\xef\xbb\xbf--- file type: CFG ---");
    QTest::newRow("byte order mark before a later heading")
        << QByteArray("--- file type: INF ---") << QByteArray("\xef\xbb\xbf--- file type: INF ---");
    QTest::newRow("byte order marks at both")
        << QByteArray("--- file type: CFG ---\r\nHarju")
        << QByteArray("\xef\xbb\xbf--- file type: CFG ---\r\n\xef\xbb\xbfHarju");
    QTest::newRow("lines that end with LF") << QByteArray("\r\n") << QByteArray("\n");
    QTest::newRow("empty line before a heading")
        << QByteArray("--- file type: INF ---") << QByteArray("\r\n--- file type: INF ---");
}

void TestConverterForms::singleFiles()
{
    QFETCH(QByteArray, search);
    QFETCH(QByteArray, replacement);
    PublishedRecording made;
    made.rates = QByteArrayList{"1200,2"};
    made.samples = {{0, {1}, "0"}, {833, {2}, "1"}};
    // Two records of 12 bytes.
    QByteArray file = made.singleFile({2013, "BINARY"});
    QVERIFY(file.contains(search));
    QVERIFY(m_folder->write("r.cff", file.replace(search, replacement)));
    QCOMPARE(m_folder->run(QStringLiteral("@r.cff")).errors, QByteArray());
    QCOMPARE(m_folder->read("r.dat"), QByteArray("1,0,1,0\r\n2,833,2,1\r\n"));
}

void TestConverterForms::endMarkOfTheOldRevisions()
{
    PublishedRecording made;
    made.rates = QByteArrayList{"1200,1"};
    made.samples = {{0, {1}, "0"}};
    const Form form{1991, "ASCII"};
    m_folder->write("r.cfg", made.configuration(form) + '\x1a');
    m_folder->write("r.dat", made.data(form) + "\x1a");
    QCOMPARE(m_folder->run(QStringLiteral("@r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,1,0\r\n"));
    m_folder->write("one.cff", made.singleFile(form) + '\x1a');
    QCOMPARE(m_folder->run(QStringLiteral("@one.cff")).errors, QByteArray());
    QCOMPARE(m_folder->read("one.dat"), QByteArray("1,0,1,0\r\n"));
}

void TestConverterForms::wordOfTheTypeInSmallLetters()
{
    PublishedRecording made;
    made.rates = QByteArrayList{"1200,1"};
    made.samples = {{0, {1}, "0"}};
    m_folder->write("r.cfg", made.configuration({1999, "Binary"}));
    m_folder->write("r.dat", made.data({1999, "BINARY"}));
    QCOMPARE(m_folder->run(QStringLiteral("@r.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,1,0\r\n"));
}

QTEST_GUILESS_MAIN(TestConverterForms)
#include "tst_converterforms.moc"
