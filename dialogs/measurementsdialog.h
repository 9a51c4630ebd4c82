// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "measurementtables.h"

#include <QDialog>
#include <QHash>
#include <QKeySequence>
#include <QPointer>

#include <functional>
#include <memory>

class AnalogSource;
class ElidingComboBox;
class PlotHost;
class Plotter;
class QTableView;
class QTimer;

namespace Ui {
class MeasurementsDialog;
}

// Tells in numbers what the channels of a plot are at its cursors, and follows both while it is
// shown: values and phasors at each cursor, differences between two, sequence components of three
// channels, harmonics of one. Values are those of the window's value mode.
class MeasurementsDialog : public QDialog {
    Q_OBJECT

public:
    explicit MeasurementsDialog(QWidget *parent = nullptr);
    ~MeasurementsDialog() override;

    // The object is used through PlotHost and, for the folder to save in, through DialogHost.
    void setMainWindow(QObject *object);

    // Measures the channels that the plot shows, now and later, at its cursors. Null for nothing.
    // The reference becomes that of the window, the phases and the channel of the harmonics the
    // first channels of the plot.
    void setPlotter(Plotter *source);
    const Plotter *plotter() const;
    // The same, and opens the window or brings it to the front.
    void showForPlotter(Plotter *source);
    // Measures these analog channels (0-based) instead, against a reference (0-based, -1 for none).
    void showForChannels(Plotter *cursors, const QList<int> &channels, int reference);

    // After a change of cursors, channels or values: brings the numbers up to date before the next
    // painting. Many requests make one. Nothing while hidden.
    void refresh();

    // Writes the table that is shown into a file; saved() tells what became of it.
    void saveTable(const QString &path);

public slots:
    void on_pushButton_copy_clicked();
    void on_pushButton_save_clicked();

signals:
    // Of a table; where that failed, with the path and the reason, both empty otherwise.
    void saved(const QString &failedFile, const QString &error);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setSource(Plotter *source, const std::optional<QList<int>> &channels, int reference);
    void addShortcut(const QList<QKeySequence> &keys, const std::function<void()> &command);
    void prepareTable(QTableView *view);
    void bringForward();
    QStringList channelNames() const;
    void showNames(); // anew, in other letters
    void measure();
    void followCursors(const QList<double> &times); // ms
    void tellTitle();

    QList<Quantity> quantities() const;
    Measured measured(const AnalogSource &source) const;
    QVector<MeasuredChannel> channels(const AnalogSource &source);
    MeasuredChannel analogChannel(const AnalogSource &source, int number) const;
    MeasuredChannel chosenChannel(const AnalogSource &source, const ElidingComboBox &box) const;
    QTableView *currentView() const;
    TextTableModel *modelOf(QTableView *view) const;
    void fill(QTableView *view, const TextTable &table);

    std::unique_ptr<Ui::MeasurementsDialog> ui;
    PlotHost *m_host = nullptr;
    QObject *m_hostObject = nullptr;
    QPointer<Plotter> m_plotter;
    std::optional<QList<int>> m_ownChannels; // where they are not those of the plot
    QHash<int, TraceSummary> m_traces; // of the channels whose extremes were asked for
    QList<double> m_cursorTimes; // of the cursors on offer, ms
    QTimer *m_timer;
};
