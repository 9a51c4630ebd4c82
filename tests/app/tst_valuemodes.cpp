// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Value modes, references and angles turned there and back in the window.

#include "cfgproperties.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <random>

namespace {

const QString realFolder = QStringLiteral(SOURCE_DIR "/../shared/recordings/real/");

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
        Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

void wheel(QWidget *widget, int delta)
{
    const QPoint position(400, 100);
    QWheelEvent event(position, widget->mapToGlobal(position), {}, {0, delta}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class TestValueModes : public WindowFixture {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(1200, 1000); }
    void cleanup() { closeWindow(); }

    void thereAndBackIsTheSameView_data();
    void thereAndBackIsTheSameView();
    void anotherReferenceKeepsTheZoom();
    void anglesKeepTheShareOfTheZoom();

private:
    QComboBox *combo(const char *name) const { return child<QComboBox>(name); }
    QCheckBox *angles() const { return child<QCheckBox>("checkBox_showAngles"); }
    QVector<PlotSettings> views() const;
    void openWithSpectrum(const QString &path);

    QList<Plotter *> plots; // the first one, one of two waveforms and a spectrum, the digital one
};

QVector<PlotSettings> TestValueModes::views() const
{
    QVector<PlotSettings> result;
    for (const Plotter *plot : plots)
        result.append(plot->view());
    return result;
}

void TestValueModes::openWithSpectrum(const QString &path)
{
    window->open(path);
    QVERIFY(window->recording());
    const QList<AnalogChannel *> channels = window->recording()->analogChannels;
    const QString first = channels.first()->id;
    window->addPlotter({first, channels.last()->id, first + QStringLiteral("_FFT")});
    plots = window->findChildren<Plotter *>();
    const QStringList order{QStringLiteral("Analog"), QStringLiteral("Graph 1")};
    std::sort(plots.begin(), plots.end(), [&](const Plotter *one, const Plotter *other) {
        return unsigned(order.indexOf(one->name())) < unsigned(order.indexOf(other->name()));
    });
    QVERIFY(plots.at(1)->showsSpectrum());
}

void TestValueModes::thereAndBackIsTheSameView_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isZoomed");
    QStringList paths{QStringLiteral(SOURCE_DIR "/examples/earth-fault.cfg")};
    for (const char *name : {"bay-cp1251-crlf", "recorder-1991-cp866", "line-relay-gbk"})
        paths.append(realFolder + QLatin1String(name) + QStringLiteral(".cfg"));
    for (const QString &path : qAsConst(paths)) {
        for (const bool isZoomed : {false, true}) {
            QTest::addRow(
                "%s, %s", qPrintable(QFileInfo(path).baseName()), isZoomed ? "zoomed" : "whole")
                << path << isZoomed;
        }
    }
}

// Through all modes in any order, the angles shown and hidden and all references between.
void TestValueModes::thereAndBackIsTheSameView()
{
    QFETCH(QString, path);
    QFETCH(bool, isZoomed);
    if (!QFileInfo::exists(path))
        QSKIP("the recording is not here");
    openWithSpectrum(path);
    if (isZoomed) {
        drag(plots.at(0), {250, 80}, {500, 130});
        drag(plots.at(1), {220, 70}, {600, 140});
        wheel(plots.at(1), 120);
        plots.at(0)->customVZoomIn();
    }
    QComboBox *modes = combo("comboBox_primSec");
    QComboBox *references = combo("comboBox_mainReference");
    const int mode = modes->currentIndex();
    const QVector<PlotSettings> before = views();
    std::mt19937 random(7);
    for (int round = 0; round < 8; ++round) {
        for (int turn = 0; turn < 6; ++turn) {
            modes->setCurrentIndex(static_cast<int>(random() % 3));
            angles()->setChecked(random() % 2);
            references->setCurrentIndex(static_cast<int>(random() % unsigned(references->count())));
        }
        modes->setCurrentIndex(mode);
        angles()->setChecked(false);
        references->setCurrentIndex(0);
        QVERIFY(views() == before);
    }
}

void TestValueModes::anotherReferenceKeepsTheZoom()
{
    openWithSpectrum(QStringLiteral(SOURCE_DIR "/examples/earth-fault.cfg"));
    angles()->setChecked(true);
    combo("comboBox_mainReference")->setCurrentIndex(1);
    drag(plots.at(1), {220, 70}, {600, 140});
    plots.at(1)->customVZoomIn();
    const QVector<PlotSettings> before = views();
    for (int reference = 1; reference < combo("comboBox_mainReference")->count(); ++reference) {
        combo("comboBox_mainReference")->setCurrentIndex(reference);
        QVERIFY(views() == before);
    }
}

// A plot of the spectrum alone: its magnitudes, below 300 A, are far below 360 degrees.
void TestValueModes::anglesKeepTheShareOfTheZoom()
{
    openWithSpectrum(QStringLiteral(SOURCE_DIR "/examples/earth-fault.cfg"));
    window->addPlotter({window->recording()->analogChannels.first()->id + QStringLiteral("_FFT")});
    Plotter *spectrum = window->findChildren<Plotter *>().last();
    QVERIFY(spectrum->showsSpectrum());
    const PlotSettings whole = spectrum->view();
    angles()->setChecked(true);
    QVERIFY(spectrum->view().maxY >= 360);
    QVERIFY(spectrum->view() == spectrum->home());
    angles()->setChecked(false);
    QVERIFY(spectrum->view() == whole);

    spectrum->customVZoomIn();
    const PlotSettings part = spectrum->view();
    angles()->setChecked(true);
    QVERIFY(!(spectrum->view() == spectrum->home()));
    combo("comboBox_mainReference")->setCurrentIndex(2); // in radians now
    angles()->setChecked(false);
    QVERIFY(spectrum->view() == part);
}

QTEST_MAIN(TestValueModes)
#include "tst_valuemodes.moc"
