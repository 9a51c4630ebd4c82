// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// What the phasor dialog shows of recordings that were opened, against closed forms.

#include "cfgproperties.h"
#include "customlabel.h"
#include "drawingcounter.h"
#include "recordingbuilder.h"
#include "vectorpanel.h"
#include "windowfixture.h"

#include <QToolButton>

#include <cmath>
#include <functional>

namespace {

using namespace vectorpanel;

// Of a sample.
using Wave = std::function<double(int)>;

constexpr double turn = 6.283185307179586;

Wave cosine(double amplitude, double samplesPerCycle, double degrees = 0)
{
    return
        [=](int i) { return amplitude * std::cos(turn * (i / samplesPerCycle + degrees / 360)); };
}

struct Signal {
    QByteArray name;
    Wave wave;
};

// 200 samples of primary values; the multiplier is 0.5 and the offset 7, which no phasor shows.
QString writeSignals(
    const QString &folder, int frequency, int rate, const QList<Signal> &analogSignals)
{
    constexpr int samples = 200;
    ConfigurationText text;
    text.station = "Harju,J07,1999";
    for (const Signal &signal : analogSignals)
        text.addAnalog(signal.name + ",,line,A,0.5,7,0,-99999,99999,400,5,P");
    text.frequency = QByteArray::number(frequency);
    text.rates = QByteArrayList{QByteArray::number(rate) + ',' + QByteArray::number(samples)};
    text.trigger = "15/03/2024,10:00:00.050000";
    const QByteArray data = dataLines(samples, rate, [&](int i) {
        QByteArrayList values;
        for (const Signal &signal : analogSignals)
            values += QByteArray::number(2 * signal.wave(i), 'f', 5);
        return values;
    });
    return writePair(folder + QStringLiteral("/signals"), text.text(), data);
}

} // namespace

class TestPhasorsOnScreen : public WindowFixture {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(1400, 700); }
    void cleanup() { closeWindow(); }
    void balancedPhasesStandAThirdApart_data();
    void balancedPhasesStandAThirdApart();
    void harmonicsAloneReadNothing();
    void aStepReadsBeforeDuringAndAfter();
    void shortCyclesAreRead_data();
    void shortCyclesAreRead();
    void aDraggedCursorDrawsOnceATurn();
    void phasorsMoveWithTheCursor();
    void aReloadBeginsAnew();
    void equalNamesKeepApartOverReloads();
    void aReloadDuringADrawingIsSurvived();
    void closingDuringADrawingIsSurvived_data();
    void closingDuringADrawingIsSurvived();

private:
    // Opens the signals and shows the dialog, with every channel of the first panel checked.
    void open(int frequency, int rate, const QList<Signal> &analogSignals);
    void checkAll(QWidget *panel) const;
    // Sets a cursor at the sample by a double-click on the first plot.
    void setCursor(int sample);
    Plotter *plot() const { return plotNamed(QStringLiteral("Analog")); }
    VectorDialog *dialog() const { return window->findChild<VectorDialog *>(); }
    QList<VectorWidget *> panels() const { return dialog()->findChildren<VectorWidget *>(); }
    void addPanel() const
    {
        QTest::mouseClick(dialog()->findChild<QToolButton *>(
                              QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly),
            Qt::LeftButton);
    }
    void dragCursor(int x) const;
};

void TestPhasorsOnScreen::checkAll(QWidget *panel) const
{
    for (QCheckBox *box : panel->findChildren<QCheckBox *>())
        box->setChecked(true);
}

void TestPhasorsOnScreen::open(int frequency, int rate, const QList<Signal> &analogSignals)
{
    window->open(writeSignals(folder->path(), frequency, rate, analogSignals));
    QVERIFY(window->recording());
    trigger("&Show Vectors");
    QVERIFY(QTest::qWaitForWindowExposed(dialog()));
    QVERIFY(!panels().isEmpty());
    QTRY_VERIFY(!diagram(panels().first()).isNull());
    checkAll(panels().first());
}

void TestPhasorsOnScreen::setCursor(int sample)
{
    const CFGProperties *recording = window->recording();
    const double step = 1000 / recording->sampleRate;
    int x = PlotGeometry::left;
    while (plot()->geometryOfView().lineTime(x) < (sample - 0.1) * step)
        ++x;
    QTest::mouseDClick(plot(), Qt::LeftButton, {}, {x, 150});
    QVERIFY(std::abs(plot()->cursors().last() - sample * step) < 0.45 * step);
}

