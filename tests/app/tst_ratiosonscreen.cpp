// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What plots and phasors show after other ratios were set.

#include "baselayer.h"
#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "recordingbuilder.h"
#include "vectorpanel.h"
#include "windowfixture.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolTip>

#include <cmath>

namespace {

// Four samples a cycle of the amplitude 100, and a constant 10; both are of 400/5.
QString writeRecording(const QString &folder, const QString &flag)
{
    ConfigurationText text;
    text.station = "Harju,J07,1999";
    for (const char *name : {"I", "U"})
        text.addAnalog(name + (",,line,A,1,0,0,-999,999,400,5," + flag.toLatin1()));
    text.rates = QByteArrayList{"200,200"};
    text.trigger = "15/03/2024,10:00:00.050000";
    const QByteArrayList cycle{"100", "0", "-100", "0"};
    const QByteArray data = dataLines(200, 200, [&](int i) {
        return QByteArrayList{cycle.at(i % 4), "10"};
    });
    return writePair(folder + QStringLiteral("/ratios"), text.text(), data);
}

const QRgb yellow = qRgb(220, 220, 0); // of the second channel

} // namespace

class TestRatiosOnScreen : public WindowFixture {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(1400, 900); }
    void cleanup() { closeWindow(); }
    void valuesAndReadoutsFollowTheFactors_data();
    void valuesAndReadoutsFollowTheFactors();
    void aReloadBringsTheRatiosOfTheFile();
    void eachRowHasTheRatingsOfItsChannel();

private:
    void open(const QString &flag);
    void setRatios(const QString &primary, const QString &secondary) const;
    QString readout(int row) const;
    CTVTDialog *ratios() const { return window->findChild<CTVTDialog *>(); }

    Plotter *plot = nullptr; // an added one, of the waveforms and the spectrum of the first
};

// With a cursor at sample 100 and the phasors of the first channel on screen.
void TestRatiosOnScreen::open(const QString &flag)
{
    window->open(writeRecording(folder->path(), flag));
    QVERIFY(window->recording());
    window->addPlotter({QStringLiteral("I"), QStringLiteral("U"), QStringLiteral("I_FFT")});
    for (Plotter *candidate : window->findChildren<Plotter *>()) {
        if (candidate->showsSpectrum())
            plot = candidate;
    }
    int x = PlotGeometry::left;
    while (plot->geometryOfView().lineTime(x) < 499)
        ++x;
    QTest::mouseDClick(plot, Qt::LeftButton, {}, {x, 100});
    QVERIFY(std::abs(plot->cursors().first() - 500) < 2);
    trigger("&Show Vectors");
    window->findChild<VectorWidget *>()->findChildren<QCheckBox *>().first()->setChecked(true);
}

void TestRatiosOnScreen::setRatios(const QString &primary, const QString &secondary) const
{
    trigger("Rescale CTVT");
    const QList<QLineEdit *> edits = ratios()->findChildren<QLineEdit *>();
    QCOMPARE(edits.size(), 4);
    for (int i = 0; i < 4; ++i) {
        edits.at(i)->clear();
        QTest::keyClicks(edits.at(i), i % 2 == 0 ? primary : secondary);
    }
    QTest::mouseClick(
        ratios()->findChild<QPushButton *>(QStringLiteral("pushButton_Set")), Qt::LeftButton);
}

// The value at the cursor of a row of the table, as its tool tip tells it.
QString TestRatiosOnScreen::readout(int row) const
{
    const int rowHeight = QFontMetrics(smallFont(plot->font())).height() + 4;
    const QPoint cell(plot->width() - 10, 60 + row * rowHeight + rowHeight / 2);
    QHelpEvent event(QEvent::ToolTip, cell, plot->mapToGlobal(cell));
    QApplication::sendEvent(plot, &event);
    return QToolTip::text().section(QStringLiteral(": "), 1);
}

void TestRatiosOnScreen::valuesAndReadoutsFollowTheFactors_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<QString>("primary");
    QTest::addColumn<QString>("secondary");
    QTest::addColumn<int>("mode"); // primary, secondary, per unit
    QTest::addColumn<QStringList>("readouts"); // of 100, 10 and 70.7107
    QTest::addColumn<double>("constant"); // 10 times the factor; none where it is not seen
    const auto row = [](const char *name, const char *flag, const char *primary,
                         const char *secondary, int mode, const char *readouts, double constant) {
        QTest::newRow(name) << QString::fromLatin1(flag) << QString::fromLatin1(primary)
                            << QString::fromLatin1(secondary) << mode
                            << QString::fromLatin1(readouts).split(QLatin1Char(' ')) << constant;
    };
    const double none = std::numeric_limits<double>::quiet_NaN();
    row("primary values of secondary samples", "S", "600", "5", 0, "12000 1200 8485.28", 1200);
    row("secondary values of secondary samples", "S", "600", "5", 1, "500 50 353.553", 50);
    row("primary values of primary samples", "P", "600", "5", 0, "60000 6000 42426.4", 6000);
    row("secondary values of primary samples", "P", "600", "5", 1, "0.833333 0.0833333 0.589256",
        10.0 * 5 / 600);
    row("per unit goes by the ratings of the file", "S", "600", "1", 2, "20 2 14.1421", 2);
    row("so it does for primary samples", "P", "600", "1", 2, "0.25 0.025 0.176777", 0.025);
    row("a flag that is neither keeps the file's", "X", "600", "5", 0, "100 10 70.7107", 10);
    row("negative", "S", "-600", "5", 0, "-12000 -1200 -8485.28", -1200);
    row("huge", "S", "1e30", "1", 0, "1e+32 1e+31 7.07107e+31", 1e31);
    row("no number", "S", "abc", "5", 0, "0 0 0", none);
    row("empty", "P", "600", "", 1, "0 0 0", none);
    row("a secondary of 0", "S", "600", "0", 0, "inf inf inf", none);
    row("a primary of 0", "P", "0", "5", 1, "inf inf inf", none);
}

