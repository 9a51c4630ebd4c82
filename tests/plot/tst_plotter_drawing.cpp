// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotpair.h"
#include "textsearch.h"

#include <QProcess>
#include <QProxyStyle>
#include <QStyleOptionFocusRect>
#include <QtTest>

#include <cmath>
#include <memory>

namespace {

constexpr double pi = 3.14159265358979;
const QRect area(100, 60, 701, 201); // the frame of the plot area
const QRgb red = qRgb(245, 30, 18);
const QRgb white = qRgb(255, 255, 255);
const QRgb grid = qRgb(150, 150, 150);

const QVector<QRgb> colorTable{qRgb(245, 30, 18), qRgb(220, 220, 0), qRgb(66, 66, 255),
    qRgb(0, 255, 0), qRgb(223, 105, 209), qRgb(250, 140, 20), qRgb(80, 150, 180),
    qRgb(193, 137, 62), qRgb(60, 150, 0), qRgb(0, 255, 255), qRgb(112, 146, 190),
    qRgb(200, 191, 231), qRgb(177, 177, 177)};

// Tells which passes drew the base layer.
class PassesPlotter : public Plotter {
    Q_OBJECT

public:
    using Plotter::Plotter;
    void drawGrid(QPainter *painter) override
    {
        passes.append(QStringLiteral("grid"));
        Plotter::drawGrid(painter);
    }
    void drawCurves(QPainter *painter) override
    {
        passes.append(QStringLiteral("curves"));
        Plotter::drawCurves(painter);
    }
    void drawTrigger(QPainter *painter) override
    {
        passes.append(QStringLiteral("trigger"));
        Plotter::drawTrigger(painter);
    }
    void drawValueTable(QPainter *painter) override
    {
        passes.append(QStringLiteral("table"));
        Plotter::drawValueTable(painter);
    }
    QStringList passes;
};

// Keeps what focus frames are asked to stand on.
class FrameStyle : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override
    {
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFocusRect *>(option))
            grounds.append(frame->backgroundColor);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    mutable QVector<QColor> grounds;
};

// The layers of a plot, without its labels and lines.
QImage picture(Plotter *plot)
{
    const qreal ratio = plot->devicePixelRatioF();
    QImage image(plot->size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    plot->render(&image, {}, {}, QWidget::DrawWindowBackground);
    return image;
}

// The rows of a pixel column that have a colour.
QVector<int> rowsOf(QRgb color, const QImage &image, int x)
{
    QVector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixel(x, y) == color)
            rows.append(y);
    }
    return rows;
}

} // namespace

// A plot of 803 x 301 shows a recording of 0 to 1000 ms, one sample each ms, with the trigger at
// 250 ms. Traces have 703 x 200 pixels from (100, 60) on, the time line and cursors 700 x 200.
class TestPlotterDrawing : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theValueModeMovesTheTrace_data();
    void theValueModeMovesTheTrace();
    void aSpectrumShowsItsMagnitudes();
    void anglesStandOnTheValueAxis_data();
    void anglesStandOnTheValueAxis();
    void eachReferenceShowsItsOwnAngle();
    void changedSeriesAreDrawnAgain();
    void tracesAreDrawnInTheOrderOfTheirNumbers();
    void coloursFollowTheTable();
    void longNamesShowBothEnds();
    void spectrumColours_data();
    void spectrumColours();

    void timesValuesAndTriggerAreWritten();
    void curvesAreClippedToTheArea();
    void theTriggerStandsOverTheCurves();
    void passesFollowTheirOrder();
    void nothingInATinyPlot_data();
    void nothingInATinyPlot();

    void noTableWithoutACursor();
    void theTableNamesChannelsAndCursors();
    void cellsFollowTheValueMode_data();
    void cellsFollowTheValueMode();
    void cellsOutsideTheRecordingAreEmpty_data();
    void cellsOutsideTheRecordingAreEmpty();
    void draggingACursorDrawsNoBaseLayer();

    void theFocusHasAFrame();

    void hairLine();
    void hairLineAtTwiceTheScale();