void TestPhasorsOnScreen::dragCursor(int x) const
{
    const QPoint position(x, 150);
    QMouseEvent move(QEvent::MouseMove, position, plot()->mapToGlobal(position), Qt::NoButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(plot(), &move);
}

void TestPhasorsOnScreen::balancedPhasesStandAThirdApart_data()
{
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("rate");
    QTest::newRow("50 Hz") << 50 << 600;
    QTest::newRow("60 Hz") << 60 << 720;
}

// 100 / root 2 is 70.7107; with 5 % more the axes end at 75, and the lines are 143.8 pixels long,
// for the others 71.9 in x and 124.5 in y.
void TestPhasorsOnScreen::balancedPhasesStandAThirdApart()
{
    QFETCH(int, frequency);
    QFETCH(int, rate);
    open(frequency, rate,
        {{"IA", cosine(100, 12, 30)}, {"IB", cosine(100, 12, 30 - 120)},
            {"IC", cosine(100, 12, 30 + 120)}});
    dialog()->findChild<QComboBox *>(QStringLiteral("comboBox_reference"))->setCurrentIndex(1);
    setCursor(77);
    const VectorWidget *panel = panels().first();
    QTRY_COMPARE(magnitudes(panel),
        pictureOf({{{0, 15}, orange, QStringLiteral("IA: 70.7107")},
            {{121, 15}, green, QStringLiteral("IB: 70.7107")},
            {{242, 15}, blue, QStringLiteral("IC: 70.7107")}}));
    const QImage expected
        = linesPicture({{{143, 0}, orange}, {{-71, -124}, green}, {{-71, 124}, blue}});
    for (const QColor &color : {orange, green, blue})
        QCOMPARE(pixelsOf(diagram(panel), color), pixelsOf(expected, color));
}

// Four samples a cycle, so that sums of the second harmonic and of a constant are exactly 0.
void TestPhasorsOnScreen::harmonicsAloneReadNothing()
{
    open(50, 200, {{"I1", cosine(100, 4)}, {"I2", cosine(100, 2)}, {"I0", cosine(100, 1)}});
    setCursor(77);
    const VectorWidget *panel = panels().first();
    QTRY_COMPARE(magnitudes(panel),
        pictureOf({{{0, 15}, orange, QStringLiteral("I1: 70.7107")},
            {{121, 15}, green, QStringLiteral("I2: 0")},
            {{242, 15}, blue, QStringLiteral("I0: 0")}}));
    QVERIFY(boundsOf(diagram(panel), orange).width() > 140
        || boundsOf(diagram(panel), orange).height() > 140);
    QVERIFY(boundsOf(diagram(panel), green).width() <= 1);
    QVERIFY(boundsOf(diagram(panel), blue).width() <= 1);
}

// The amplitude doubles with sample 100; half of the window of sample 99 is before that.
void TestPhasorsOnScreen::aStepReadsBeforeDuringAndAfter()
{
    const Wave wave = cosine(100, 20, 40);
    open(50, 1000, {{"I", [&](int i) { return (i < 100 ? 1 : 2) * wave(i); }}});
    setCursor(60);
    setCursor(99);
    setCursor(150);
    QTRY_COMPARE(magnitudes(panels().first()),
        pictureOf({{{0, 15}, orange, QStringLiteral("I: 70.7107")},
            {{121, 15}, orange, QStringLiteral("I: 106.066")},
            {{242, 15}, orange, QStringLiteral("I: 141.421")}}));
}

void TestPhasorsOnScreen::shortCyclesAreRead_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("text");
    // Of a constant 100, the window of three samples holds two and a 0: 100 / root 2.
    QTest::newRow("three samples a cycle") << 150 << QStringLiteral("I: 70.7107");
    // Of five, four and a 0: 100 / 2 / root 2.
    QTest::newRow("five samples a cycle") << 250 << QStringLiteral("I: 35.3553");
    QTest::newRow("two samples a cycle") << 100 << QStringLiteral("I: 0");
    QTest::newRow("one sample a cycle") << 50 << QStringLiteral("I: 0");
    QTest::newRow("less than one sample a cycle") << 20 << QStringLiteral("I: 0");
}

