// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "loadingprogress.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int betweenLooks = 100; // ms
constexpr int untilShown = 300; // ms

} // namespace

LoadingProgress::LoadingProgress(QWidget *parent)
    : QWidget(parent), m_timeLabel(new QLabel), m_bar(new QProgressBar), m_button(new QToolButton)
{
    constexpr int barWidth = 160;
    constexpr int partsOfBar = 1000;
    constexpr int spacing = 6;
    setObjectName(QStringLiteral("loadingProgress"));
    m_timeLabel->setObjectName(QStringLiteral("label_loadingTime"));
    m_timeLabel->setStyleSheet(QStringLiteral("QLabel{color: white; font-weight: normal;}"));
    m_timeLabel->setTextFormat(Qt::PlainText);
    m_timeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_bar->setObjectName(QStringLiteral("progressBar_loading"));
    m_bar->setRange(0, partsOfBar);
    m_bar->setFixedWidth(barWidth);
    m_button->setObjectName(QStringLiteral("toolButton_stopLoading"));
    m_button->setFocusPolicy(Qt::NoFocus); // Escape does the same
    connect(m_button, &QToolButton::clicked, this, &LoadingProgress::giveUp);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    for (QWidget *widget : {static_cast<QWidget *>(m_timeLabel), static_cast<QWidget *>(m_bar),
             static_cast<QWidget *>(m_button)}) {
        widget->setSizePolicy(widget->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
        layout->addWidget(widget);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // the bar keeps its height
    m_timer.setInterval(betweenLooks);
    connect(&m_timer, &QTimer::timeout, this, &LoadingProgress::look);
    retranslate();
    hide();
}

void LoadingProgress::start(LoadProgress &progress, LoadProgress::Stage lastStage)
{
    progress.restart();
    m_progress = &progress;
    m_lastStage = lastStage;
    m_isGivenUp = false;
    m_stage = LoadProgress::Stage::Reading;
    m_remaining = {};
    m_sinceStart.start();
    m_sinceStage.start();
    m_timer.start();
}

void LoadingProgress::stop()
{
    m_progress = nullptr;
    m_timer.stop();
    hide();
}

void LoadingProgress::giveUp()
{
    if (!m_progress)
        return;
    m_isGivenUp = true;
    m_progress->cancel();
}

void LoadingProgress::look()
{
    const LoadProgress::Place place = m_progress->place();
    if (place.stage != m_stage) {
        m_stage = place.stage;
        m_remaining = {};
        m_sinceStage.start();
    }
    if (m_stage == m_lastStage)
        m_remaining.update(m_sinceStage.elapsed(), static_cast<double>(place.done));
    m_bar->setValue(static_cast<int>(place.done * static_cast<float>(m_bar->maximum())));
    showState();
    if (m_sinceStart.hasExpired(untilShown))
        show();
}

void LoadingProgress::showState()
{
    m_bar->setFormat(
        m_stage == LoadProgress::Stage::Reading ? tr("Reading: %p%") : tr("Phasors: %p%"));
    m_timeLabel->setText(timeText(m_remaining.seconds()));
}

QString LoadingProgress::timeText(int seconds) const
{
    constexpr int minute = 60; // s
    if (seconds == 0)
        return {};
    return seconds <= minute ? tr("about %1 s left").arg(seconds)
                             : tr("about %1 min left").arg(seconds / minute);
}

void LoadingProgress::retranslate()
{
    constexpr int twoDigits = 55;
    m_bar->setAccessibleName(tr("Loading"));
    m_button->setText(tr("Stop"));
    m_button->setAccessibleName(tr("Stop loading"));
    m_button->setToolTip(tr("Stop loading (Esc)"));
    // Room for the time from the start, so that the bar stands still.
    const QFontMetrics metrics(m_timeLabel->font());
    m_timeLabel->setMinimumWidth(std::max(metrics.horizontalAdvance(timeText(twoDigits)),
        metrics.horizontalAdvance(timeText(twoDigits * 60))));
    showState();
}

void LoadingProgress::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}
