// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmenu.h"

#include "analogsource.h"
#include "cfgproperties.h"
#include "plothost.h"
#include "plotsearch.h"
#include "plotterdg.h"
#include "timeofday.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace {

// Enough digits to set a cursor there again.
QString timeText(double time)
{
    return QString::number(time, 'g', 12);
}

// Asks for a time of a recording that starts at startTime; what is proposed may lie beyond it, as a
// view may. The dialog ends with the plot.
void askForTime(Plotter *plot, const QString &title, double proposed, const QString &startTime,
    const std::function<void(double)> &command)
{
    auto *dialog = new QInputDialog(plot);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    dialog->setLabelText(PlotMenu::tr("Time in ms, or time of day (hh:mm:ss.zzz):"));
    dialog->setTextValue(timeText(std::clamp(proposed, plot->home().minX, plot->home().maxX)));
    const auto timeIn = [=](const QString &text) {
        const std::optional<double> time = timeFromText(text, startTime);
        return time && *time >= plot->home().minX && *time <= plot->home().maxX ? time
                                                                                : std::nullopt;
    };
    dialog->open();
    QPushButton *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QObject::connect(dialog, &QInputDialog::textValueChanged, ok,
        [=](const QString &text) { ok->setEnabled(timeIn(text).has_value()); });
    QObject::connect(dialog, &QInputDialog::textValueSelected, plot, [=](const QString &text) {
        if (const std::optional<double> time = timeIn(text))
            command(*time);
    });
}

} // namespace

OuterCursors::OuterCursors(const Plotter &plot)
{
    const QList<double> times = plot.cursors();
    const auto [earliest, latest] = std::minmax_element(times.cbegin(), times.cend());
    exist = earliest != latest;
    if (!exist)
        return;
    first = static_cast<int>(earliest - times.cbegin()) + 1;
    last = static_cast<int>(latest - times.cbegin()) + 1;
    from = *earliest;
    to = *latest;
}

void PlotMenu::add(const QString &text, bool isEnabled, const std::function<void()> &command)
{
    QAction *action = m_menu.addAction(text);
    action->setEnabled(isEnabled);
    QObject::connect(action, &QAction::triggered, &m_plot, command);
}

void PlotMenu::addViews()
{
    Plotter *plot = &m_plot;
    const PlotSettings &home = plot->home();
    const PlotSettings &view = plot->view();
    const auto turnBy = [=](double views) {
        plot->changeView([=](PlotView &now) { return now.moveTimes(views * now.live().spanX()); });
    };
    add(tr("&Earlier"), view.minX > home.minX, [=] { turnBy(-0.5); });
    add(tr("&Later"), view.maxX < home.maxX, [=] { turnBy(0.5); });
    add(tr("Previous Vie&w"), plot->hasPreviousView(), [=] { plot->showPreviousView(); });
    add(tr("Whole Recording"), view.minX != home.minX || view.maxX != home.maxX,
        [=] { plot->changeView([](PlotView &now) { return now.showAllTimes(); }); });
    addZoomToCursors();
}

void PlotMenu::addZoomToCursors()
{
    Plotter *plot = &m_plot;
    const OuterCursors outer(*plot);
    add(tr("&Zoom to P%1-P%2").arg(outer.first).arg(outer.last), outer.from < outer.to, [=] {
        plot->changeView([=](PlotView &now) { return now.showTimes(outer.from, outer.to); });
    });
}

void PlotMenu::addNewCursors(const QPoint &point)
{
    Plotter *plot = &m_plot;
    const bool hasRoom = plot->cursors().size() < CursorMarks::most;
    const QRect area = plot->geometryOfView().area();
    const bool isInView = point.x() >= area.left() && point.x() <= area.right();
    add(tr("Cursor Here"), hasRoom && isInView, [=] { plot->addCursor(point.x(), point.y()); });
    addCursorAt(tr("Cursor at Tri&gger"), m_host.recording()->triggerOffsetMs);
    const double here = plot->geometryOfView().lineTime(point.x());
    const QString startTime = m_host.recording()->startTime;
    add(tr("Cursor at &Time..."), hasRoom, [=] {
        askForTime(
            plot, tr("New Cursor"), here, startTime, [=](double time) { plot->addCursorAt(time); });
    });
    addChanges(point);
    if (!qobject_cast<plotterDg *>(plot))
        addExtremes(point);
}

