// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plottitle.h"

#include "labeltext.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int titleLeft = 70;
constexpr int titleWidth = 100;
constexpr int titleHeight = 20;
constexpr int smallestFont = 9; // pixels

} // namespace

PlotTitle::PlotTitle(QWidget *plot) : QLabel(plot), m_editor(new QLineEdit(plot))
{
    setObjectName(QStringLiteral("Plotter Label"));
    setStyleSheet(QStringLiteral("QLabel{border: 1px solid #00b9f2; color:white;}"));
    setTextFormat(Qt::PlainText);
    setMouseTracking(true); // for the plot, which gets the moves that nothing here takes

    m_editor->setWindowFlags(m_editor->windowFlags() | Qt::FramelessWindowHint);
    m_editor->setStyleSheet(QStringLiteral("QLineEdit{background-color: black; color: white;}"));
    m_editor->hide();
    m_editor->installEventFilter(this);
}

void PlotTitle::retranslate()
{
    if (m_title != m_titleByName)
        return;
    m_titleByName = QCoreApplication::translate("Plotter", "%1 Plotter").arg(m_name);
    setTitle(m_titleByName);
    if (m_editor->isVisible() && !m_editor->isModified()) {
        m_editor->setText(m_title);
        m_editor->selectAll();
    }
}

// The place is fixed: a long text gets a smaller font, and one that is too long even then shows its
// beginning.
void PlotTitle::setTitle(const QString &title)
{
    constexpr int room = titleWidth - 6;
    const QFont titleFont = fittingFont(parentWidget()->font(), title, room, smallestFont);
    const bool fits = QFontMetrics(titleFont).horizontalAdvance(title) <= room;
    setFont(titleFont);
    setText(title);
    setAlignment(fits ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    setToolTip(fits ? QString() : plainToolTip(title));
    m_title = title;
    for (QWidget *widget : {parentWidget(), static_cast<QWidget *>(m_editor)})
        widget->setAccessibleName(title);
}

void PlotTitle::place(int y)
{
    setGeometry(titleLeft, y, titleWidth, titleHeight);
    retranslate();
    show();
}

void PlotTitle::openEditor()
{
    m_editor->setGeometry(geometry());
    m_editor->setText(m_title);
    m_editor->selectAll();
    m_editor->show();
    m_editor->raise();
    m_editor->setFocus();
    m_editor->grabKeyboard();
}

void PlotTitle::closeEditor()
{
    if (QWidget::keyboardGrabber() == m_editor)
        m_editor->releaseKeyboard();
    // Hidden with the focus, the editor would pass it on to whatever control comes next; an
    // inactive window keeps it for its return.
    if (window()->focusWidget() == m_editor)
        parentWidget()->setFocus();
    m_editor->hide();
}

void PlotTitle::takeEdited()
{
    setTitle(m_editor->text());
    closeEditor();
}

bool PlotTitle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        closeEditor();
        return true;
    }
    return QLabel::eventFilter(watched, event);
}
