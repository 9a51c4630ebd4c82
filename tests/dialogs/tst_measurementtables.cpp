// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "measurementtables.h"

#include "analogchannel.h"
#include "digitalchannel.h"

#include <QtTest>

#include <cmath>
#include <list>

namespace {

constexpr float turn = 6.2831853F;
const QList<Quantity> all{
    Quantity::Value, Quantity::FundamentalRms, Quantity::Angle, Quantity::TrueRms, Quantity::Peak};

// Cells are told apart by bars.
QString line(const QStringList &cells)
{
    return cells.join(QLatin1Char('|'));
}

QStringList lines(const TextTable &table)
{
    QStringList result{line(table.headings)};
    for (const QStringList &row : table.rows)
        result.append(line(row));
    return result;
}

QStringList texts(const QList<const char *> &expected)
{
    QStringList result;
    for (const char *text : expected)
        result.append(QString::fromUtf8(text));
    return result;
}

} // namespace

// A recording of 101 samples, one each millisecond, with cycles of 20 samples.
class TestMeasurementTables : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cursorsHaveEveryQuantity();
    void aFactorMultipliesWhatItShould_data();
    void aFactorMultipliesWhatItShould();
    void spectraAndDigitalChannelsHaveLess();
    void whatIsUnknownIsEmpty();
    void anglesGoByTheReference_data();
    void anglesGoByTheReference();
    void differencesGoFromTheFirstToTheSecond();
    void equalMagnitudesDifferByNothing();
    void differencesOfAnglesGoTheShorterWay();
    void extremesAreFoundBetweenTheCursors_data();
    void extremesAreFoundBetweenTheCursors();
    void differencesNeedTwoCursors();
    void sequencesAreTold();
    void sequencesNeedThreePhasors();
    void sequencesOfDifferentUnitsHaveNone();
    void harmonicsAreTold();
    void harmonicsNeedACycle();

private:
    // Values that count up from 0, or as given; a phasor that is the same throughout.
    MeasuredChannel channel(const char *name, float degrees = 0, float magnitude = 10,
        const QVector<float> &values = {});
    void setCursors(const QVector<int> &samples);

    std::list<AnalogChannel> m_channels;
    Measured m_measured;
};

void TestMeasurementTables::init()
{
    m_channels.clear();
    m_measured = Measured();
    m_measured.samplesPerCycle = 20;
    m_measured.lineFrequency = 50;
    setCursors({20, 50});
}

MeasuredChannel TestMeasurementTables::channel(
    const char *name, float degrees, float magnitude, const QVector<float> &values)
{
    AnalogChannel &analog = m_channels.emplace_back();
    for (int i = 0; i <= 100; ++i) {
        analog.times.append(i);
        analog.values.append(values.isEmpty() ? static_cast<float>(i) : values.value(i));
    }
    analog.fftAngles.fill(degrees * turn / 360, 101);
    analog.fftMagnitudes.fill(magnitude, 101);
    MeasuredChannel measured;
    measured.name = QLatin1String(name);
    measured.unit = QStringLiteral("A (primary)");
    measured.analog = &analog;
    measured.trace = TraceSummary(analog.values);
    return measured;
}

void TestMeasurementTables::setCursors(const QVector<int> &samples)
{
    m_measured.cursors.clear();
    for (int i = 0; i < samples.size(); ++i)
        m_measured.cursors.append(
            {QStringLiteral("P%1").arg(i + 1), static_cast<double>(samples.at(i)), samples.at(i)});
}

// The RMS of 1 to 20 is the root of 20 x 21 x 41 / 6 / 20 = 143.5, that of 31 to 50 the root of
// (50 x 51 x 101 - 30 x 31 x 61) / 6 / 20 = 1673.5.
void TestMeasurementTables::cursorsHaveEveryQuantity()
{
    QCOMPARE(lines(cursorTable(m_measured, {channel("IL1", -60)}, all)),
        texts({"Channel|Quantity|Unit|P1 (20.000 ms)|P2 (50.000 ms)", "IL1|Value|A (primary)|20|50",
            "IL1|RMS of fundamental|A (primary)|10|10", "IL1|Angle|°|-60.00|-60.00",
            "IL1|True RMS|A (primary)|11.9791|40.9084", "IL1|Peak|A (primary)|20|50"}));
    QCOMPARE(lines(cursorTable(m_measured, {channel("IL1"), channel("IL2")}, {Quantity::Value})),
        texts({"Channel|Quantity|Unit|P1 (20.000 ms)|P2 (50.000 ms)", "IL1|Value|A (primary)|20|50",
            "IL2|Value|A (primary)|20|50"}));
}

