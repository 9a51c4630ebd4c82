// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "basecontent.h"
#include "cursormarks.h"
#include "customlabel.h"
#include "mousemovereceiver.h"
#include "plotgeometry.h"
#include "shownchannel.h"
#include "timeaxis.h"

#include <QColor>
#include <QList>
#include <QMap>
#include <QPixmap>
#include <QVector>
#include <QWidget>

class AnalogChannel;
class CFGProperties;
class PlotHost;
class PlotLine;
class QColorDialog;
class QLabel;
class QLineEdit;

// Shows analog channels of a recording as waveforms or spectra against time. A plot paints into two
// pixmaps, the base layer (grid, traces, readout) and the overlay (cursors); a repaint only copies
// them. All plots of a window are linked: zooms, cursors and the time line of one are repeated by
// the others. Channel numbers count from 0; numbers from the count of analog channels on stand for
// the spectrum of channel (number - count).
class Plotter : public QWidget, public MouseMoveReceiver {
    Q_OBJECT
    Q_INTERFACES(MouseMoveReceiver)

public:
    explicit Plotter(QWidget *parent);
    ~Plotter() override;

    // The object is used through PlotHost; one that is no host counts as none.
    void setMainWindow(QObject *window);
    // "Analog" shows as "Analog Plotter", from the next setupPlot() or change of language on.
    void setName(const QString &name);
    QString name() const { return plotName; }
    // Replaces the text of the title; the name stays.
    void setTitle(const QString &title);

    // The other plots of the window.
    void setLinkedPlotters(const QList<Plotter *> &plotters);
    const QList<Plotter *> &linked() const { return linkedPlotters; }
    // Removes the last linked plot of that name, and where there is none the first linked plot.
    void removeLinkedPlotter(const QString &name);

    // Channels are drawn from the next setupPlot() and refreshPixmap() on; labels and readout name
    // them in the order in which they were added.
    void addChannel(int number);
    // Shows these channels and no others, in this order.
    void showChannels(const QList<int> &numbers);
    const QList<int> &channels() const { return channelOrder; }
    bool showsSpectrum() const;

    // The live view, all zero before setupPlot(), and the full view.
    PlotSettings view() const;
    const PlotSettings &home() const { return homeSettings; }
    PlotGeometry geometryOfView() const;
    // What all plots have in common: the last analog view and the last zooms, as fractions shown.
    static const PlotSettings &sharedView() { return sharedAnalogSettings; }
    static double sharedTimeZoom() { return sharedHorizontalZoom; }
    static double sharedValueZoom() { return sharedVerticalZoom; }
    // Takes over the time range, the cursors and the save markers of another plot, and its share of
    // the horizontal zoom.
    void followFromNowOn(const Plotter &other);
    // Fits the value axis to changed factors so that a trace keeps its place.
    void rescaleValues();
    void resetPlot();

    // Cursor times in ms, in the order in which they were set.
    QList<double> cursors() const { return cursorMarks.times(); }
    // The time difference of the last neighbouring pair of cursors, ms; 0 with fewer than two.
    double pairDifference() const { return cursorMarks.pairDifference(); }
    void clearCursors();

    // The sample times of the recording as of the last setupPlot().
    const TimeAxis &sampleTimes() const { return timeAxis; }

    virtual void setupPlot();
    virtual void refreshPixmap();
    virtual void drawGrid(QPainter *painter);
    virtual void drawCurves(QPainter *painter);
    virtual void drawTrigger(QPainter *painter);
    // Adds a cursor at a pixel of this plot.
    virtual void addCursor(int x, int y);
    virtual void applyRubberBand();
    virtual void drawValueTable(QPainter *painter);
    void drawTimeLabels(QPainter *painter);

    void receiveMouseMove(QMouseEvent *event) override { mouseMoveEvent(event); }

    QSize sizeHint() const override { return {600, 400}; }
    QSize minimumSizeHint() const override { return {300, 200}; }

public slots:
    void zoomIn();
    void zoomIn2();
    void zoomOut();
    void zoomOut2();
    void scrolling(int r);
    void customZoomIn();
    void customZoomOut();
    void customResetZoom();
    void customZoomIn2();
    void customZoomOut2();
    void labelEditFinished();
    void labelEditConfirm();
    virtual void customVZoomIn();
    virtual void customVZoomOut();
    virtual void customVZoomIn2();
    virtual void customVZoomOut2();
    void refreshSlot();
    void setStartPoint(double time);
    void setEndPoint(double time);
    void clearSaveMarkers();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

