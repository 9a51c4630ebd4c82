// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "loadprogress.h"
#include "remainingtime.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

// How far the load that runs is, in the status bar: a bar for each stage, the time that is left,
// and a button that ends the load. A load that takes but a moment is not shown.
class LoadingProgress : public QWidget {
    Q_OBJECT

public:
    explicit LoadingProgress(QWidget *parent);

    // The load, which goes on until stop(), ends with this stage: before it, nobody can tell the
    // time that is left.
    void start(LoadProgress &progress, LoadProgress::Stage lastStage);
    void stop();

    // Has the load end as a failed one, if one runs.
    void giveUp();
    bool isGivenUp() const { return m_isGivenUp; } // the load that runs, or the latest one

protected:
    void changeEvent(QEvent *event) override;

private:
    void look();
    void retranslate();
    void showState();
    QString timeText(int seconds) const;

    QLabel *m_timeLabel;
    QProgressBar *m_bar;
    QToolButton *m_button;
    QTimer m_timer;
    LoadProgress *m_progress = nullptr; // of the load that runs
    LoadProgress::Stage m_lastStage{};
    LoadProgress::Stage m_stage{};
    RemainingTime m_remaining; // of this stage
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceStage;
    bool m_isGivenUp = false;
};
