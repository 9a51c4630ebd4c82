// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "contrast.h"
#include "reportpicture.h"

#include <QPainter>
#include <QtTest>

class TestReportPicture : public QObject {
    Q_OBJECT

private slots:
    void init();
    void darkensColours_data();
    void darkensColours();
    void darkensNothingElse();
    void tellsWhatWasRecorded();
    void listsTheCursors();
    void hasNoTableWithoutCursors();
    void standsAroundThePlots_data();
    void standsAroundThePlots();
    void cutsLongNames();
    void lightensUnderNames_data();
    void lightensUnderNames();
    void writesNamesOverThePlots_data();
    void writesNamesOverThePlots();

private:
    CFGProperties recording;
};

constexpr QRgb white = 0xffffffff;

void TestReportPicture::init()
{
    recording.clearConfig();
    recording.stationName = QStringLiteral(" Harju ");
    recording.recordingDeviceId = QStringLiteral("Feeder J07");
    recording.startDate = QStringLiteral("15/03/2024");
    recording.startTime = QStringLiteral("10:00:00.250");
    recording.triggerOffsetMs = 45;
}

void TestReportPicture::darkensColours_data()
{
    QTest::addColumn<QRgb>("before");
    QTest::addColumn<bool>("stays");
    QTest::newRow("white") << white << true;
    QTest::newRow("black") << 0xff000000 << true;
    QTest::newRow("red of the save markers") << 0xffc80000 << true;
    QTest::newRow("dark blue") << 0xff000080 << true;
    QTest::newRow("yellow of the differences") << 0xfffffa50 << false;
    QTest::newRow("almost white") << 0xfffefefe << false;
    QTest::newRow("cyan") << 0xff00ffff << false;
    QTest::newRow("light grey") << 0xffc0c0c0 << false;
    QTest::newRow("pure red, 4.0 to white") << 0xffff0000 << false;
}

void TestReportPicture::darkensColours()
{
    QFETCH(QRgb, before);
    QFETCH(bool, stays);
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(white);
    image.setPixel(1, 1, before);
    darkenForPaper(image);
    const QRgb after = image.pixel(1, 1);
    QCOMPARE(after == before, stays);
    QCOMPARE(image.pixel(2, 1), white);
    if (before == white)
        return;
    QVERIFY2(contrast(after, white) >= 4.5, qPrintable(QString::number(after, 16)));
    QVERIFY(stays || contrast(after, white) < 4.7); // no darker than need be
    // The hue stays: which channel is the strongest, and which are equal.
    QCOMPARE(qRed(after) > qBlue(after), qRed(before) > qBlue(before));
    QCOMPARE(qRed(after) == qGreen(after), qRed(before) == qGreen(before));
}

void TestReportPicture::darkensNothingElse()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setDevicePixelRatio(1.5);
    image.fill(white);
    darkenForPaper(image);
    QCOMPARE(image.pixel(0, 0), white);
    QCOMPARE(image.devicePixelRatio(), 1.5);
    QImage none;
    darkenForPaper(none);
    QVERIFY(none.isNull());
}

void TestReportPicture::tellsWhatWasRecorded()
{
    const ReportPicture report(
        recording, QStringLiteral("fault.cfg"), QStringLiteral("Secondary"), {});
    QCOMPARE(report.heading,
        QStringList({QStringLiteral("Harju    Feeder J07"), QStringLiteral("fault.cfg"),
            QStringLiteral("Start: 15/03/2024 10:00:00.250    Trigger at 45 ms    Secondary")}));
}

void TestReportPicture::listsTheCursors()
{
    const ReportPicture report(recording, QString(), QString(), {20.5, 100, 45});
    QStringList rows;
    for (const QStringList &row : report.table)
        rows.append(row.join(QLatin1Char('|')));
    QCOMPARE(rows,
        QStringList({QStringLiteral("Cursor|Time (ms)|Clock Time|From Trigger (ms)|From Cursor "
                                    "Before (ms)"),
            QStringLiteral("P1|20.500|10:00:00.270500|-24.500|"),
            QStringLiteral("P2|100.000|10:00:00.350000|55.000|79.500"),
            QStringLiteral("P3|45.000|10:00:00.295000|0.000|-55.000")}));
}

void TestReportPicture::hasNoTableWithoutCursors()
{
    QVERIFY(ReportPicture(recording, QString(), QString(), {}).table.isEmpty());
}

void TestReportPicture::standsAroundThePlots_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QList<double>>("cursors");
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        QTest::addRow("%g, no cursor", ratio) << ratio << QList<double>();
        QTest::addRow("%g, two cursors", ratio) << ratio << QList<double>{1, 2};
    }
}