    virtual ShownChannel shownChannel(int number) const;

    CFGProperties *recording() const; // null without a host or a recording
    void readTimes();
    void setHome(double minY, double maxY);
    void placeTitle(int y);

    PlotSettings homeSettings;
    QString plotType; // "Analog" or "Digital"; the zooms ask whether it contains one of them
    int digitalFlag = 0;
    QVector<PlotSettings> zoomStack; // element 0 is the live view; empty before setupPlot()
    QLabel *plotterLabel;
    QMap<int, ShownChannel> channelMap; // traces are drawn in the order of the numbers
    QList<int> channelOrder; // the same numbers in the order in which they were added
    TimeAxis timeAxis;
    int pressedKey = -1; // the key held down, as far as this plot has seen
    int readoutWidth = 0; // kept free at the right of the plot area

private:
    bool isSpectrum(int number) const;
    const AnalogChannel *channelOf(int number) const;
    double factorOf(int number) const;
    QColor colorOf(int number) const;
    Readout readout() const;
    BaseContent baseContent() const;
    QSize layerSize() const;
    QPixmap clearLayer() const;
    void paintBase();
    void paintOverlay();
    void placeChannelLabels();
    void placeMarks();
    void setTitleByName();

    // Each gives false and keeps the view where the zoomed range could not be shown.
    enum class Sharing { Always, UnlessDigital, IfAnalog };
    bool zoomTime(double factor, Sharing sharing);
    bool zoomValues(double factor, bool keepsCentre);
    bool zoomToBand(bool withValues);
    PlotSettings bandView(const QRect &band, bool withValues) const;
    void shareView(Sharing sharing);
    void rangeScrollBar();
    void scrollView(int dx, int dy);
    void updateBand();
    void hideBand();

    void showTimeLine(int x);
    QRect timeLabelPlace() const;
    void insertCursor(double time);
    void moveCursor(int cursor, double time);
    void removeCursors(int first, int last);
    void dragCursor(int x);
    void releaseGrab();
    void letGo();
    void closeTitleEditor();
    void takePress(const QPoint &position);
    void editTitle();
    void chooseColor(const QLabel *label);

    QString plotName;
    QString plotTitle; // in full; empty before the first setupPlot()
    QString titleByName; // the latest one that was made from the name
    QLabel *timeLabel;
    PlotLine *timeLine;
    QLineEdit *labelEditor;
    PlotLine *startMarker;
    PlotLine *endMarker;
    bool startMarkerSet = false;
    bool endMarkerSet = false;
    int startMarkerTime = 0; // ms
    int endMarkerTime = 0; // ms
    double timeLineTime = 0; // ms
    CursorMarks cursorMarks;
    double defaultVerticalZoom = 1.0;
    QPixmap basePixmap;
    BaseContent drawnContent; // what basePixmap shows
    QPixmap overlayPixmap; // null while there is nothing to show
    PlotHost *mainWindow = nullptr;
    QWidget *hostWidget; // the pixmaps have its size
    QList<QLabel *> channelLabels;
    bool draggingTimeLine = false;
    CustomLabel *draggedLabel = nullptr;
    bool skipBaseLayer = false;
    double horizontalZoom = 1.0; // fraction of the full time span shown
    double verticalZoom = 1.0; // fraction of the full value range shown
    double lowestValue = 0; // shown, at most 0, under the factors of the last set-up
    double highestValue = 0; // at least 0
    QColorDialog *colorDialog;
    QList<QColor> channelColors;
    QMap<int, QColor> chosenColors; // by channel number
    int zoomLevel = 0;
    bool rubberBandShown = false;
    QRect rubberBandRect;
    QPoint linkedPress; // where another plot was pressed last
    QList<Plotter *> linkedPlotters;
    int lastScrollValue = 0;
    int scrollDelta = 0;
    int restX = 710; // kept with restY for their values; nothing reads them
    int restY = 138;

    static double sharedHorizontalZoom;
    static double sharedVerticalZoom;
    static PlotSettings sharedAnalogSettings;
};
