// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cursorplotter.h"
#include "fakedialoghost.h"
#include "phasorrecording.h"
#include "vectordialog.h"
#include "vectorwidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QtTest>

#include <memory>

// What a panel of the phasor dialog shows, and pictures to compare it with.
namespace vectorpanel {

const QColor orange(250, 140, 20); // of channel 1
const QColor green(0, 255, 0); // of channel 2
const QColor blue(100, 150, 255); // of channel 3
const QColor violet(223, 105, 209); // of channel 4
const QPoint origin(182, 172); // of the diagram, in its label
// For this extreme the axes end at 100, and the grid has 1.525 pixels per unit.
constexpr float extremeOf100 = 95;
constexpr float pi = 3.14159265F;

inline QImage shown(const QWidget *panel, const char *label)
{
    return panel->findChild<QLabel *>(QLatin1String(label))->pixmap(Qt::ReturnByValue).toImage();
}
inline QImage diagram(const QWidget *panel)
{
    return shown(panel, "labelVector");
}
inline QImage magnitudes(const QWidget *panel)
{
    return shown(panel, "labelMagnitudes");
}

inline bool isTransparent(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() != 0)
                return false;
    return !image.isNull();
}

// The pixels of exactly that colour; all others are black.
inline QImage pixelsOf(const QImage &image, const QColor &color)
{
    QImage pixels(image.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels.setPixel(x, y, image.pixelColor(x, y) == color ? 0xffffffU : 0U);
    return pixels;
}

inline QRect boundsOf(const QImage &image, const QColor &color)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

struct Text {
    QPoint position;
    QColor color;
    QString text;
};

// The label of the magnitudes with these texts.
inline QImage pictureOf(const QList<Text> &texts)
{
    QPixmap pixmap(365, 85);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QFont font;
    font.setPixelSize(9);
    painter.setFont(font);
    for (const Text &each : texts) {
        painter.setPen(each.color);
        painter.drawText(each.position, each.text);
    }
    return pixmap.toImage();
}

struct Line {
    QPoint end; // from the origin, y upwards
    QColor color;
};

// The label of the diagram with these lines alone.
inline QImage linesPicture(const QList<Line> &lines)
{
    QPixmap pixmap(365, 365);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.translate(origin);
    painter.scale(1, -1);
    for (const Line &line : lines) {
        painter.setPen(QPen(line.color, 1, Qt::DashLine));
        painter.drawLine(QPoint(0, 0), line.end);
    }
    return pixmap.toImage();
}

} // namespace vectorpanel

// The first panel of a phasor dialog over a recording that the test fills, with cursors at times
// that it chooses; 50 ms at first.
class VectorPanelFixture {
protected:
    void setUp()
    {
        recording = PhasorRecording();
        host = std::make_unique<FakeDialogHost>();
        host->shown = recording.properties.get();
        dialog = new VectorDialog(host.get());
        dialog->setMainWindow(host.get());
        panel = dialog->findChild<VectorWidget *>();
        setPlotter({50});
    }

    void tearDown()
    {
        plotter.reset();
        host.reset();
    }

    void setPlotter(const QList<double> &cursors)
    {
        plotter = std::make_unique<CursorPlotter>(cursors, host.get());
        dialog->setPlotter(plotter.get());
    }

    void setReference(const QString &name)
    {
        dialog->findChild<QComboBox *>(QStringLiteral("comboBox_reference"))->setCurrentText(name);
    }

    // Offers the recording's channels and waits for the first drawing.
    void show()
    {
        dialog->setChannelNames(recording.properties->analogIds);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        QTRY_VERIFY(!diagram().isNull());
    }

    void addPanel()
    {
        QTest::mouseClick(dialog->findChild<QToolButton *>(
                              QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly),
            Qt::LeftButton);
    }

    void check(int box) { checkBoxes().at(box)->setChecked(true); }
    QList<QCheckBox *> checkBoxes() const { return panel->findChildren<QCheckBox *>(); }
    QLabel *label(const char *name) const
    {
        return panel->findChild<QLabel *>(QLatin1String(name));
    }
    QImage diagram() const { return vectorpanel::diagram(panel); }
    QImage magnitudes() const { return vectorpanel::magnitudes(panel); }

    PhasorRecording recording;
    std::unique_ptr<FakeDialogHost> host;
    QPointer<VectorDialog> dialog; // the host's
    QPointer<VectorWidget> panel; // the dialog's first
    std::unique_ptr<CursorPlotter> plotter;
};
