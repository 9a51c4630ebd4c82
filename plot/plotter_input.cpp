// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse and the keyboard in a plot.

#include "plotter.h"

#include "baselayer.h"
#include "customlabel.h"
#include "labeltext.h"
#include "plothost.h"
#include "plotsearch.h"
#include "plottitle.h"

#include <QColorDialog>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <memory>

namespace {

constexpr int notch = 120; // of a wheel
constexpr int catchDistance = 19; // a band begins on an edge up to this far outside it

// Pulls a coordinate that lies a little outside onto the nearer end.
int caught(int position, int from, int to)
{
    if (position < from && position >= from - catchDistance)
        return from;
    if (position > to && position <= to + catchDistance)
        return to;
    return position;
}

} // namespace

bool Plotter::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: { // the cells of the readout are elided where there are many cursors
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString text
            = m_base.content.readout.textAt(help->pos(), geometryOfView(), smallFont(font()));
        QToolTip::showText(help->globalPos(), plainToolTip(text), this);
        return true;
    }
    case QEvent::ShowToParent:
        followLinked();
        break;
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::ScreenChangeInternal: // to one of another factor
        refreshPixmap();
        break;
    case QEvent::LanguageChange:
        plotterLabel->retranslate();
        if (colorDialog)
            colorDialog->setWindowTitle(QColorDialog::tr("Select Color"));
        refreshPixmap();
        break;
    case QEvent::Enter: // after a drag from another plot, too, which had the moves
        showPointer(static_cast<QEnterEvent *>(event)->pos(), false);
        break;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        letGo();
        break;
    case QEvent::FocusOut: // to a menu that the keys opened: it takes the release of the button
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason) // by the wheel
            endDrag();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

// Neither keys nor buttons are told of any more.
void Plotter::letGo()
{
    m_keyboard.release();
    endDrag();
}

void Plotter::endDrag()
{
    if (m_drags.label.end())
        refreshAll(); // the readouts follow the end of a drag
    if (m_drags.band.isShown())
        m_drags.band.hide();
    m_drags.view.end();
}

void Plotter::mousePressEvent(QMouseEvent *event)
{
    if (m_drags.view.isActive()) // another button; what it drags would go on beside the view
        return;
    // The toolkit may not tell of the release of a second button.
    const bool mayDrag = event->buttons() == event->button();
    auto *label = qobject_cast<CustomLabel *>(childAt(event->pos()));
    if (label && label->objectName().contains(QLatin1String("lineLabel"))) {
        if (mayDrag)
            m_drags.label.press(label, event->pos());
        return;
    }
    const QRect area = geometryOfView().area();
    const QPoint point(caught(event->pos().x(), area.left(), area.right()),
        caught(event->pos().y(), area.top(), area.bottom()));
    if (event->button() == Qt::LeftButton && area.contains(point)) {
        if (mayDrag)
            m_drags.band.begin(point);
        return;
    }
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter->m_drags.band.isShown())
            plotter->m_drags.band.hide();
        plotter->plotterLabel->closeEditor();
    }
    if (event->button() == Qt::MiddleButton && area.contains(point) && mayDrag
        && !m_drags.band.isShown() && !m_drags.label.label()) {
        noteViews();
        m_drags.view.begin(event->pos());
    }
}

// A title editor, of this plot or another, keeps the keyboard while it is shown. A key that is held
// goes along from one plot to the next.
void Plotter::takeKeyboard()
{
    if (m_keyboard.isGrabbed() || !isActiveWindow()
        || qobject_cast<QLineEdit *>(QWidget::keyboardGrabber()))
        return;
    grabKeyboard();
    for (Plotter *plotter : qAsConst(linkedPlotters))
        m_keyboard.takeKey(plotter->m_keyboard);
}

void Plotter::mouseMoveEvent(QMouseEvent *event)
{
    takeKeyboard();
    const QPoint point = event->pos();
    if (m_drags.label.moveTo(point))
        dragCursor(point.x());
    if (m_drags.band.isShown()) {
        m_drags.band.growTo(point);
        m_drags.band.preview(m_view, geometryOfView(), !m_digitalFlag);
    }
    if (m_drags.view.isActive())
        dragView(m_drags.view.moveTo(point));
    showPointer(point, true);
}

void Plotter::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (m_drags.label.end()) {
        refreshAll();
        if (mainWindow)
            mainWindow->refreshVectors();
        return;
    }
    if (m_drags.view.end())
        return;
    noteViews();
    if (!m_drags.band.isShown() || !zoomToBand(true))
        return;
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        if (plotter->isOnScreen()) {
            plotter->m_drags.band.copy(m_drags.band);
            plotter->applyRubberBand();
        }
    }
    leadLinked();
    rangeScrollBar();
    refreshAll();
}

void Plotter::mouseDoubleClickEvent(QMouseEvent *event)
{
    auto *label = qobject_cast<QLabel *>(childAt(event->pos()));
    if (label == plotterLabel) {
        editTitle();
        return;
    }
    if (label && label->objectName() == QLatin1String("channelLabel")) {
        chooseColor(label->property("channel").toInt());
        return;
    }
    if (qobject_cast<CustomLabel *>(label))
        return;
    m_drags.band.hide();
    if (m_marks.cursors.isFull())
        return;
    addCursor(event->pos().x(), event->pos().y());
    if (mainWindow)
        mainWindow->refreshVectors();
}

