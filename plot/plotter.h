// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "basecontent.h"
#include "channellabels.h"
#include "mousemovereceiver.h"
#include "overlay.h"
#include "plotdrags.h"
#include "plotgeometry.h"
#include "plotkeyboard.h"
#include "plotmarks.h"
#include "sharedview.h"
#include "shownchannels.h"
#include "timeaxis.h"

#include <QWidget>

class CFGProperties;
class PlotHost;
class PlotTitle;
class QColorDialog;

// Shows analog channels of a recording as waveforms or spectra against time. A plot paints into two
// pixmaps, the base layer (grid, traces, readout) and the overlay (cursors); a repaint only copies
// them. All plots of a window are linked: zooms, cursors and the time line of one are repeated by
// the others on screen; one that is hidden follows when it is shown. Channel numbers count from 0;
// from the count of analog channels on they stand for the spectrum of channel (number - count).
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
    QString name() const;

    void setLinkedPlotters(const QList<Plotter *> &plotters) { linkedPlotters = plotters; }
    const QList<Plotter *> &linked() const { return linkedPlotters; }
    // Removes the last linked plot of that name, and where there is none the first linked plot.
    void removeLinkedPlotter(const QString &name);

    // Channels are drawn from the next setupPlot() and refreshPixmap() on; labels and readout name
    // them in the order in which they were added.
    void addChannel(int number);
    // Shows these channels and no others, in this order.
    void showChannels(const QList<int> &numbers);
    const QList<int> &channels() const { return m_channels.order(); }
    const ShownChannels &shownChannels() const { return m_channels; }
    bool showsSpectrum() const;

    // The live view, all zero before setupPlot(), and the full view.
    const PlotSettings &view() const { return m_view.live(); }
    const PlotSettings &home() const { return m_view.home(); }
    PlotGeometry geometryOfView() const { return {size(), m_readoutRoom.width, view()}; }
    static const SharedView &shared() { return s_shared; }
    // Takes over the time range and its zoom, the cursors and the save markers of another plot.
    void followFromNowOn(const Plotter &other);
    // After a change of factors or angles: fits the value axis to them, keeping what was zoomed to.
    void rescaleValues();
    void resetPlot();
    void refreshAll(); // this plot and the linked ones

    // Changes the view, gives whether that did something, and has the linked plots follow in time.
    bool changeView(const ViewChange &change);
    // Notes what the plots show, before a change of it; each is one step back.
    void noteViews() { s_shared.history.note(views()); }
    bool hasPreviousView() const { return s_shared.history.canGoBack(views()); }
    void showPreviousView();

    // Cursor times in ms, in the order in which they were set.
    void addCursorAt(double time);
    void moveCursor(int cursor, double time); // the readouts follow with the next refresh
    QList<double> cursors() const { return m_marks.cursors.times(); }
    // The time difference of the last neighbouring pair of cursors, ms; 0 with fewer than two.
    double pairDifference() const { return m_marks.cursors.pairDifference(); }
    void clearCursors();
    void editTitle();
    void chooseColor(int channel); // by a dialog
    void setForPaper(bool isForPaper); // the cursors, for a picture or again for the screen
    QWidget *lastTabStop() const { return m_marks.cursors.lastTabStop(); } // of the plot
    // The sample times of the recording as of the last setupPlot().
    const TimeAxis &sampleTimes() const { return m_timeAxis; }

    virtual void setupPlot();
    virtual void refreshPixmap();
    virtual void drawGrid(QPainter *painter);
    virtual void drawCurves(QPainter *painter);
    virtual void drawTrigger(QPainter *painter);
    virtual void addCursor(int x, int y); // at a pixel of this plot
    virtual void applyRubberBand();
    virtual void drawValueTable(QPainter *painter);
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
    void paintEvent(QPaintEvent *event) override;
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
    // Makes ready what is drawn under the present factors, and gives its extremes.
    virtual ValueExtremes prepareTraces();

    CFGProperties *recording() const; // null without a host or a recording
    void setHome();

    QString plotType; // "Analog" or "Digital"; the zooms ask whether it contains one of them
    int m_digitalFlag = 0;
    PlotTitle *plotterLabel;
    ShownChannels m_channels; // traces are drawn in the order of the numbers
    TimeAxis m_timeAxis;
    BaseLayer m_base;
    PlotKeyboard m_keyboard{this};

private:
    bool isOnScreen() const;
    void refreshOverlay();
    void settleReadout();
    void shareReadoutWidth();
    BaseContent baseContent() const;
    void paintBase(const QRect &seen);
    void drawBase(QPainter &painter, QRect seen);
    void placeMarks();
    ViewHistory::Views views() const; // of this plot and the linked ones
    bool lead(const ViewChange &change); // without a note of the views
    void dragView(const QPoint &way);
    bool zoomTime(double factor, SharedView::Rule sharing);
    void zoomLinked(double factor, SharedView::Rule sharing);
    bool zoomValues(double factor, bool keepsCentre);
    bool zoomToBand(bool withValues);
    void leadLinked();
    void follow(const Plotter &leader);
    void followLinked();
    void rangeScrollBar();
    void takeBarPosition();
    void scrollView(int dx, int dy);
    void showPointer(const QPoint &point, bool withLine);
    void removeCursors(int first, int last);
    void dragCursor(int x);
    void takeKeyboard();
    void letGo();
    void endDrag();

    PlotView m_view;
    ReadoutRoom m_readoutRoom;
    PlotMarks m_marks;
    PlotDrags m_drags;
    Overlay m_overlay;
    PlotHost *mainWindow = nullptr;
    ChannelLabels m_channelLabels;
    QColorDialog *colorDialog = nullptr; // made when it is first shown
    int zoomLevel = 0;
    QList<Plotter *> linkedPlotters;
    // Kept for their values; nothing reads them.
    QWidget *hostWidget;
    int scrollDelta = 0;
    int m_restX = 710;
    int m_restY = 138;

    static SharedView s_shared;
};
