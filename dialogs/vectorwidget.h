// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "drawnphasors.h"

#include <QColor>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <memory>

class AnalogChannel;
class CFGProperties;
class DialogHost;
class PhasorDiagram;
class Plotter;
class QCheckBox;
class QPainter;
class QTimer;
class VectorDialog;
namespace Ui {
class VectorWidget;
}

// One phasor diagram: for every checked channel a line at each cursor time of the plotter, turned
// so that the dialog's reference channel lies on the positive horizontal axis, and its magnitude as
// text.
class VectorWidget : public QWidget {
    Q_OBJECT

public:
    // The reference channel is that of the parent, when it is a VectorDialog.
    explicit VectorWidget(QWidget *parent = nullptr);
    ~VectorWidget() override;

    // The object is used through DialogHost; one that is no host counts as none.
    void setMainWindow(QObject *object);
    // Null: nothing is drawn.
    void setPlotter(Plotter *source);
    // Replaces the check boxes, one per name; the new ones are unchecked. Beyond some thirty they
    // are made when the panel is first shown, and very many little by little from then on.
    void setChannelNames(const QStringList &names);
    void disableRemoval();
    void focusRemoval(); // gives its button the focus

    // Draws again in 10 ms; further requests until then change nothing.
    void requestRedraw();

public slots:
    // Handles events other than the user's for 10 ms; called by the signal of a check box, none.
    void drawAll();
    void on_toolButton_clicked();

signals:
    // The receiver may delete the widget.
    void deleteSignal(VectorWidget *widget);
    // Of the checked channels, by their numbers from 0 on.
    void measurementsWanted(const QList<int> &channels);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void makeCheckBoxes(int count);
    void chooseColor(const QPointer<QCheckBox> &checkBox);
    bool waitForPaintEvent();
    void renderPixmaps();
    void drawPhasors(QPainter &diagramPainter, QPainter &magnitudesPainter,
        const PhasorDiagram &diagram, const QList<int> &channels);
    QString tipAt(const QPoint &point) const; // empty where nothing is drawn
    int referenceChannel() const; // its number in the recording, 1-based; 0 for none
    QList<int> checkedChannels() const;
    double extremeOf(const QList<int> &channels) const;
    const AnalogChannel *recordOf(int channel) const;
    QString recordedUnit(int channel) const;
    const CFGProperties *recording() const;
    QStringList recordingNames() const;
    QPixmap pixmapFor(const QWidget &label) const;

    QList<QColor> channelColors;
    QTimer *m_refreshTimer;
    DialogHost *mainWindow = nullptr;
    QPointer<Plotter> plotter;
    QPixmap m_diagramPixmap;
    QPixmap m_magnitudesPixmap;
    DrawnPhasors m_drawn; // in both
    QStringList m_channelNames;
    QList<QCheckBox *> m_checkBoxes; // parallel to m_channelNames, as far as they are made
    VectorDialog *m_owner;
    bool m_renderPending = false;
    std::unique_ptr<Ui::VectorWidget> ui;
    QTimer *m_checkBoxTimer; // runs while there are more to make
    bool m_drawing = false;
    bool m_removalClicked = false;
};