void TestMeasurementTables::aFactorMultipliesWhatItShould_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<QStringList>("atP1");
    QTest::newRow("one") << 1.0 << texts({"20", "10", "30.00", "11.9791", "20"});
    QTest::newRow("eighty") << 80.0 << texts({"1600", "800", "30.00", "958.332", "1600"});
    QTest::newRow("a transformer the wrong way round")
        << -2.0 << texts({"-40", "20", "-150.00", "23.9583", "40"});
    QTest::newRow("nothing is left") << 0.0 << texts({"0", "0", "", "0", "0"});
}

void TestMeasurementTables::aFactorMultipliesWhatItShould()
{
    QFETCH(double, factor);
    MeasuredChannel measured = channel("IL1", 30);
    measured.factor = factor;
    const TextTable table = cursorTable(m_measured, {measured}, all);
    QStringList atP1;
    for (const QStringList &row : table.rows)
        atP1.append(row.at(3));
    QTEST(atP1, "atP1");
}

void TestMeasurementTables::spectraAndDigitalChannelsHaveLess()
{
    MeasuredChannel spectrum = channel("IL1 FFT", 30, 7);
    spectrum.isSpectrum = true;
    spectrum.factor = 3;
    DigitalChannel trip;
    for (int i = 0; i <= 100; ++i)
        trip.appendValue(i < 40 ? 0 : 1);
    MeasuredChannel digital;
    digital.name = QStringLiteral("TRIP");
    digital.digital = &trip;
    QCOMPARE(lines(cursorTable(m_measured, {spectrum, digital}, all)).mid(1),
        texts(
            {"IL1 FFT|Value|A (primary)|21|21", "IL1 FFT|Angle|°|30.00|30.00", "TRIP|Value||0|1"}));
    QCOMPARE(lines(differenceTable(m_measured, {digital}, all, 0, 1)).last(),
        QStringLiteral("TRIP|Value||0|1|1||||"));
}

void TestMeasurementTables::whatIsUnknownIsEmpty()
{
    MeasuredChannel bare = channel("Freq");
    m_channels.back().fftAngles.clear();
    m_channels.back().fftMagnitudes.clear();
    setCursors({18, -1, 101});
    QCOMPARE(lines(cursorTable(m_measured, {bare}, all)).mid(1),
        texts({"Freq|Value|A (primary)|18||", "Freq|RMS of fundamental|A (primary)|||",
            "Freq|Angle|°|||", "Freq|True RMS|A (primary)|||", "Freq|Peak|A (primary)|||"}));
    m_measured.cursors.clear();
    QCOMPARE(lines(cursorTable(m_measured, {bare}, {Quantity::Value})),
        texts({"Channel|Quantity|Unit", "Freq|Value|A (primary)"}));
}

void TestMeasurementTables::anglesGoByTheReference_data()
{
    QTest::addColumn<float>("angle");
    QTest::addColumn<float>("reference");
    QTest::addColumn<float>("magnitude"); // of the reference
    QTest::addColumn<double>("factor"); // of the reference
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, float angle, float reference, float magnitude,
                         double factor, const char *text) {
        QTest::newRow(name) << angle << reference << magnitude << factor
                            << QString(QLatin1String(text));
    };
    row("leads", 100, 40, 10, 1, "60.00");
    row("lags", 40, 100, 10, 1, "-60.00");
    row("lags over the seam", 170, -170, 10, 1, "-20.00");
    row("is the same", 77, 77, 10, 1, "0.00");
    row("is opposite, a little less", -179.999F, 0, 10, 1, "180.00");
    row("is a little behind", 0, 0.001F, 10, 1, "0.00");
    row("the reference is turned round", 100, 40, 10, -1, "-120.00");
    row("the reference is dead", 100, 40, 0, 1, "");
}

void TestMeasurementTables::anglesGoByTheReference()
{
    QFETCH(float, angle);
    QFETCH(float, reference);
    QFETCH(float, magnitude);
    QFETCH(double, factor);
    m_measured.reference = channel("UL1", reference, magnitude).analog;
    m_measured.referenceFactor = factor;
    const TextTable table = cursorTable(m_measured, {channel("IL1", angle)}, {Quantity::Angle});
    QTEST(table.rows.at(0).at(3), "text");
}

