// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "unitplots.h"

#include "analogchannel.h"
#include "plotmenus.h"
#include "plotswindow.h"

class TestUnitPlots : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void groups();
    void withoutPhasorsThereAreSamplesAlone();
    void theMenuAddsThem();
    void theirNamesFollowTheLanguage();
    void aWindowThatClosesGetsNoMore();

private:
    void openUnits()
    {
        ConfigurationText text;
        for (const char *channel :
            {"IL1,A,,A", "UL1,A,,kV", "MEAS I,A,,A", "Ph,A,,VA", "T,A,,", "IL2,A,,kA", "UL2,A,,kV"})
            text.addAnalog(QByteArray(channel) + ",1,0,0,-99,99,400,5,P");
        text.rates = QByteArrayList{"1000,100"};
        const QByteArray data = dataLines(100, 1000, [](int i) {
            return QByteArrayList{QByteArray::number(i % 20) + QByteArray(",1").repeated(6)};
        });
        window->open(writePair(folder->filePath(QStringLiteral("units")), text.text(), data));
        QVERIFY(window->recording());
    }
};

// The fundamentals of the seven channels have the numbers from 7 on.
void TestUnitPlots::groups()
{
    openUnits();
    const QVector<UnitPlot> plots = plotsByUnit(*window->recording());
    QStringList units;
    QVector<QList<int>> channels;
    for (const UnitPlot &plot : plots) {
        units.append(plot.unit);
        channels.append(plot.channels);
    }
    QCOMPARE(units,
        (QStringList{QStringLiteral("A"), QStringLiteral("kV"), QStringLiteral("VA"),
            QStringLiteral(""), QStringLiteral("kA"), QStringLiteral(""), QStringLiteral("")}));
    QCOMPARE(channels, (QVector<QList<int>>{{0, 2}, {1, 6}, {3}, {4}, {5}, {7, 12}, {8, 13}}));
    QCOMPARE(plots.at(4).kind, UnitPlot::Kind::Samples);
    QCOMPARE(plots.at(5).kind, UnitPlot::Kind::Currents);
    QCOMPARE(plots.at(6).kind, UnitPlot::Kind::Voltages);
}

void TestUnitPlots::withoutPhasorsThereAreSamplesAlone()
{
    AnalogChannel current;
    AnalogChannel voltage;
    CFGProperties recording;
    recording.analogChannels = {&current, &voltage};
    recording.analogUnits = QStringList{QStringLiteral("A"), QStringLiteral("V\r\n")};
    const QVector<UnitPlot> plots = plotsByUnit(recording);
    QCOMPARE(plots.size(), 2);
    QCOMPARE(plots.at(1).kind, UnitPlot::Kind::Samples);
    QCOMPARE(plots.at(1).unit, QStringLiteral("V"));
    recording.analogChannels.clear();
    QVERIFY(plotsByUnit(recording).isEmpty());
}

void TestUnitPlots::theMenuAddsThem()
{
    openUnits();
    analog()->addCursorAt(40);
    analog()->changeView([](PlotView &view) { return view.showTimes(20, 60); });
    QVERIFY(choose(analog(), QStringLiteral("Plots by Unit")));
    QStringList names;
    for (const Plotter *each : plots()) {
        if (each != digital())
            names.append(each->name());
    }
    QCOMPARE(names,
        (QStringList{QStringLiteral("Analog"), QStringLiteral("A"), QStringLiteral("kV"),
            QStringLiteral("VA"), QStringLiteral("Graph 1"), QStringLiteral("kA"),
            QStringLiteral("Currents FFT"), QStringLiteral("Voltages FFT")}));
    for (const Plotter *each : plots()) {
        if (each == digital()) // hidden
            continue;
        QCOMPARE(each->view().minX, 20.0);
        QCOMPARE(each->view().maxX, 60.0);
        QCOMPARE(each->cursors(), QList<double>{40});
    }
    QCOMPARE(plot(QStringLiteral("Currents FFT"))->channels(), (QList<int>{7, 12}));
    QVERIFY(plot(QStringLiteral("Voltages FFT"))->showsSpectrum());
    for (int i = 0; i < 7; ++i)
        trigger("&Remove Plotter");
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QCOMPARE(plots().size(), 2); // the digital one is hidden
}

// A title that was typed stays, though it is the name of a unit.
void TestUnitPlots::theirNamesFollowTheLanguage()
{
    openUnits();
    compose({QStringLiteral("UL1")}, QStringLiteral("kV"));
    const auto names = [this] {
        QStringList shown;
        for (const Plotter *each : plots()) {
            if (!each->isHidden()) // as the digital one is
                shown.append(each->name());
        }
        return shown.mid(1).join(QLatin1Char('|'));
    };
    const QString english = QStringLiteral("kV|A|kV|VA|Graph 1|kA|Currents FFT|Voltages FFT");
    const QString finnish = QStringLiteral("kV|A|kV|VA|Kuvaaja 1|kA|Virrat FFT|Jännitteet FFT");
    QVERIFY(choose(analog(), QStringLiteral("Plots by Unit")));
    for (int twice = 0; twice < 2; ++twice) {
        QCOMPARE(names(), english);
        trigger("Suomi");
        QCoreApplication::processEvents();
        QCOMPARE(names(), finnish);
        trigger("English");
        QCoreApplication::processEvents();
    }
}

// It closes while the first one settles.
void TestUnitPlots::aWindowThatClosesGetsNoMore()
{
    openUnits();
    QTimer::singleShot(0, window.get(), &QWidget::close);
    QVERIFY(choose(analog(), QStringLiteral("Plots by Unit")));
    QVERIFY(!window->isVisible());
    QVERIFY(!window->recording());
    QVERIFY(plot(QStringLiteral("A")));
    QVERIFY(!plot(QStringLiteral("kV")));
}

QTEST_MAIN(TestUnitPlots)
#include "tst_unitplots.moc"