void TestPhasorsOnScreen::shortCyclesAreRead()
{
    QFETCH(int, rate);
    QFETCH(QString, text);
    // The other channel swings from sample to sample: 200 / root 2 for two samples a cycle.
    open(50, rate, {{"I", cosine(100, 1)}, {"U", cosine(100, 2)}});
    setCursor(77);
    const VectorWidget *panel = panels().first();
    if (rate == 100)
        QTRY_COMPARE(magnitudes(panel),
            pictureOf({{{0, 15}, orange, text}, {{121, 15}, green, QStringLiteral("U: 141.421")}}));
    panel->findChildren<QCheckBox *>().last()->setChecked(false);
    QTRY_COMPARE(magnitudes(panel), pictureOf({{{0, 15}, orange, text}}));
}

void TestPhasorsOnScreen::aDraggedCursorDrawsOnceATurn()
{
    open(50, 1000, {{"I", cosine(100, 20)}, {"U", cosine(100, 20, 90)}});
    addPanel();
    QTRY_VERIFY(!diagram(panels().last()).isNull());
    checkAll(panels().last());
    setCursor(50);
    QTest::qWait(300);

    DrawingCounter first(panels().first());
    DrawingCounter second(panels().last());
    const QPoint label
        = plot()->findChild<CustomLabel *>(QStringLiteral("lineLabel"))->geometry().center();
    QTest::mousePress(plot(), Qt::LeftButton, {}, label);
    int x = label.x();
    int turns = 0;
    QElapsedTimer elapsed;
    for (elapsed.start(); elapsed.elapsed() < 400; ++turns) {
        const int firstBefore = first.count();
        const int secondBefore = second.count();
        for (int move = 0; move < 3; ++move)
            dragCursor(++x);
        QCoreApplication::processEvents();
        QVERIFY(first.count() - firstBefore <= 1);
        QVERIFY(second.count() - secondBefore <= 1);
    }
    QVERIFY(turns >= 3);
    QVERIFY2(first.count() >= 3, qPrintable(QString::number(first.count())));
    QVERIFY(second.count() >= 3);
    QTest::mouseRelease(plot(), Qt::LeftButton, {}, {x, 150});
    QTest::qWait(200);
    const int drawn = first.count();
    QTest::qWait(100);
    QCOMPARE(first.count(), drawn); // nothing is drawn without need
}

void TestPhasorsOnScreen::phasorsMoveWithTheCursor()
{
    const Wave wave = cosine(100, 20);
    open(50, 1000, {{"I", [&](int i) { return (i < 100 ? 1 : 2) * wave(i); }}});
    setCursor(60);
    VectorWidget *panel = panels().first();
    QTRY_COMPARE(magnitudes(panel), pictureOf({{{0, 15}, orange, QStringLiteral("I: 70.7107")}}));
    QTest::mousePress(plot(), Qt::LeftButton, {},
        plot()->findChild<CustomLabel *>(QStringLiteral("lineLabel"))->geometry().center());
    dragCursor(qRound(plot()->geometryOfView().traceX(150)));
    // The button is still held.
    QTRY_COMPARE(magnitudes(panel), pictureOf({{{0, 15}, orange, QStringLiteral("I: 141.421")}}));
    dragCursor(qRound(plot()->geometryOfView().traceX(60)));
    QTRY_COMPARE(magnitudes(panel), pictureOf({{{0, 15}, orange, QStringLiteral("I: 70.7107")}}));
    QTest::mouseRelease(plot(), Qt::LeftButton, {}, {300, 150});
    trigger("&Remove All Cursors");
    QTRY_VERIFY(isTransparent(magnitudes(panel)));
}