private:
    AnalogChannel *addChannel(const QString &id, float value);
    AnalogChannel *addPeakedChannel();
    void show(const QList<int> &channels);
    QRect cell(const QImage &image, const QString &row, const QString &column) const;

    const QFont font = crispFont(12);
    const QFont tableFont = crispFont(10);
    std::unique_ptr<FakePlotHost> host;
    std::unique_ptr<QWidget> window;
    PassesPlotter *plot = nullptr;
};

void TestPlotterDrawing::init()
{
    QVector<double> times(1001);
    for (int i = 0; i < times.size(); ++i)
        times[i] = i;
    host = std::make_unique<FakePlotHost>();
    host->setTimes(times);
    host->source->durationMs = 1000;
    host->source->sampleRate = 1000;
    host->source->triggerOffsetMs = 250;
    host->mode = 3; // values as they are
    window = std::make_unique<QWidget>();
    window->resize(803, 301);
    plot = new PassesPlotter(window.get());
    plot->setFont(font);
    plot->setMainWindow(host.get());
    plot->setName(QStringLiteral("Analog"));
    plot->resize(803, 301);
}

void TestPlotterDrawing::cleanup()
{
    window.reset();
    host.reset();
}

AnalogChannel *TestPlotterDrawing::addChannel(const QString &id, float value)
{
    return host->addAnalog(id, QVector<float>(1001, value));
}

// Ia with 6 everywhere but for -10 at 900 and 10 at 950 ms: a view of -12 to 12.
AnalogChannel *TestPlotterDrawing::addPeakedChannel()
{
    QVector<float> values(1001, 6.0F);
    values[900] = -10;
    values[950] = 10;
    return host->addAnalog(QStringLiteral("Ia"), values);
}

void TestPlotterDrawing::show(const QList<int> &channels)
{
    for (const int channel : channels)
        plot->addChannel(channel);
    plot->setupPlot();
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    plot->refreshPixmap();
}

void TestPlotterDrawing::theValueModeMovesTheTrace_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("ps");
    QTest::addColumn<int>("y"); // 60 + (12 - value) x 200 / 24
    QTest::newRow("primary: 6 x 1.5 = 9") << 0 << QStringLiteral("S") << 85;
    QTest::newRow("secondary: 6 x 0.5 = 3") << 1 << QStringLiteral("S") << 135;
    QTest::newRow("per unit of the secondary rating: 6 / 6") << 2 << QStringLiteral("S") << 152;
    QTest::newRow("per unit of the primary rating: 6 / 60") << 2 << QStringLiteral("P") << 159;
    QTest::newRow("per unit of neither: 6") << 2 << QStringLiteral("X") << 110;
    QTest::newRow("any other mode: 6") << 3 << QStringLiteral("S") << 110;
}

void TestPlotterDrawing::theValueModeMovesTheTrace()
{
    QFETCH(int, mode);
    QFETCH(QString, ps);
    QFETCH(int, y);
    AnalogChannel *channel = addPeakedChannel();
    channel->toPrimary = 1.5;
    channel->toSecondary = 0.5;
    channel->primary = 60;
    channel->secondary = 6;
    channel->ps = ps;
    show({0});
    host->mode = mode;
    plot->refreshPixmap();
    QCOMPARE(rowsOf(red, picture(plot), 500), QVector<int>({y}));
}

// Twice the magnitude 3 in a view of 0 to 21: 60 + 15 x 200 / 21 = 202.9.
void TestPlotterDrawing::aSpectrumShowsItsMagnitudes()
{
    AnalogChannel *channel = addPeakedChannel();
    channel->fftMagnitudes = QVector<float>(1001, 3.0F);
    channel->maxMagnitude = 10;
    channel->toPrimary = 2;
    host->mode = 0;
    show({1});
    QCOMPARE(plot->view().maxY, 21.0);
    QCOMPARE(rowsOf(colorTable.at(1), picture(plot), 500), QVector<int>({203}));
}

