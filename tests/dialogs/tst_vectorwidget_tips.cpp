// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Tool tips of a panel's lines and magnitude texts.

#include "vectorpanel.h"

#include <QHelpEvent>
#include <QToolTip>

using namespace vectorpanel;

// Ia has 52 at 0 degrees, a line of 79 pixels to the right; Ib 29 at 90 degrees, one of 44 pixels
// upwards; both at P1 (50 ms) and P2 (70 ms).
class TestVectorWidgetTips : public QObject, private VectorPanelFixture {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { tearDown(); }
    void tellWhatStandsAtAPoint_data();
    void tellWhatStandsAtAPoint();
    void followTheReference();
    void tellTheSideAsRecorded_data();
    void tellTheSideAsRecorded();
    void namesAreNoMarkup();
    void followWhatIsTicked();
    void withoutADirectionTellNoAngle();

private:
    QString tip(const char *place, const QPoint &point) const
    {
        QWidget *under = label(place);
        QHelpEvent help(QEvent::ToolTip, point, under->mapToGlobal(point));
        QApplication::sendEvent(under, &help);
        const QString text = QToolTip::text();
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->inherits("QTipLabel"))
                delete widget; // the toolkit hides it only after a while
        }
        return text;
    }
    QString lineTip(const QPoint &fromOrigin) const
    {
        return tip("labelVector", origin + QPoint(fromOrigin.x(), -fromOrigin.y()));
    }
};

void TestVectorWidgetTips::init()
{
    setUp();
    recording.add(QStringLiteral("Ia"), 0, 52, extremeOf100).ps = QStringLiteral("P");
    recording.add(QStringLiteral("Ib"), pi / 2, 29, extremeOf100).ps = QStringLiteral("P");
    recording.properties->analogUnits = QStringList{QStringLiteral("A"), QStringLiteral("A")};
    setPlotter({50, 70});
    show();
    check(0);
    check(1);
    QCOMPARE(magnitudes(),
        pictureOf({{{0, 15}, orange, QStringLiteral("Ia: 52")},
            {{121, 15}, green, QStringLiteral("Ib: 29")},
            {{242, 15}, orange, QStringLiteral("Ia: 52")},
            {{0, 30}, green, QStringLiteral("Ib: 29")}}));
}

void TestVectorWidgetTips::tellWhatStandsAtAPoint_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("expected");
    const QString texts = QStringLiteral("labelMagnitudes");
    const QString lines = QStringLiteral("labelVector");
    const QString first = QStringLiteral("Ia at P1\nRMS: 52 A (primary)\nAngle: 0.00°");
    const QString second = QStringLiteral("Ib at P1\nRMS: 29 A (primary)\nAngle: 90.00°");
    QTest::newRow("first text") << texts << QPoint(10, 10) << first;
    QTest::newRow("second text") << texts << QPoint(130, 10) << second;
    QTest::newRow("at the second cursor")
        << texts << QPoint(250, 12)
        << QStringLiteral("Ia at P2\nRMS: 52 A (primary)\nAngle: 0.00°");
    QTest::newRow("second row") << texts << QPoint(10, 25)
                                << QStringLiteral("Ib at P2\nRMS: 29 A (primary)\nAngle: 90.00°");
    QTest::newRow("no text") << texts << QPoint(130, 25) << QString();
    QTest::newRow("below the texts") << texts << QPoint(10, 60) << QString();
    QTest::newRow("first line") << lines << origin + QPoint(60, 0) << first;
    QTest::newRow("beside it") << lines << origin + QPoint(60, 3) << first;
    QTest::newRow("too far beside it") << lines << origin + QPoint(60, 5) << QString();
    QTest::newRow("beyond its end") << lines << origin + QPoint(84, 0) << QString();
    QTest::newRow("second line") << lines << origin - QPoint(0, 40) << second;
    QTest::newRow("opposite to it") << lines << origin + QPoint(0, 20) << QString();
}

void TestVectorWidgetTips::tellWhatStandsAtAPoint()
{
    QFETCH(QString, place);
    QFETCH(QPoint, point);
    QFETCH(QString, expected);
    for (int twice = 0; twice < 2; ++twice)
        QCOMPARE(tip(place.toLatin1(), point), expected);
}

// Turned by a quarter against the clock, Ia points down and Ib to the right.
void TestVectorWidgetTips::followTheReference()
{
    setReference(QStringLiteral("Ib"));
    QTRY_COMPARE(
        lineTip({0, -60}), QStringLiteral("Ia at P1\nRMS: 52 A (primary)\nAngle to Ib: -90.00°"));
    QCOMPARE(lineTip({30, 0}), QStringLiteral("Ib at P1\nRMS: 29 A (primary)\nAngle to Ib: 0.00°"));
    setReference(QStringLiteral("-"));
    QTRY_COMPARE(lineTip({60, 0}), QStringLiteral("Ia at P1\nRMS: 52 A (primary)\nAngle: 0.00°"));
}

void TestVectorWidgetTips::tellTheSideAsRecorded_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("line");
    QTest::newRow("secondary") << QStringLiteral("S") << QStringLiteral("V")
                               << QStringLiteral("RMS: 52 V (secondary)");
    QTest::newRow("no side") << QString() << QStringLiteral(" kV ") << QStringLiteral("RMS: 52 kV");
    QTest::newRow("no unit") << QStringLiteral("P") << QString()
                             << QStringLiteral("RMS: 52 primary");
    QTest::newRow("neither") << QString() << QString() << QStringLiteral("RMS: 52");
    QTest::newRow("markup") << QString() << QStringLiteral("<b>A</b>")
                            << QStringLiteral("RMS: 52 <b>A</b>"); // shown as it stands
}

void TestVectorWidgetTips::tellTheSideAsRecorded()
{
    QFETCH(QString, flag);
    QFETCH(QString, unit);
    QFETCH(QString, line);
    recording.channels.front()->ps = flag;
    recording.properties->analogUnits[0] = unit;
    panel->drawAll();
    QCOMPARE(lineTip({60, 0}).split(QLatin1Char('\n')).value(1), line);
}

void TestVectorWidgetTips::namesAreNoMarkup()
{
    recording.properties->analogIds[0] = QStringLiteral("<b>I</b>");
    dialog->setChannelNames(recording.properties->analogIds);
    check(0);
    QVERIFY(lineTip({60, 0}).startsWith(QStringLiteral("&lt;b&gt;I&lt;/b&gt; at P1")));
}

void TestVectorWidgetTips::followWhatIsTicked()
{
    checkBoxes().at(0)->setChecked(false);
    QCOMPARE(lineTip({60, 0}), QString());
    QVERIFY(tip("labelMagnitudes", {10, 10}).startsWith(QStringLiteral("Ib at P1")));
    dialog->setPlotter(nullptr);
    panel->drawAll();
    QCOMPARE(tip("labelMagnitudes", {10, 10}), QString());
}

void TestVectorWidgetTips::withoutADirectionTellNoAngle()
{
    recording.channels.front()->fftMagnitudes.fill(0);
    panel->drawAll();
    QCOMPARE(tip("labelMagnitudes", {10, 10}), QStringLiteral("Ia at P1\nRMS: 0 A (primary)"));
    QVERIFY(lineTip({0, 2}).startsWith(QStringLiteral("Ib at P1")));
}

QTEST_MAIN(TestVectorWidgetTips)
#include "tst_vectorwidget_tips.moc"
