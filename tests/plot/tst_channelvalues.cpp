// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "channelvalues.h"

#include "analogchannel.h"

#include <QtTest>

#include <cmath>

class TestChannelValues : public QObject {
    Q_OBJECT

private slots:
    void valueFactor_data();
    void valueFactor();
    void isMultiplied_data();
    void isMultiplied();
    void angleDegrees_data();
    void angleDegrees();
    void angleAhead_data();
    void angleAhead();
    void angleTraceWithoutReferenceIsInDegrees();
    void angleTraceWithReferenceIsInRadians();
    void angleTraceEndsWithTheShorterSeries();
};

void TestChannelValues::valueFactor_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("ps");
    QTest::addColumn<double>("factor");
    QTest::newRow("primary") << 0 << "S" << 120.0;
    QTest::newRow("secondary") << 1 << "S" << 0.5;
    QTest::newRow("per unit of a secondary channel") << 2 << "S" << 0.2;
    QTest::newRow("per unit of a primary channel") << 2 << "P" << 0.0025;
    QTest::newRow("per unit of a channel with another flag") << 2 << "s" << 1.0;
    QTest::newRow("per unit of a channel without a flag") << 2 << "" << 1.0;
    QTest::newRow("any other mode") << 3 << "S" << 1.0;
    QTest::newRow("a negative mode") << -1 << "P" << 1.0;
}

void TestChannelValues::valueFactor()
{
    QFETCH(int, mode);
    QFETCH(QString, ps);
    AnalogChannel channel;
    channel.ps = ps;
    channel.toPrimary = 120;
    channel.toSecondary = 0.5;
    channel.primary = 400;
    channel.secondary = 5;
    QTEST(::valueFactor(channel, mode), "factor");
}

void TestChannelValues::isMultiplied_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("ps");
    QTest::addColumn<double>("toPrimary");
    QTest::addColumn<double>("toSecondary");
    QTest::addColumn<bool>("multiplied");
    QTest::newRow("primary as recorded") << 0 << "P" << 1.0 << 0.5 << false;
    QTest::newRow("secondary as recorded") << 1 << "S" << 80.0 << 1.0 << false;
    QTest::newRow("primary, set") << 0 << "P" << 400.0 << 0.5 << true;
    QTest::newRow("secondary, set") << 1 << "S" << 80.0 << 5.0 << true;
    QTest::newRow("primary of a secondary channel") << 0 << "S" << 80.0 << 5.0 << false;
    QTest::newRow("secondary of a primary channel") << 1 << "P" << 400.0 << 0.5 << false;
    QTest::newRow("per unit") << 2 << "S" << 80.0 << 5.0 << false;
    QTest::newRow("neither side") << 1 << "" << 80.0 << 5.0 << false;
}

void TestChannelValues::isMultiplied()
{
    QFETCH(int, mode);
    QFETCH(QString, ps);
    QFETCH(double, toPrimary);
    QFETCH(double, toSecondary);
    AnalogChannel channel;
    channel.ps = ps;
    channel.primary = 400;
    channel.secondary = 5;
    channel.toPrimary = toPrimary;
    channel.toSecondary = toSecondary;
    QTEST(::isMultiplied(channel, mode), "multiplied");
}

void TestChannelValues::angleDegrees_data()
{
    QTest::addColumn<double>("radians");
    QTest::addColumn<double>("degrees");
    QTest::newRow("zero") << 0.0 << 0.0;
    QTest::newRow("a quarter turn") << M_PI / 2 << 90.0;
    QTest::newRow("a quarter turn behind") << -M_PI / 2 << 270.0;
    QTest::newRow("half a turn") << M_PI << 180.0;
}

// The short pi makes the angles differ from the true ones by up to 6e-6 degrees.
void TestChannelValues::angleDegrees()
{
    QFETCH(double, radians);
    QFETCH(double, degrees);
    QVERIFY(std::abs(::angleDegrees(radians) - degrees) < 1e-5);
    if (radians != 0)
        QVERIFY(::angleDegrees(radians) != degrees);
}

void TestChannelValues::angleAhead_data()
{
    QTest::addColumn<double>("channel");
    QTest::addColumn<double>("reference");
    QTest::addColumn<double>("radians");
    QTest::newRow("equal") << 1.0 << 1.0 << 0.0;
    QTest::newRow("ahead by a quarter turn") << 2.0 << 2.0 - M_PI / 2 << M_PI / 2;
    QTest::newRow("behind by a quarter turn") << 0.0 << M_PI / 2 << 3 * M_PI / 2;
    QTest::newRow("across the half turn") << -3.0 << 3.0 << 2 * M_PI - 6.0;
}

void TestChannelValues::angleAhead()
{
    QFETCH(double, channel);
    QFETCH(double, reference);
    QFETCH(double, radians);
    QVERIFY(std::abs(::angleAhead(channel, reference) - radians) < 1e-6);
}

void TestChannelValues::angleTraceWithoutReferenceIsInDegrees()
{
    const QVector<float> angles = angleTrace({0, float(M_PI / 2), float(-M_PI / 2)}, nullptr);
    QCOMPARE(angles.size(), 3);
    QCOMPARE(qRound(angles.at(0)), 0);
    QCOMPARE(qRound(angles.at(1)), 90);
    QCOMPARE(qRound(angles.at(2)), 270);
}

void TestChannelValues::angleTraceWithReferenceIsInRadians()
{
    const QVector<float> reference{0, 0.5F};
    const QVector<float> angles = angleTrace({1, 1}, &reference);
    QVERIFY(qAbs(angles.at(0) - 1.0F) < 1e-5F);
    QVERIFY(qAbs(angles.at(1) - 0.5F) < 1e-5F);
}

void TestChannelValues::angleTraceEndsWithTheShorterSeries()
{
    const QVector<float> reference{0};
    QCOMPARE(angleTrace({1, 1, 1}, &reference).size(), 1);
    const QVector<float> none;
    QVERIFY(angleTrace({1}, &none).isEmpty());
}

QTEST_APPLESS_MAIN(TestChannelValues)
#include "tst_channelvalues.moc"