void TestPlotterDrawing::anglesStandOnTheValueAxis_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<int>("reference");
    QTest::addColumn<QVector<double>>("angles"); // of the three channels, radians
    QTest::addColumn<QVector<int>>("rows");
    using Angles = QVector<double>;
    using Rows = QVector<int>; // with that of the magnitude 0, the bottom of the area
    // Degrees stand at 60 + (400 - degrees) x 200 / 400.
    QTest::newRow("angles are not asked for") << false << 0 << Angles{pi / 2, 1, 2} << Rows{260};
    QTest::newRow("a quarter turn, in degrees")
        << true << 0 << Angles{pi / 2, 1, 2} << Rows{215, 260};
    QTest::newRow("a negative angle gains a turn")
        << true << 0 << Angles{-pi / 2, 1, 2} << Rows{125, 260};
    // Radians stand at 60 + (7 - radians) x 200 / 7.
    QTest::newRow("against the channel itself") << true << 1 << Angles{3, 1, 2} << Rows{260};
    QTest::newRow("2 ahead of the second channel")
        << true << 2 << Angles{3, 1, 2} << Rows{203, 260};
    QTest::newRow("1 ahead of the third channel") << true << 3 << Angles{3, 1, 2} << Rows{231, 260};
    QTest::newRow("1 behind, which is 5.283 ahead")
        << true << 2 << Angles{1, 2, 3} << Rows{109, 260};
    QTest::newRow("both below zero, 1 ahead") << true << 2 << Angles{-1, -2, 0} << Rows{231, 260};
    QTest::newRow("from 1 to -1 it is 4.283 ahead")
        << true << 2 << Angles{-1, 1, 0} << Rows{138, 260};
}

void TestPlotterDrawing::anglesStandOnTheValueAxis()
{
    QFETCH(bool, shown);
    QFETCH(int, reference);
    QFETCH(QVector<double>, angles);
    QFETCH(QVector<int>, rows);
    for (const double angle : qAsConst(angles)) {
        AnalogChannel *channel = addChannel(QStringLiteral("I"), 1);
        channel->fftMagnitudes = QVector<float>(1001, 0.0F);
        channel->fftAngles = QVector<float>(1001, float(angle));
    }
    host->angles = shown;
    host->reference = reference;
    show({3}); // of the first channel
    QCOMPARE(rowsOf(colorTable.at(3), picture(plot), 500), rows);
}

// As anglesStandOnTheValueAxis(), with one plot and nothing changed but the reference. New angles
// may come to lie where old ones lay.
void TestPlotterDrawing::eachReferenceShowsItsOwnAngle()
{
    for (const float angle : {3.0F, 1.0F, 2.0F}) {
        AnalogChannel *channel = addChannel(QStringLiteral("I"), 1);
        channel->fftMagnitudes = QVector<float>(1001, 0.0F);
        channel->fftAngles = QVector<float>(1001, angle);
    }
    host->angles = true;
    host->reference = 1;
    show({3}); // of the first channel
    const QVector<QVector<int>> rows{{260}, {203, 260}, {231, 260}}; // by reference
    for (const int reference : {2, 3, 1, 2, 1, 3, 2}) {
        host->reference = reference;
        plot->rescaleValues();
        plot->refreshPixmap();
        QCOMPARE(rowsOf(colorTable.at(3), picture(plot), 500), rows.at(reference - 1));
    }
}

void TestPlotterDrawing::changedSeriesAreDrawnAgain()
{
    addChannel(QStringLiteral("I"), 5);
    addChannel(QStringLiteral("U"), 20); // values stand at 60 + (21 - value) x 200 / 21
    show({0, 1});
    QCOMPARE(rowsOf(red, picture(plot), 500), QVector<int>({212}));
    plot->showChannels({1});
    host->source->analogChannels[0]->values = QVector<float>(1001, 10.0F);
    plot->showChannels({0, 1});
    plot->refreshPixmap();
    QCOMPARE(rowsOf(red, picture(plot), 500), QVector<int>({165}));
}