void TestMeasurementTables::differencesGoFromTheFirstToTheSecond()
{
    setCursors({70, 20, 50});
    QCOMPARE(lines(differenceTable(m_measured, {channel("IL1", -60)}, all, 1, 2)),
        texts({"Channel|Quantity|Unit|P2|P3|Difference|Smallest|at (ms)|Largest|at (ms)",
            "Time||ms|20.000|50.000|30.000||||", "Time||cycles|||1.500||||",
            "IL1|Value|A (primary)|20|50|30|20|20.000|50|50.000",
            "IL1|RMS of fundamental|A (primary)|10|10|0||||", "IL1|Angle|°|-60.00|-60.00|0.00||||",
            "IL1|True RMS|A (primary)|11.9791|40.9084|28.9293||||",
            "IL1|Peak|A (primary)|20|50|30||||"}));
    // And backwards; the extremes are the same.
    QCOMPARE(lines(differenceTable(m_measured, {channel("IL1")}, {Quantity::Value}, 2, 1)),
        texts({"Channel|Quantity|Unit|P3|P2|Difference|Smallest|at (ms)|Largest|at (ms)",
            "Time||ms|50.000|20.000|-30.000||||", "Time||cycles|||-1.500||||",
            "IL1|Value|A (primary)|50|20|-30|20|20.000|50|50.000"}));
    // A cursor and itself, with no frequency.
    m_measured.lineFrequency = 0;
    QCOMPARE(lines(differenceTable(m_measured, {channel("IL1")}, {Quantity::Value}, 0, 0)).mid(1),
        texts({"Time||ms|70.000|70.000|0.000||||", "Time||cycles|||||||",
            "IL1|Value|A (primary)|70|70|0|70|70.000|70|70.000"}));
}

// However their angles round: 1/3 in single precision at any two angles.
void TestMeasurementTables::equalMagnitudesDifferByNothing()
{
    const MeasuredChannel turning = channel("IL1", 10, 1.0F / 3);
    for (int i = 0; i < 30; ++i) {
        m_channels.back().fftAngles[50] = static_cast<float>(i) / 5;
        const TextTable table
            = differenceTable(m_measured, {turning}, {Quantity::FundamentalRms}, 0, 1);
        QCOMPARE(table.rows.last().at(5), QStringLiteral("0"));
    }
}

void TestMeasurementTables::differencesOfAnglesGoTheShorterWay()
{
    const MeasuredChannel turning = channel("IL1", 170);
    m_channels.back().fftAngles[50] = -170 * turn / 360;
    const TextTable table = differenceTable(m_measured, {turning}, {Quantity::Angle}, 0, 1);
    QCOMPARE(line(table.rows.last()), QStringLiteral("IL1|Angle|°|170.00|-170.00|20.00||||"));
}

void TestMeasurementTables::extremesAreFoundBetweenTheCursors_data()
{
    QTest::addColumn<QVector<float>>("values");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("extremes");
    QVector<float> hill(101);
    hill[30] = 9;
    hill[40] = -7;
    hill[60] = 9;
    hill[70] = -7;
    hill[71] = 99; // beyond
    const QVector<float> steps{5, 5, 5, 1, 1, 8, 8};
    QTest::newRow("the first of equal ones") << hill << 1.0 << 20 << 70 << "-7|40.000|9|30.000";
    QTest::newRow("both ends count") << hill << 1.0 << 60 << 70 << "-7|70.000|9|60.000";
    QTest::newRow("backwards") << hill << 1.0 << 70 << 60 << "-7|70.000|9|60.000";
    QTest::newRow("under a factor") << hill << 80.0 << 20 << 70 << "-560|40.000|720|30.000";
    QTest::newRow("turned round") << hill << -1.0 << 20 << 70 << "-9|30.000|7|40.000";
    QTest::newRow("at the first sample") << steps << 1.0 << 0 << 6 << "1|3.000|8|5.000";
    QTest::newRow("constant") << steps << 1.0 << 0 << 2 << "5|0.000|5|0.000";
    const float infinite = std::numeric_limits<float>::infinity();
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("what is not finite does not count") << QVector<float>{infinite, 2, notANumber, 3,
        -infinite} << 1.0 << 0 << 4 << "2|1.000|3|3.000";
    QTest::newRow("nothing is finite")
        << QVector<float>{infinite, notANumber} << 1.0 << 0 << 1 << "|||";
    QTest::newRow("from outside") << hill << 1.0 << -1 << 70 << "|||";
    QTest::newRow("to outside") << hill << 1.0 << 20 << 101 << "|||";
}

void TestMeasurementTables::extremesAreFoundBetweenTheCursors()
{
    QFETCH(QVector<float>, values);
    QFETCH(double, factor);
    QFETCH(int, from);
    QFETCH(int, to);
    setCursors({from, to});
    MeasuredChannel measured = channel("IL1", 0, 10, values);
    measured.factor = factor;
    const TextTable table = differenceTable(m_measured, {measured}, {Quantity::Value}, 0, 1);
    QTEST(line(table.rows.last().mid(6)), "extremes");
}

void TestMeasurementTables::differencesNeedTwoCursors()
{
    setCursors({20});
    QVERIFY(differenceTable(m_measured, {channel("IL1")}, all, 0, -1).rows.isEmpty());
    QVERIFY(differenceTable(m_measured, {channel("IL1")}, all, 1, 0).rows.isEmpty());
    setCursors({});
    QVERIFY(differenceTable(m_measured, {channel("IL1")}, all, -1, -1).rows.isEmpty());
}

