// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statusfield.h"

#include "analogchannel.h"
#include "cfgproperties.h"
#include "channelvalues.h"
#include "filekind.h"
#include "labeltext.h"
#include "plothost.h"
#include "plotsearch.h"
#include "plotterdg.h"
#include "timeofday.h"

#include <QEvent>
#include <QStatusBar>

#include <algorithm>
#include <array>

namespace {

// Pixels of the name of a file. It and that of a digital row have as many as leave room for the
// state, which stands last.
constexpr std::array<int, 4> mostOfNames{200, 120, 80, 50};

bool hasMultiplied(const CFGProperties &recording, int valueMode)
{
    const QList<AnalogChannel *> &channels = recording.analogChannels;
    return std::any_of(channels.cbegin(), channels.cend(),
        [=](const AnalogChannel *channel) { return isMultiplied(*channel, valueMode); });
}

} // namespace

StatusField::StatusField(const PlotHost &host, QWidget *parent) : ElidingLabel(parent), m_host(host)
{
    setObjectName(QStringLiteral("statusField"));
    setStyleSheet(QStringLiteral("QLabel{color: white; font-weight: normal;}"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(
        sizePolicy().horizontalPolicy(), QSizePolicy::Ignored); // the bar keeps its height
    hide();
    if (const auto *bar = qobject_cast<QStatusBar *>(parent))
        connect(bar, &QStatusBar::messageChanged, this, &StatusField::leaveRoomFor);
}

void StatusField::showFile(const QString &name)
{
    m_file = name;
    m_plot = nullptr;
    m_widest = 0;
    if (!name.isEmpty())
        m_notOpened.clear();
    refresh();
    setVisible(!text().isEmpty());
}

void StatusField::showNotOpened(const QString &path)
{
    m_notOpened = path;
    refresh();
    show();
}

void StatusField::pointAt(const Plotter *plot, const QPoint &point)
{
    m_plot = plot;
    m_point = point;
    refresh();
}

void StatusField::refresh()
{
    setToolTip(plainToolTip(wholeText(QWIDGETSIZE_MAX)));
    QString shown;
    for (const int most : mostOfNames) {
        shown = wholeText(most);
        if (pointedRow() < 0 || neededFor(shown) <= mostWidth())
            break;
    }
    if (shown == text())
        return;
    setText(shown);
    if (neededFor(shown) > m_widest) {
        m_widest = neededFor(shown);
        updateGeometry();
    }
}

// Once the pointer has left the plots, what was needed there is free.
void StatusField::leaveRoomFor(const QString &message)
{
    if (message.isEmpty() || m_plot)
        return;
    m_widest = neededFor(text());
    updateGeometry();
}

int StatusField::neededFor(const QString &shown) const
{
    return fontMetrics().horizontalAdvance(shown) + 2 * fontMetrics().averageCharWidth();
}

int StatusField::mostWidth() const
{
    return parentWidget()->width() * 3 / 4;
}

QString StatusField::shortened(const QString &name, int most) const
{
    return fontMetrics().elidedText(name, Qt::ElideMiddle, most);
}

QString StatusField::wholeText(int ofNames) const
{
    QStringList parts;
    if (!m_file.isEmpty() && m_host.recording()) {
        parts << shortened(m_file, ofNames) << sideText();
        if (m_plot && !m_plot->sampleTimes().times().isEmpty())
            parts << pointedText(ofNames);
    }
    if (!m_notOpened.isEmpty())
        parts << notOpenedText(shortened(m_notOpened, ofNames));
    return parts.join(QStringLiteral("  |  "));
}

QString StatusField::notOpenedText(const QString &name) const
{
    return (isSingleFile(m_notOpened)
            ? tr("%1 was not opened: wavorin-convert turns .cff files into recordings that open")
            : tr("%1 was not opened: the name does not end with .cfg or .zip"))
        .arg(name);
}

QString StatusField::sideText() const
{
    const int mode = m_host.valueMode();
    const bool isOther = hasMultiplied(*m_host.recording(), mode);
    switch (mode) {
    case 0:
        return isOther ? tr("P = file value x rating") : tr("Primary");
    case 1:
        return isOther ? tr("S = file value x rating") : tr("Secondary");
    default:
        return tr("Per Unit");
    }
}

int StatusField::pointedRow() const
{
    return qobject_cast<const plotterDg *>(m_plot) ? rowAt(*m_plot, m_point) : -1;
}

// The time is that of the line in the plot pointed at.
QString StatusField::pointedText(int ofRow) const
{
    const CFGProperties &recording = *m_host.recording();
    const double time = m_plot->geometryOfView().lineTime(m_point.x());
    QStringList parts{QStringLiteral("%1: %2 ms").arg(m_plot->name(), millisecondsText(time)),
        clockText(recording.startTime, time),
        tr("from trigger: %1 ms").arg(millisecondsText(time - recording.triggerOffsetMs))};
    if (pointedRow() >= 0) {
        ShownChannel channel = m_plot->shownChannels().at(pointedRow());
        channel.id = shortened(channel.id, ofRow);
        parts << stateText(channel, m_plot->sampleTimes().sampleAt(recording.sampleRate, time));
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  |  "));
}

QSize StatusField::sizeHint() const
{
    return {std::min(m_widest, mostWidth()), fontMetrics().height()};
}

void StatusField::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    ElidingLabel::changeEvent(event);
}