// Whatever the order of their adding; values stand at 60 + (21 - value) x 200 / 21.
void TestPlotterDrawing::tracesAreDrawnInTheOrderOfTheirNumbers()
{
    addChannel(QStringLiteral("I"), 20);
    addChannel(QStringLiteral("U"), 20);
    for (const QList<int> &channels : {QList<int>{0, 1}, QList<int>{1, 0}}) {
        plot->showChannels({});
        show(channels);
        QCOMPARE(plot->channels(), channels);
        const QImage image = picture(plot);
        QCOMPARE(rowsOf(colorTable.at(1), image, 500), QVector<int>({70}));
        QCOMPARE(rowsOf(red, image, 500), QVector<int>());
    }
}

// Channels with the values 0 to 13 in a view of 0 to 15, and the fourteenth in the colour of the
// first.
void TestPlotterDrawing::coloursFollowTheTable()
{
    QList<int> channels;
    for (int i = 0; i < 14; ++i) {
        addChannel(QStringLiteral("I%1").arg(i), float(i));
        channels.append(i);
    }
    show(channels);
    QCOMPARE(plot->view().maxY, 15.0);
    const QVector<int> rows{260, 247, 233, 220, 207, 193, 180, 167, 153, 140, 127, 113, 100, 87};
    const QImage image = picture(plot);
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), 14);
    for (int i = 0; i < 14; ++i) {
        QCOMPARE(image.pixel(500, rows.at(i)), colorTable.at(i % 13));
        QCOMPARE(labels.at(i)->palette().color(labels.at(i)->foregroundRole()).rgb(),
            colorTable.at(i % 13));
    }
}

// 803 - 180 pixels are too few for six of these names.
void TestPlotterDrawing::longNamesShowBothEnds()
{
    QList<int> channels;
    for (int i = 0; i < 6; ++i) {
        addChannel(QStringLiteral("Current of the northern feeder %1").arg(i), float(i));
        channels.append(i);
    }
    show(channels);
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), 6);
    for (int i = 0; i < 6; ++i) {
        const QString text = labels.at(i)->text();
        QVERIFY2(text.startsWith(QLatin1String("Cur")), qPrintable(text));
        QVERIFY2(text.endsWith(QStringLiteral("%1(A)").arg(i)), qPrintable(text));
        QVERIFY(labels.at(i)->toolTip().startsWith(
            QStringLiteral("Current of the northern feeder %1(A)").arg(i)));
    }
}

void TestPlotterDrawing::spectrumColours_data()
{
    QTest::addColumn<int>("count"); // of analog channels
    QTest::addColumn<QList<int>>("channels");
    QTest::addColumn<QList<int>>("colours"); // by their place in the table
    using List = QList<int>;
    QTest::newRow("the first place") << 4 << List{6} << List{4};
    QTest::newRow("the second place") << 4 << List{2, 6} << List{2, 5};
    QTest::newRow("two spectra") << 4 << List{2, 4, 7} << List{2, 5, 6};
    QTest::newRow("count and place make thirteen") << 12 << List{3, 13} << List{3, 0};
    QTest::newRow("more channels than colours") << 14 << List{20} << List{1};
    QTest::newRow("far more channels than colours") << 40 << List{38, 50} << List{12, 2};
}

void TestPlotterDrawing::spectrumColours()
{
    QFETCH(int, count);
    QFETCH(QList<int>, channels);
    QFETCH(QList<int>, colours);
    for (int i = 0; i < count; ++i) {
        AnalogChannel *channel = addChannel(QStringLiteral("I"), 1);
        channel->fftMagnitudes = QVector<float>(1001, 0.5F);
        channel->maxMagnitude = 0.5F;
    }
    show(channels);
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("channelLabel"));
    QCOMPARE(labels.size(), colours.size());
    for (int i = 0; i < labels.size(); ++i)
        QCOMPARE(labels.at(i)->palette().color(labels.at(i)->foregroundRole()).rgb(),
            colorTable.at(colours.at(i)));
    QVERIFY(!rowsOf(colorTable.at(colours.last()), picture(plot), 500).isEmpty());
}