void TestRatiosOnScreen::valuesAndReadoutsFollowTheFactors()
{
    QFETCH(QString, flag);
    QFETCH(int, mode);
    QFETCH(double, constant);
    QFETCH(QString, primary);
    QFETCH(QString, secondary);
    open(flag);
    window->findChild<QComboBox *>(QStringLiteral("comboBox_primSec"))->setCurrentIndex(mode);

    setRatios(primary, secondary);

    QTEST(QStringList({readout(1), readout(2), readout(3)}), "readouts");
    const PlotSettings view = plot->view();
    QVERIFY(std::isfinite(view.minY) && std::isfinite(view.maxY) && view.minY < view.maxY);
    if (std::isfinite(constant)) {
        // The trace area reaches from y = 60 to the height less 41.
        const double y
            = 60 + (view.maxY - constant) * (plot->height() - 101) / (view.maxY - view.minY);
        const QImage picture = plot->grab().toImage();
        int yellowPixels = 0;
        for (int x = 110; x < 310; ++x)
            yellowPixels += picture.pixel(x, qRound(y)) == yellow ? 1 : 0;
        // The wave, which is drawn first, and the spectrum over it may cover some.
        QVERIFY2(yellowPixels > 100, qPrintable(QString::number(yellowPixels)));
    }
    // Phasors are shown as they were computed.
    QTRY_COMPARE(vectorpanel::magnitudes(window->findChild<VectorWidget *>()),
        vectorpanel::pictureOf({{{0, 15}, vectorpanel::orange, QStringLiteral("I: 70.7107")}}));
}

void TestRatiosOnScreen::aReloadBringsTheRatiosOfTheFile()
{
    open(QStringLiteral("S"));
    setRatios(QStringLiteral("600"), QStringLiteral("1"));
    QCOMPARE(readout(1), QStringLiteral("100")); // secondary values, times 1
    open(QStringLiteral("S"));
    QVERIFY(!ratios()->isVisible());
    trigger("Rescale CTVT");
    const QList<QLineEdit *> edits = ratios()->findChildren<QLineEdit *>();
    QCOMPARE(edits.size(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(edits.at(i)->text(), i % 2 == 0 ? QStringLiteral("400") : QStringLiteral("5"));
    window->findChild<QComboBox *>(QStringLiteral("comboBox_primSec"))->setCurrentIndex(0);
    QCOMPARE(readout(1), QStringLiteral("8000"));
}

// Neighbours with the same rating or all but the same, of different writing.
void TestRatiosOnScreen::eachRowHasTheRatingsOfItsChannel()
{
    const QList<std::pair<QByteArray, QByteArray>> ratings{{"400", "5"}, {"400.0", "5"},
        {"400", "1"}, {"0", "1"}, {"-0", "1"}, {"0", "0.5"}, {"nan", ".5"}, {"nan", "-0.5"},
        {"1200000", "5e-1"}, {"1200001", "5"}};
    ConfigurationText text;
    for (const auto &[primary, secondary] : ratings)
        text.addAnalog("I,,line,A,1,0,0,-999,999," + primary + ',' + secondary + ",P");
    for (int time = 0; time < 2; ++time) {
        window->open(writePair(folder->path() + QStringLiteral("/ratings"), text.text(), "1,0\n"));
        QVERIFY(window->recording());
        const QStringList primaries{QStringLiteral("400"), QStringLiteral("400"),
            QStringLiteral("400"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0"),
            QStringLiteral("nan"), QStringLiteral("nan"), QStringLiteral("1.2e+06"),
            QStringLiteral("1.2e+06")};
        const QStringList secondaries{QStringLiteral("5"), QStringLiteral("5"), QStringLiteral("1"),
            QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("0.5"), QStringLiteral("0.5"),
            QStringLiteral("-0.5"), QStringLiteral("0.5"), QStringLiteral("5")};
        QCOMPARE(ratios()->primaryTexts(), primaries);
        QCOMPARE(ratios()->secondaryTexts(), secondaries);
    }
}

QTEST_MAIN(TestRatiosOnScreen)
#include "tst_ratiosonscreen.moc"