void PlotMenu::addCursorAt(const QString &text, const std::optional<double> &time)
{
    Plotter *plot = &m_plot;
    add(text, time && plot->cursors().size() < CursorMarks::most,
        [=] { plot->addCursorAt(*time); });
}

void PlotMenu::addLook()
{
    Plotter *plot = &m_plot;
    add(tr("E&dit Title"), true, [=] { plot->editTitle(); });
    if (qobject_cast<plotterDg *>(plot))
        return;
    QMenu *colors = m_menu.addMenu(tr("Channel C&olor"));
    for (const int channel : plot->channels()) {
        const QAction *entry = colors->addAction(inEntry(nameOf(channel)));
        const auto choose = [=] { plot->chooseColor(channel); };
        // Once the menu has ended: it goes with the plot, which may do so while the dialog is open.
        QObject::connect(entry, &QAction::triggered, plot, choose, Qt::QueuedConnection);
    }
    colors->setEnabled(!colors->isEmpty());
}

QString PlotMenu::nameOf(int channel) const
{
    return AnalogSource(&m_host).nameOf(channel, m_plot.shownChannels().at(channel).id);
}

// A tabulator would part the text.
QString PlotMenu::inEntry(const QString &name) const
{
    constexpr int mostPixels = 200;
    QString shown = m_menu.fontMetrics().elidedText(name.simplified(), Qt::ElideMiddle, mostPixels);
    return shown.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString PlotMenu::inBrackets(const QString &name) const
{
    return QStringLiteral(" (%1)").arg(inEntry(name));
}

// Of the channel on a row of a digital plot; elsewhere of all that have a row.
void PlotMenu::addChanges(const QPoint &point)
{
    const auto *digital = qobject_cast<const plotterDg *>(&m_plot);
    const int row = digital ? rowAt(*digital, point) : -1;
    for (const Plotter *other : m_plot.linked())
        digital = digital ? digital : qobject_cast<const plotterDg *>(other);
    QVector<DigitalRuns> channels;
    QString name;
    if (row >= 0) {
        const ShownChannel &shown = digital->shownChannels().at(row);
        channels.append(shown.runs);
        name = inBrackets(shown.id);
    } else if (digital) {
        for (const ShownChannel &shown : digital->shownChannels().byNumber())
            channels.append(shown.runs);
    }
    const double time = m_plot.geometryOfView().lineTime(point.x());
    const TimeAxis &axis = m_plot.sampleTimes();
    addCursorAt(tr("Cursor at Previous &Change") + name, changeBefore(time, channels, axis));
    addCursorAt(tr("Cursor at Ne&xt Change") + name, changeAfter(time, channels, axis));
}

void PlotMenu::addExtremes(const QPoint &point)
{
    const AnalogSource source(&m_host);
    const int channel = traceAt(m_plot, source, point);
    const QString name = channel < 0 ? QString() : inBrackets(nameOf(channel));
    const auto timeOf = [&](bool isLargest) {
        return channel < 0 ? std::nullopt : timeOfExtreme(m_plot, source, channel, isLargest);
    };
    addCursorAt(tr("Cursor at &Maximum in View") + name, timeOf(true));
    addCursorAt(tr("Cursor at M&inimum in View") + name, timeOf(false));
}

void PlotMenu::addMoves(int cursor)
{
    Plotter *plot = &m_plot;
    const QList<QLabel *> labels = plot->findChildren<QLabel *>(QStringLiteral("lineLabel"));
    const QPointer<QLabel> label = labels.at(cursor);
    const double now = plot->cursors().at(cursor);
    const QString startTime = m_host.recording()->startTime;
    const auto step = [=](bool isForward) {
        if (!label)
            return;
        label->setFocus();
        stepCursor(*plot, cursor, isForward);
    };
    add(tr("&Move to Time..."), true, [=] {
        askForTime(plot, tr("Move Cursor"), now, startTime, [=](double time) {
            if (!label)
                return;
            plot->moveCursor(cursor, time);
            plot->refreshAll();
        });
    });
    add(tr("Step to &Previous Sample"), true, [=] { step(false); });
    add(tr("Step to &Next Sample"), true, [=] { step(true); });
}