void TestPlotterDrawing::timesValuesAndTriggerAreWritten()
{
    addPeakedChannel();
    show({0});
    const QImage image = picture(plot);
    for (int i = 0; i < 10; ++i) {
        const QRect found
            = findText(image, QString::number(100 * i), font, QRect(50, 262, 753, 39));
        QVERIFY(!found.isNull());
        QVERIFY(std::abs(found.center().x() - (100 + 70.3 * i)) < 2);
    }
    QVERIFY(!findText(image, QStringLiteral("1000"), font, QRect(700, 262, 103, 39)).isNull());
    for (int i = 0; i <= 8; ++i) {
        const QRect found
            = findText(image, QString::number(-12 + 3 * i), tableFont, QRect(0, 0, 100, 301));
        QVERIFY(!found.isNull());
        QVERIFY(std::abs(found.center().y() - (260 - 25 * i)) <= 2);
    }
    const QRect trigger = findText(image, QStringLiteral("Trigger: 250 ms"), font, area);
    QVERIFY(!trigger.isNull());
    QVERIFY(trigger.left() > 275 && trigger.left() < 290);
}

// Half of -12 to 12 is -6 to 6, and the trace has peaks of -10 and 10.
void TestPlotterDrawing::curvesAreClippedToTheArea()
{
    addPeakedChannel();
    show({0});
    plot->customVZoomIn2();
    QCOMPARE(plot->view().maxY, 6.0);
    const QImage image = picture(plot);
    int inside = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != red)
                continue;
            QVERIFY2(area.contains(x, y), qPrintable(QStringLiteral("%1 %2").arg(x).arg(y)));
            ++inside;
        }
    }
    QVERIFY(inside > 600);
}

// The trace jumps at the trigger and covers the column at x = 276 from y = 77 to 243.
void TestPlotterDrawing::theTriggerStandsOverTheCurves()
{
    QVector<float> values(1001, -10.0F);
    for (int i = 0; i < values.size(); ++i)
        values[i] = i == 250 ? 10.0F : -10.0F;
    host->addAnalog(QStringLiteral("Ia"), values);
    show({0});
    const QImage image = picture(plot);
    int onLine = 0;
    for (int y = 77; y <= 240; ++y)
        onLine += image.pixel(276, y) == white;
    QVERIFY(onLine > 60);
    QVERIFY(!rowsOf(red, image, 276).isEmpty()); // between the dashes
}

void TestPlotterDrawing::passesFollowTheirOrder()
{
    addPeakedChannel();
    show({0});
    plot->passes.clear();
    plot->customZoomIn2();
    QCOMPARE(plot->passes,
        QStringList({QStringLiteral("grid"), QStringLiteral("curves"), QStringLiteral("trigger"),
            QStringLiteral("table")}));
}

void TestPlotterDrawing::nothingInATinyPlot_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("2 pixels wide") << QSize(102, 301) << false;
    QTest::newRow("3 pixels wide") << QSize(103, 301) << true;
    QTest::newRow("59 pixels high") << QSize(803, 100) << false;
    QTest::newRow("60 pixels high") << QSize(803, 101) << true;
    QTest::newRow("narrower than the margin") << QSize(40, 301) << false;
    QTest::newRow("one pixel") << QSize(1, 1) << false;
}

void TestPlotterDrawing::nothingInATinyPlot()
{
    QFETCH(QSize, size);
    QFETCH(bool, drawn);
    addPeakedChannel();
    show({0});
    plot->resize(size);
    const QImage image = picture(plot);
    int lines = 0;
    for (int x = 0; x < image.width(); ++x)
        lines += rowsOf(grid, image, x).size() + rowsOf(white, image, x).size()
            + rowsOf(red, image, x).size();
    QCOMPARE(lines > 0, drawn);
}

void TestPlotterDrawing::noTableWithoutACursor()
{
    addPeakedChannel();
    show({0});
    const QImage image = picture(plot);
    QVERIFY(findText(image, QStringLiteral("Parameter"), tableFont).isNull());
    QCOMPARE(image.pixel(800, 100), white); // the frame
}