void TestReportPicture::standsAroundThePlots()
{
    QFETCH(double, ratio);
    QFETCH(QList<double>, cursors);
    QPixmap plots(QSize(400, 200) * ratio);
    plots.setDevicePixelRatio(ratio);
    plots.fill(Qt::white);
    QPainter(&plots).fillRect(QRect(0, 0, 400, 200), Qt::blue);
    QFont font;
    font.setPixelSize(12);
    const int line = QFontMetrics(font).lineSpacing();
    const ReportPicture report(recording, QStringLiteral("fault.cfg"), QString(), cursors);
    const QImage picture = report.around(plots, font).toImage();
    const int above = 20 + 3 * line;
    const int below = cursors.isEmpty() ? 0 : 20 + 3 * line;
    QCOMPARE(picture.devicePixelRatio(), ratio);
    QCOMPARE(picture.size(), QSize(400, above + 200 + below) * ratio);

    // Blue is dark enough; above and below it texts stand in black on white.
    const QRgb blue = QColor(Qt::blue).rgb();
    const auto count = [&](QRgb color, int from, int to) {
        int found = 0;
        for (int y = qRound(from * ratio); y < qRound(to * ratio); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                found += picture.pixel(x, y) == color ? 1 : 0;
        }
        return found;
    };
    QCOMPARE(count(blue, above + 1, above + 199),
        qRound(400 * ratio) * (qRound((above + 199) * ratio) - qRound((above + 1) * ratio)));
    QCOMPARE(count(blue, 0, above - 1), 0);
    QVERIFY(count(0xff000000, 10, above - 10) > 100);
    QCOMPARE(count(white, 0, 9), qRound(400 * ratio) * qRound(9 * ratio));
    if (below > 0)
        QVERIFY(count(0xff000000, above + 210, above + 200 + below) > 100);
}

void TestReportPicture::cutsLongNames()
{
    recording.stationName = QString(5000, QLatin1Char('x'));
    QPixmap plots(300, 100);
    plots.fill(Qt::white);
    const QImage picture = ReportPicture(recording, QStringLiteral("a.cfg"), QString(), {})
                               .around(plots, QFont())
                               .toImage();
    QCOMPARE(picture.width(), 300);
    for (int y = 0; y < picture.height(); ++y)
        QCOMPARE(picture.pixel(295, y), white); // the margin
}

void TestReportPicture::lightensUnderNames_data()
{
    QTest::addColumn<QRgb>("before");
    QTest::addColumn<QRgb>("after");
    QTest::newRow("white") << white << white;
    // The grey whose contrast to white is 4.5 and to black 4.6.
    QTest::newRow("black") << 0xff000000 << 0xff767676;
    QTest::newRow("what is as light as paper allows") << 0xff767676 << 0xff767676;
}

void TestReportPicture::lightensUnderNames()
{
    QFETCH(QRgb, before);
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(before);
    lightenForName(image, QRect(2, 1, 9, 9));
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 4; ++x) {
            if (x >= 2 && y >= 1)
                QTEST(image.pixel(x, y), "after");
            else
                QCOMPARE(image.pixel(x, y), before);
        }
    }
}

void TestReportPicture::writesNamesOverThePlots_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRgb>("band");
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        for (const QRgb band : {0xfff0fff0, 0xff000000, 0xffffff00, 0xff4242ff, 0xff000080})
            QTest::addRow("%g, over %x", ratio, band) << ratio << band;
    }
}

// The band stands across the plots, rows 30 to 39; the name stands over all of its height.
void TestReportPicture::writesNamesOverThePlots()
{
    QFETCH(double, ratio);
    QFETCH(QRgb, band);
    QPixmap plots(QSize(200, 80) * ratio);
    plots.setDevicePixelRatio(ratio);
    plots.fill(Qt::white);
    QPainter(&plots).fillRect(QRect(0, 30, 200, 10), QColor(band));
    QFont font;
    font.setPixelSize(12);
    ReportPicture report(recording, QString(), QString(), {});
    report.names.append({QStringLiteral("P3"), QRect(100, 26, 24, 18), font});
    const QImage picture = report.around(plots, font).toImage();
    const int above = 20 + 3 * QFontMetrics(font).lineSpacing();
    const QRgb black = 0xff000000;
    int letters = 0;
    for (int x = qRound(101 * ratio); x < qRound(123 * ratio); ++x) {
        for (int y = qRound((above + 27) * ratio); y < qRound((above + 43) * ratio); ++y) {
            const QRgb color = picture.pixel(x, y);
            const QByteArray place = QByteArray::number(x) + ' ' + QByteArray::number(y);
            const bool isBand
                = y >= qRound((above + 31) * ratio) && y < qRound((above + 39) * ratio);
            QVERIFY2(!isBand || contrast(color, white) >= 4.5, place.constData());
            QVERIFY2(color == black || contrast(color, black) >= 4.5, place.constData());
            letters += color == black ? 1 : 0;
        }
    }
    QVERIFY(letters > 10);
    QVERIFY(letters < 200 * ratio * ratio); // of 22 x 16 pixels
}

QTEST_MAIN(TestReportPicture)
#include "tst_reportpicture.moc"