void TestPhasorsOnScreen::aReloadBeginsAnew()
{
    open(50, 1000, {{"I", cosine(100, 20)}, {"U", cosine(100, 20)}});
    addPanel();
    QTRY_VERIFY(!diagram(panels().last()).isNull());
    checkAll(panels().last());
    dialog()->findChild<QComboBox *>(QStringLiteral("comboBox_reference"))->setCurrentIndex(2);
    setCursor(60);

    open(50, 1000, {{"X", cosine(10, 20)}});
    QVERIFY(dialog()->isVisible());
    QCOMPARE(panels().size(), 2);
    for (VectorWidget *panel : panels()) {
        checkAll(panel);
        QCOMPARE(panel->findChildren<QCheckBox *>().size(), 1);
        QTRY_VERIFY(isTransparent(magnitudes(panel))); // no cursor yet
    }
    QCOMPARE(dialog()->referenceName(), QStringLiteral("-"));
    setCursor(60);
    for (const VectorWidget *panel : panels())
        QTRY_COMPARE(
            magnitudes(panel), pictureOf({{{0, 15}, orange, QStringLiteral("X: 7.07107")}}));
}

// Twice, with a panel added after the first reload.
void TestPhasorsOnScreen::equalNamesKeepApartOverReloads()
{
    open(50, 1000, {{"I", cosine(10, 20)}, {"I", cosine(20, 20)}});
    setCursor(60);
    QTRY_COMPARE(magnitudes(panels().first()),
        pictureOf({{{0, 15}, orange, QStringLiteral("I: 7.07107")},
            {{121, 15}, green, QStringLiteral("I: 14.1421")}}));

    open(50, 1000, {{"U", cosine(10, 20)}, {"I", cosine(30, 20)}, {"I", cosine(40, 20)}});
    addPanel();
    QTRY_VERIFY(!diagram(panels().last()).isNull());
    setCursor(60);
    QCheckBox *last = panels().last()->findChildren<QCheckBox *>().last();
    QTest::mouseClick(last, Qt::LeftButton, {}, QPoint(8, last->height() / 2));
    QTRY_COMPARE(
        magnitudes(panels().last()), pictureOf({{{0, 15}, blue, QStringLiteral("I: 28.2843")}}));

    open(50, 1000, {{"I", cosine(20, 20)}, {"U", cosine(30, 20)}, {"I", cosine(10, 20)}});
    setCursor(60);
    checkAll(panels().last());
    for (const VectorWidget *panel : panels())
        QTRY_COMPARE(magnitudes(panel),
            pictureOf({{{0, 15}, orange, QStringLiteral("I: 14.1421")},
                {{121, 15}, green, QStringLiteral("U: 21.2132")},
                {{242, 15}, blue, QStringLiteral("I: 7.07107")}}));
}

void TestPhasorsOnScreen::aReloadDuringADrawingIsSurvived()
{
    open(50, 1000, {{"I", cosine(100, 20)}});
    addPanel();
    QTRY_VERIFY(!diagram(panels().last()).isNull());
    setCursor(60);
    const QString next = writeSignals(folder->path(), 50, 1000, {{"X", cosine(10, 20)}});
    bool isReloaded = false;
    QTimer::singleShot(0, window.get(), [&] {
        window->open(next);
        isReloaded = true;
    });
    panels().first()->drawAll();
    QVERIFY(isReloaded);
    QVERIFY(window->recording());
    setCursor(60);
    for (VectorWidget *panel : panels()) {
        checkAll(panel);
        QTRY_COMPARE(
            magnitudes(panel), pictureOf({{{0, 15}, orange, QStringLiteral("X: 7.07107")}}));
    }
}

void TestPhasorsOnScreen::closingDuringADrawingIsSurvived_data()
{
    QTest::addColumn<bool>("wholeWindow");
    QTest::newRow("of the dialog") << false;
    QTest::newRow("of the window") << true;
}

void TestPhasorsOnScreen::closingDuringADrawingIsSurvived()
{
    QFETCH(bool, wholeWindow);
    open(50, 1000, {{"I", cosine(100, 20)}});
    setCursor(60);
    bool isGone = false;
    QTimer::singleShot(0, this, [&] {
        if (wholeWindow)
            window.reset();
        else
            dialog()->close();
        isGone = true;
    });
    panels().first()->drawAll();
    QVERIFY(isGone);
    if (wholeWindow)
        return;
    QVERIFY(!dialog()->isVisible());
    setCursor(90);
    trigger("&Show Vectors");
    QTRY_COMPARE(magnitudes(panels().first()),
        pictureOf({{{0, 15}, orange, QStringLiteral("I: 70.7107")},
            {{121, 15}, orange, QStringLiteral("I: 70.7107")}}));
}

QTEST_MAIN(TestPhasorsOnScreen)
#include "tst_phasorsonscreen.moc"
