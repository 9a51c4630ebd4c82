// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statusfield.h"

#include "analogchannel.h"
#include "cfgproperties.h"
#include "filekind.h"
#include "labeltext.h"
#include "plothost.h"
#include "plotsearch.h"
#include "plotterdg.h"
#include "timeofday.h"

#include <QEvent>

#include <algorithm>

namespace {

constexpr int mostOfFile = 200; // pixels of the name of a file

// Whether a channel recorded on a side, "P" or "S", shows other values there than the file's, as it
// does once its ratings were set.
bool isMultiplied(const CFGProperties &recording, const char *side, double AnalogChannel::*factor)
{
    const QList<AnalogChannel *> &channels = recording.analogChannels;
    return std::any_of(channels.cbegin(), channels.cend(), [=](const AnalogChannel *channel) {
        return channel->*factor != 1 && channel->ps == QLatin1String(side);
    });
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
    const QString shown = wholeText(mostOfFile);
    if (shown == text())
        return;
    setText(shown);
    const int width = fontMetrics().horizontalAdvance(shown) + 2 * fontMetrics().averageCharWidth();
    if (width > m_widest) {
        m_widest = width;
        updateGeometry();
    }
}

QString StatusField::wholeText(int mostOfName) const
{
    const auto shortened = [&](const QString &name) {
        return fontMetrics().elidedText(name, Qt::ElideMiddle, mostOfName);
    };
    QStringList parts;
    if (!m_file.isEmpty() && m_host.recording()) {
        parts << shortened(m_file) << sideText();
        if (m_plot && !m_plot->sampleTimes().times().isEmpty())
            parts << pointedText();
    }
    if (!m_notOpened.isEmpty())
        parts << notOpenedText(shortened(m_notOpened));
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
    const CFGProperties &recording = *m_host.recording();
    switch (m_host.valueMode()) {
    case 0:
        return isMultiplied(recording, "P", &AnalogChannel::toPrimary)
            ? tr("P = file value x rating")
            : tr("Primary");
    case 1:
        return isMultiplied(recording, "S", &AnalogChannel::toSecondary)
            ? tr("S = file value x rating")
            : tr("Secondary");
    default:
        return tr("Per Unit");
    }
}

// The time is that of the line in the plot pointed at.
QString StatusField::pointedText() const
{
    const CFGProperties &recording = *m_host.recording();
    const double time = m_plot->geometryOfView().lineTime(m_point.x());
    QStringList parts{QStringLiteral("%1: %2 ms").arg(m_plot->name(), millisecondsText(time)),
        clockText(recording.startTime, time),
        tr("from trigger: %1 ms").arg(millisecondsText(time - recording.triggerOffsetMs))};
    const int row = qobject_cast<const plotterDg *>(m_plot) ? rowAt(*m_plot, m_point) : -1;
    if (row >= 0)
        parts << stateText(m_plot->shownChannels().at(row),
            m_plot->sampleTimes().sampleAt(recording.sampleRate, time));
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  |  "));
}

QSize StatusField::sizeHint() const
{
    const int most = parentWidget()->width() * 3 / 4;
    return {std::min(m_widest, most), fontMetrics().height()};
}

void StatusField::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    ElidingLabel::changeEvent(event);
}