void Plotter::editTitle()
{
    m_keyboard.release();
    plotterLabel->openEditor();
}

void Plotter::labelEditFinished()
{
    plotterLabel->closeEditor();
}

void Plotter::labelEditConfirm()
{
    plotterLabel->takeEdited();
}

void Plotter::chooseColor(int channel)
{
    m_keyboard.release();
    if (!colorDialog)
        colorDialog = new QColorDialog(this);
    colorDialog->setCurrentColor(Qt::white);
    const QPointer<Plotter> self(this); // another recording may replace the plot meanwhile
    const bool isAccepted = colorDialog->exec() == QDialog::Accepted;
    if (!self || !isAccepted || !colorDialog->selectedColor().isValid())
        return;
    m_channels.chooseColor(channel, colorDialog->selectedColor());
    refreshPixmap();
}

void Plotter::wheelEvent(QWheelEvent *event)
{
    noteViews();
    const QPoint delta = event->angleDelta();
    const bool isForward = delta.y() > notch - 1;
    if (m_keyboard.isHeld(Qt::Key_Control)) {
        isForward ? customZoomIn() : customZoomOut();
    } else if (m_keyboard.isHeld(Qt::Key_Shift)) {
        isForward ? customVZoomIn() : customVZoomOut();
    } else {
        const int steps = delta.y() / notch;
        if (delta.x() == 0)
            scrollView(PlotSettings::noScroll, steps);
        else
            scrollView(steps, PlotSettings::noScroll);
    }
    event->accept();
}

void Plotter::keyPressEvent(QKeyEvent *event)
{
    if (plotterLabel->editor()->isVisible()) { // a key that the editor has no use for
        QWidget::keyPressEvent(event);
        return;
    }
    noteViews();
    m_keyboard.hold(event->key());
    const auto *label = qobject_cast<QLabel *>(window()->focusWidget());
    const auto *owner = label ? qobject_cast<Plotter *>(label->parentWidget()) : nullptr;
    const int cursor = owner ? owner->m_marks.cursors.cursorOf(label) : -1; // the same in all plots
    if (cursor >= 0 && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        stepCursor(*this, cursor, event->key() == Qt::Key_Right);
        return;
    }
    QScrollBar *bar = mainWindow ? mainWindow->horizontalScrollBar() : nullptr;
    const auto turnBar = [&](int steps) {
        if (bar && (steps < 0 || bar->value() < bar->maximum()))
            bar->setValue(bar->value() + steps);
        refreshPixmap();
    };
    const auto scrollAll = [&](int steps) {
        scrollView(PlotSettings::noScroll, steps);
        for (Plotter *plotter : qAsConst(linkedPlotters))
            plotter->scrollView(PlotSettings::noScroll, steps);
    };
    switch (event->key()) {
    case Qt::Key_Plus:
        customZoomIn();
        break;
    case Qt::Key_Minus:
        customZoomOut();
        break;
    case Qt::Key_Left:
        turnBar(-1);
        break;
    case Qt::Key_Right:
        turnBar(1);
        break;
    case Qt::Key_Up:
        scrollAll(-1);
        break;
    case Qt::Key_Down:
        scrollAll(1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Plotter::keyReleaseEvent(QKeyEvent * /*event*/)
{
    m_keyboard.releaseKey();
}

void Plotter::leaveEvent(QEvent * /*event*/)
{
    m_keyboard.endGrab();
    m_marks.timeLine.leave();
    for (Plotter *plotter : qAsConst(linkedPlotters)) {
        plotter->m_marks.timeLine.leave();
        plotter->m_marks.timeMark->hide();
    }
    if (mainWindow)
        mainWindow->pointAt(nullptr, {});
}

// The key asks at the middle of the widget that has the focus or, where the pointer is over a plot,
// of that plot. There the table of the readout may stand, or the name of any cursor; what the menu
// acts on is the cursor whose name has the focus, or else the middle of the plot area.
void Plotter::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint middle = inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    const bool isMiddle = isByKey && event->pos() == middle;
    const QWidget *asked = isMiddle ? window()->focusWidget() : childAt(event->pos());
    const auto *label = qobject_cast<const CustomLabel *>(asked);
    const int cursor = m_marks.cursors.cursorOf(label);
    QPoint point = event->pos();
    if (isByKey)
        point = cursor < 0 ? geometryOfView().area().center() : label->geometry().center();
    auto menu = std::make_unique<QMenu>(this);
    if (cursor >= 0) {
        connect(menu->addAction(tr("Remove Cursor")), &QAction::triggered, this,
            [this, cursor] { removeCursors(cursor, cursor + 1); });
        connect(menu->addAction(tr("Remove All Cursors")), &QAction::triggered, this,
            [this] { removeCursors(0, m_marks.cursors.count()); });
    }
    if (mainWindow)
        mainWindow->fillPlotMenu(*menu, *this, point, cursor);
    if (menu->isEmpty()) {
        event->ignore();
        return;
    }
    letGo();
    // Where the pointer leaves the plot while the menu is open, the plot is not told.
    const auto leave = [this] {
        if (!visibleRegion().contains(mapFromGlobal(QCursor::pos())))
            leaveEvent(nullptr);
    };
    connect(menu.get(), &QMenu::aboutToHide, this, leave, Qt::QueuedConnection);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu.release()->popup(isByKey ? mapToGlobal(point) : event->globalPos());
}