// The text in a row and a column of the table, where it stands there.
QRect TestPlotterDrawing::cell(const QImage &image, const QString &row, const QString &column) const
{
    const QRect right(area.left(), 60, 803 - area.left(), 200);
    const QRect name = findText(image, row, tableFont, right);
    const QRect head = findText(image, column, tableFont, right);
    if (name.isNull() || head.isNull())
        return {};
    return {head.left() - 4, name.top() - 2, head.width() + 8, name.height() + 5};
}

// A cursor at x = 240 stands at 200 ms; one at the left edge of a view that was moved by one
// interval, at 100 ms.
void TestPlotterDrawing::theTableNamesChannelsAndCursors()
{
    AnalogChannel *channel = addPeakedChannel();
    channel->fftMagnitudes = QVector<float>(1001, 4.5F);
    channel->fftMagnitudes[100] = 3.5F;
    channel->values[200] = 1234567;
    channel->values[100] = 0.25F;
    addChannel(QStringLiteral("Ua"), -7.125F);
    show({0, 1, 2});
    plot->addCursor(240, 100);
    plot->scrolling(1);
    plot->addCursor(100, 100);
    const QImage image = picture(plot);
    const QRect parameter = findText(image, QStringLiteral("Parameter"), tableFont);
    QVERIFY(!parameter.isNull());
    struct Entry {
        const char *row, *column, *text;
    };
    for (const Entry &entry :
        {Entry{"Ia", "P1 (200)", "1.23457e+06"}, Entry{"Ia", "P2 (100)", "0.25"},
            Entry{"Ua", "P1 (200)", "-7.125"}, Entry{"Ua", "P2 (100)", "-7.125"},
            Entry{"Ia FFT", "P1 (200)", "4.5"}, Entry{"Ia FFT", "P2 (100)", "3.5"}}) {
        const QString row = QString::fromLatin1(entry.row);
        const QString text = QString::fromLatin1(entry.text);
        const QRect place
            = cell(image, row, QString::fromLatin1(entry.column)).adjusted(-20, 0, 20, 0);
        QVERIFY2(!findText(image, text, tableFont, place).isNull(), qPrintable(row + text));
        QVERIFY(place.top() > parameter.bottom() && place.left() > parameter.left());
    }
}

void TestPlotterDrawing::cellsFollowTheValueMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("ps");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("magnitude");
    const auto row
        = [](const char *name, int mode, const char *ps, const char *value, const char *magnitude) {
              QTest::newRow(name) << mode << QString::fromLatin1(ps) << QString::fromLatin1(value)
                                  << QString::fromLatin1(magnitude);
          };
    row("primary", 0, "S", "9", "6.75");
    row("secondary", 1, "S", "3", "2.25");
    row("per unit of the secondary rating", 2, "S", "0.75", "0.5625");
    row("per unit of the primary rating", 2, "P", "0.1", "0.075");
    row("per unit of neither", 2, "X", "6", "4.5");
    row("any other mode", 3, "S", "6", "4.5");
}

void TestPlotterDrawing::cellsFollowTheValueMode()
{
    QFETCH(int, mode);
    QFETCH(QString, ps);
    QFETCH(QString, value);
    QFETCH(QString, magnitude);
    AnalogChannel *channel = addPeakedChannel();
    channel->toPrimary = 1.5;
    channel->toSecondary = 0.5;
    channel->primary = 60;
    channel->secondary = 8;
    channel->ps = ps;
    channel->fftMagnitudes = QVector<float>(1001, 4.5F);
    show({0, 1});
    plot->addCursor(240, 100);
    host->mode = mode;
    plot->refreshPixmap();
    const QImage image = picture(plot);
    const QString head = QStringLiteral("P1 (200)");
    QVERIFY(!findText(image, value, tableFont, cell(image, QStringLiteral("Ia"), head)).isNull());
    QVERIFY(!findText(image, magnitude, tableFont, cell(image, QStringLiteral("Ia FFT"), head))
                 .isNull());
}

