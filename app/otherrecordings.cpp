// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "otherrecordings.h"

#include "labeltext.h"
#include "openhint.h"
#include "recentrecordings.h"
#include "recordingfolder.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace {

// The name of each file, with that of its folder where another one has the same.
QStringList shortNames(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths)
        names.append(QFileInfo(path).fileName());
    const QStringList plain = names;
    for (int i = 0; i < paths.size(); ++i) {
        if (plain.count(plain.at(i)) > 1)
            names[i] += QStringLiteral(" (%1)").arg(QFileInfo(paths.at(i)).dir().dirName());
    }
    return names;
}

// A digit leads to each of ten. A tabulator would part the text.
QString entryText(int number, const QString &name, const QFontMetrics &metrics)
{
    constexpr int mostPixels = 300;
    QString shown = metrics.elidedText(name.simplified(), Qt::ElideMiddle, mostPixels);
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    return QStringLiteral("&%1 %2").arg(QString::number(number).right(1), shown);
}

} // namespace

OtherRecordings::OtherRecordings(QWidget *area, QObject *parent)
    : QObject(parent), m_hint(new OpenHint(area))
{
    connect(m_hint, &OpenHint::chosen, this, &OtherRecordings::chosen);
    m_hint->setRecordings(recentRecordings());
    area->installEventFilter(this);
}

void OtherRecordings::leaveArea(const QString &path)
{
    m_path = QFileInfo(path).absoluteFilePath();
    m_hint->hide();
}

void OtherRecordings::offerInArea()
{
    m_hint->setRecordings(recentRecordings());
    m_hint->show();
}

void OtherRecordings::remember()
{
    rememberRecording(m_path);
}

// After a file that cannot be loaded there may be others in its folder.
bool OtherRecordings::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu || m_hint->isHidden() || m_path.isEmpty())
        return QObject::eventFilter(watched, event);
    auto *menu = new QMenu(qobject_cast<QWidget *>(watched));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addTo(*menu);
    menu->popup(static_cast<QContextMenuEvent *>(event)->globalPos());
    return true;
}

void OtherRecordings::addTo(QMenu &menu)
{
    const Neighbours beside = neighboursOf(m_path);
    addStep(menu, tr("Open &Next in Folder"), beside.next);
    addStep(menu, tr("Open &Previous in Folder"), beside.previous);
    QMenu *latest = menu.addMenu(tr("&Recent Recordings"));
    latest->setToolTipsVisible(true);
    latest->setEnabled(!recentRecordings().isEmpty());
    connect(latest, &QMenu::aboutToShow, this, [this, latest] {
        if (latest->isEmpty())
            addLatest(*latest);
    });
    menu.setToolTipsVisible(true);
}

void OtherRecordings::addLatest(QMenu &menu)
{
    const QStringList paths = recentRecordings();
    const QStringList names = shortNames(paths);
    for (int i = 0; i < paths.size(); ++i) {
        addEntry(menu, entryText(i + 1, names.at(i), menu.fontMetrics()), paths.at(i));
        menu.actions().constLast()->setEnabled(isStillThere(paths.at(i)));
    }
}

// Without a path, the entry cannot be chosen.
void OtherRecordings::addEntry(QMenu &menu, const QString &text, const QString &path)
{
    QAction *entry = menu.addAction(text);
    entry->setEnabled(!path.isEmpty());
    entry->setToolTip(plainToolTip(QDir::toNativeSeparators(path)));
    connect(entry, &QAction::triggered, this, [this, path] { emit chosen(path); });
}

// One beside may leave what is on screen, as a package does that cannot be unpacked: the next one
// is behind it.
void OtherRecordings::addStep(QMenu &menu, const QString &text, const QString &path)
{
    addEntry(menu, text, path);
    connect(menu.actions().constLast(), &QAction::triggered, this, [this, path] { m_path = path; });
}