// Of a fault of one phase: 9 A in the first, at -60 degrees.
void TestMeasurementTables::sequencesAreTold()
{
    setCursors({20});
    const std::array<MeasuredChannel, 3> fault{
        channel("IL1", -60, 9), channel("IL2", 0, 0), channel("IL3", 0, 0)};
    QCOMPARE(lines(sequenceTable(m_measured, fault)),
        texts({"Component: IL1, IL2, IL3|Quantity|Unit|P1 (20.000 ms)",
            "Positive sequence|RMS|A (primary)|3", "Positive sequence|Angle|°|-60.00",
            "Negative sequence|RMS|A (primary)|3", "Negative sequence|Angle|°|-60.00",
            "Zero sequence|RMS|A (primary)|3", "Zero sequence|Angle|°|-60.00"}));
    // The second phase alone, against a reference at 30 degrees, twice as large as recorded.
    m_measured.reference = channel("UL1", 30).analog;
    std::array<MeasuredChannel, 3> other{
        channel("IL1", 0, 0), channel("IL2", 30, 9), channel("IL3", 0, 0)};
    for (MeasuredChannel &phase : other)
        phase.factor = 2;
    QStringList cells;
    for (const QStringList &row : sequenceTable(m_measured, other).rows)
        cells.append(row.last());
    QCOMPARE(cells, texts({"6", "120.00", "6", "-120.00", "6", "0.00"}));
}

void TestMeasurementTables::sequencesNeedThreePhasors()
{
    setCursors({20, -1});
    std::array<MeasuredChannel, 3> phases{channel("IL1"), channel("IL2"), channel("IL3")};
    QCOMPARE(line(sequenceTable(m_measured, phases).rows.at(4)),
        QStringLiteral("Zero sequence|RMS|A (primary)|10|"));
    phases[2] = MeasuredChannel();
    QCOMPARE(
        line(sequenceTable(m_measured, phases).rows.at(4)), QStringLiteral("Zero sequence|RMS|||"));
}

void TestMeasurementTables::sequencesOfDifferentUnitsHaveNone()
{
    std::array<MeasuredChannel, 3> phases{channel("IL1"), channel("IL2"), channel("UL3")};
    phases[2].unit = QStringLiteral("V (primary)");
    QCOMPARE(sequenceTable(m_measured, phases).rows.at(0).at(2), QString());
}

// A third of a half beside a fundamental of amplitude 10: RMS 7.07107 and 3.53553.
void TestMeasurementTables::harmonicsAreTold()
{
    QVector<float> values;
    for (int i = 0; i <= 100; ++i)
        values.append(10 * std::cos(turn * static_cast<float>(i) / 20)
            + 5 * std::cos(3 * turn * static_cast<float>(i) / 20));
    MeasuredChannel measured = channel("IL1", 0, 7.0710678F, values);
    measured.factor = -80;
    const Harmonics harmonics = measuredHarmonics(m_measured, measured, m_measured.cursors.at(1));
    const QStringList shown = lines(harmonicTable(harmonics, measured, m_measured.cursors.at(1)));
    QCOMPARE(shown.size(), 16);
    QCOMPARE(shown.at(0),
        QStringLiteral("Harmonic: IL1, P2 (50.000 ms)|RMS, A (primary)|% of fundamental"));
    QCOMPARE(shown.at(1), QStringLiteral("1|565.685|100.00"));
    QVERIFY(shown.at(2).endsWith(QLatin1String("|0.00")));
    QCOMPARE(shown.at(3), QStringLiteral("3|282.843|50.00"));
    QVERIFY(shown.at(9).startsWith(QLatin1String("9|")));
    QCOMPARE(shown.at(10), QStringLiteral("10||")); // half of 20 samples
    QCOMPARE(shown.at(15), QStringLiteral("15||"));
}

void TestMeasurementTables::harmonicsNeedACycle()
{
    const MeasuredChannel measured = channel("IL1");
    setCursors({8, 9, 90, 91, -1});
    QList<bool> known;
    for (const MeasuredCursor &cursor : qAsConst(m_measured.cursors))
        known.append(measuredHarmonics(m_measured, measured, cursor).at(0).has_value());
    QCOMPARE(known, QList<bool>({false, true, true, false, false}));
    QVERIFY(!measuredHarmonics(m_measured, {}, m_measured.cursors.at(1)).at(0));
    const QStringList none = lines(harmonicTable({}, {}, {}));
    QCOMPARE(none.at(0), QStringLiteral("Harmonic|RMS|% of fundamental"));
    QCOMPARE(none.at(1), QStringLiteral("1||"));
}

QTEST_APPLESS_MAIN(TestMeasurementTables)
#include "tst_measurementtables.moc"