void TestPlotterDrawing::cellsOutsideTheRecordingAreEmpty_data()
{
    QTest::addColumn<int>("intervals"); // of 100 ms, that the view is moved before
    QTest::addColumn<QString>("head");
    QTest::addColumn<bool>("isEmpty");
    QTest::newRow("before the first sample") << -1 << QStringLiteral("P1 (-100)") << true;
    QTest::newRow("at the last sample") << 10 << QStringLiteral("P1 (1000)") << false;
    QTest::newRow("after the last sample") << 12 << QStringLiteral("P1 (1200)") << true;
}

void TestPlotterDrawing::cellsOutsideTheRecordingAreEmpty()
{
    QFETCH(int, intervals);
    QFETCH(QString, head);
    QFETCH(bool, isEmpty);
    addPeakedChannel();
    show({0});
    plot->scrolling(intervals);
    plot->addCursor(100, 100);
    const QImage image = picture(plot);
    const QRect place = cell(image, QStringLiteral("Ia"), head);
    QVERIFY(!place.isNull());
    QCOMPARE(inkRect(image, place).isNull(), isEmpty);
}

void TestPlotterDrawing::draggingACursorDrawsNoBaseLayer()
{
    addPeakedChannel();
    show({0});
    plot->addCursor(240, 100);
    plot->passes.clear();
    const QPoint label = PlotPair::lineLabels(plot).first()->geometry().center();
    QTest::mousePress(plot, Qt::LeftButton, {}, label);
    for (int x = 250; x <= 400; x += 10)
        PlotPair::move(plot, {x, 100}, Qt::LeftButton);
    QVERIFY(plot->cursors().first() > 350);
    QVERIFY(plot->passes.isEmpty());
    QTest::mouseRelease(plot, Qt::LeftButton, {}, {400, 100});
    QCOMPARE(plot->passes.count(QStringLiteral("grid")), 1);
}

void TestPlotterDrawing::theFocusHasAFrame()
{
    show({});
    auto *style = new FrameStyle;
    style->setParent(plot);
    plot->setStyle(style);
    QPalette palette = plot->palette();
    palette.setColor(QPalette::Dark, QColor(1, 2, 3));
    plot->setPalette(palette);
    for (int twice = 0; twice < 2; ++twice) {
        plot->clearFocus();
        style->grounds.clear();
        plot->grab();
        QVERIFY(style->grounds.isEmpty());
        plot->setFocus();
        plot->grab();
        QVERIFY(!style->grounds.isEmpty());
        QCOMPARE(style->grounds.constLast(), QColor(1, 2, 3));
    }
}

// A trace is one pixel of the screen wide, whatever the scale factor; at value 6 it stands at
// y = 110.
void TestPlotterDrawing::hairLine()
{
    addPeakedChannel();
    show({0});
    const QImage image = picture(plot);
    const double ratio = plot->devicePixelRatioF();
    QCOMPARE(image.width(), int(803 * ratio));
    const QVector<int> rows = rowsOf(red, image, int(500 * ratio));
    QCOMPARE(rows.size(), 1);
    QVERIFY(std::abs(rows.first() - 110 * ratio) < ratio);
}

// The toolkit reads the factor when it starts.
void TestPlotterDrawing::hairLineAtTwiceTheScale()
{
#ifdef Q_OS_WIN
    QSKIP("on Windows a test says nothing on its standard output");
#endif
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    QProcess scaled;
    scaled.setProcessEnvironment(environment);
    scaled.setProcessChannelMode(QProcess::MergedChannels);
    scaled.start(QCoreApplication::applicationFilePath(), {QStringLiteral("hairLine")});
    QVERIFY(scaled.waitForFinished());
    const QByteArray output = scaled.readAll();
    QVERIFY2(scaled.exitCode() == 0 && output.contains("PASS   : TestPlotterDrawing::hairLine()"),
        output);
}

QTEST_MAIN(TestPlotterDrawing)
#include "tst_plotter_drawing.moc"
