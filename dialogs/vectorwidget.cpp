// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "vectorwidget.h"

#include "cfgproperties.h"
#include "channelnames.h"
#include "dialoghost.h"
#include "elidingcheckbox.h"
#include "labeltext.h"
#include "measurementtables.h"
#include "numbers.h"
#include "phasordiagram.h"
#include "plotter.h"
#include "screenlines.h"
#include "ui_vectorwidget.h"
#include "vectordialog.h"

#include <QColorDialog>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

namespace {

constexpr int refreshDelay = 10; // ms
constexpr int firstDrawDelay = 100; // ms, from being shown
constexpr int checkBoxesPerRow = 3;
// Check boxes that are made at once: before the panel is shown, as it is, and of very many in each
// round of events from then on.
constexpr int firstCheckBoxes = 36;
constexpr int shownCheckBoxes = 240;
constexpr int checkBoxesOfARound = 60;

// The sample at a time. The channels of a recording share their list of times, so that one search
// serves them all.
class SampleAtTime {
public:
    // The axis may be of the same times; it then says where the search begins.
    SampleAtTime(double time, const TimeAxis &axis) : m_time(time), m_axis(axis) { }

    int of(const AnalogChannel &channel)
    {
        if (!m_times.isSharedWith(channel.times) || m_sampleRate != channel.sampleRate) {
            m_times = channel.times;
            m_sampleRate = channel.sampleRate;
            int from = m_axis.times().isSharedWith(m_times) ? m_axis.searchStart(m_time) : 0;
            m_sample = sampleAt(m_times, m_sampleRate, m_time, from);
        }
        return m_sample;
    }

private:
    double m_time;
    const TimeAxis &m_axis;
    QVector<double> m_times; // of the channel searched last
    double m_sampleRate = 0;
    int m_sample = -1;
};

QString colorSheet(const QColor &color)
{
    return QStringLiteral("QCheckBox{color: rgb(%1,%2,%3);}")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

void drawGrid(QPainter &painter, const PhasorDiagram &diagram)
{
    const QColor color(200, 200, 200, 50);
    for (int k = 0; k < PhasorDiagram::lineCount; ++k) {
        const int position = diagram.gridLine(k);
        fillDashedLine(painter, {0, position, diagram.width() + 1, 1}, color);
        fillDashedLine(painter, {position, 0, 1, diagram.height() + 1}, color);
    }
}

// A text that is too wide for its place is drawn narrower: it would lose its sign at the edge of
// the picture or run into the next one.
void drawAxisLabel(QPainter &painter, const QRect &place, int alignment, const QString &text)
{
    const QFont usual = painter.font();
    const int width = painter.fontMetrics().horizontalAdvance(text);
    if (width > place.width()) {
        QFont narrow(usual);
        narrow.setStretch(100 * place.width() / width);
        painter.setFont(narrow);
    }
    painter.drawText(place, alignment | Qt::TextDontClip, text);
    painter.setFont(usual);
}

void drawAxisLabels(QPainter &painter, const PhasorDiagram &diagram)
{
    for (int k = 0; k < PhasorDiagram::lineCount; ++k) {
        drawAxisLabel(
            painter, diagram.verticalTextRect(k), Qt::AlignRight, diagram.verticalText(k));
        drawAxisLabel(
            painter, diagram.horizontalTextRect(k), Qt::AlignCenter, diagram.horizontalText(k));
    }
}

void setPenColor(QPainter &painter, const QColor &color)
{
    QPen pen = painter.pen();
    pen.setColor(color);
    painter.setPen(pen);
}

} // namespace

VectorWidget::VectorWidget(QWidget *parent)
    : QWidget(parent),
      channelColors{{250, 140, 20}, {0, 255, 0}, {100, 150, 255}, {223, 105, 209}, {60, 150, 0},
          {80, 150, 180}, {193, 137, 62}, {0, 255, 255}, {245, 30, 18}, {112, 146, 190}, {0, 0, 0},
          {200, 191, 231}, {177, 177, 177}},
      m_refreshTimer(new QTimer(this)),
      m_owner(qobject_cast<VectorDialog *>(parent)),
      ui(std::make_unique<Ui::VectorWidget>()),
      m_checkBoxTimer(new QTimer(this))
{
    ui->setupUi(this);
    connect(m_refreshTimer, &QTimer::timeout, this, &VectorWidget::drawAll);
    connect(
        m_checkBoxTimer, &QTimer::timeout, this, [this] { makeCheckBoxes(checkBoxesOfARound); });
    // The check boxes show their names by themselves.
    connect(&NameLetters::shared(), &NameLetters::changed, this, &VectorWidget::requestRedraw);
    setFixedWidth(width());
}

VectorWidget::~VectorWidget()
{
    if (m_removalClicked) { // the button is still handling the click that led here
        ui->toolButton->setParent(nullptr);
        ui->toolButton->deleteLater();
    }
}

void VectorWidget::setMainWindow(QObject *object)
{
    mainWindow = qobject_cast<DialogHost *>(object);
}

void VectorWidget::setPlotter(Plotter *source)
{
    plotter = source;
}

void VectorWidget::setChannelNames(const QStringList &names)
{
    m_channelNames = names;
    qDeleteAll(m_checkBoxes);
    m_checkBoxes.clear();
    makeCheckBoxes(isVisible() ? shownCheckBoxes : firstCheckBoxes);
}

void VectorWidget::makeCheckBoxes(int count)
{
    const int end = std::min(m_channelNames.size(), m_checkBoxes.size() + count);
    for (int i = m_checkBoxes.size(); i < end; ++i) {
        auto *checkBox = new ElidingCheckBox(this);
        connect(checkBox, &QCheckBox::toggled, this, &VectorWidget::drawAll);
        ui->gridLayout->addWidget(checkBox, i / checkBoxesPerRow, i % checkBoxesPerRow);
        checkBox->setStyleSheet(colorSheet(channelColors.at(i % channelColors.size())));
        checkBox->setName(m_channelNames.at(i));
        // The panel's width is fixed, however long the names are.
        checkBox->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        QWidget *previous = ui->toolButton; // for the Tab key
        if (i > 0)
            previous = m_checkBoxes.constLast();
        setTabOrder(previous, checkBox);
        m_checkBoxes.append(checkBox);
    }
    if (isVisible() && end < m_channelNames.size())
        m_checkBoxTimer->start(0);
    else
        m_checkBoxTimer->stop();
}

void VectorWidget::disableRemoval()
{
    ui->toolButton->setEnabled(false);
    ui->toolButton->setDisabled(true);
}

void VectorWidget::requestRedraw()
{
    if (!m_refreshTimer->isActive())
        m_refreshTimer->start(refreshDelay);
}

void VectorWidget::drawAll()
{
    if (m_drawing) { // asked for by an event that the running call handles while it waits
        requestRedraw();
        return;
    }
    m_refreshTimer->stop();
    m_diagramPixmap = pixmapFor(*ui->labelVector);
    m_magnitudesPixmap = pixmapFor(*ui->labelMagnitudes);
    m_renderPending = true;
    update();

    // A check box that reports its toggling must not be deleted meanwhile, so no event is handled
    // then.
    if (!qobject_cast<QCheckBox *>(sender()) && !waitForPaintEvent())
        return;
    if (m_renderPending)
        renderPixmaps();
    ui->labelVector->setPixmap(m_diagramPixmap);
    ui->labelMagnitudes->setPixmap(m_magnitudesPixmap);
}

// Handles events other than the user's for 10 ms; false when one of them has deleted the widget.
bool VectorWidget::waitForPaintEvent()
{
    m_drawing = true;
    const QPointer<VectorWidget> self(this);
    QElapsedTimer elapsed;
    elapsed.start();
    do {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        if (!self)
            return false;
    } while (elapsed.elapsed() < refreshDelay);
    m_drawing = false;
    return true;
}

void VectorWidget::focusRemoval()
{
    ui->toolButton->setFocus();
}

void VectorWidget::on_toolButton_clicked()
{
    m_removalClicked = true;
    emit deleteSignal(this);
}

void VectorWidget::mousePressEvent(QMouseEvent *event)
{
    auto *checkBox = qobject_cast<QCheckBox *>(childAt(event->pos()));
    if (event->button() == Qt::RightButton && checkBox)
        chooseColor(checkBox);
    else
        event->ignore();
}

void VectorWidget::chooseColor(const QPointer<QCheckBox> &checkBox)
{
    const int entry = m_checkBoxes.indexOf(checkBox) % channelColors.size();
    const QPointer<VectorWidget> self(this);
    const QColor color = QColorDialog::getColor(Qt::white, this);
    if (!self)
        return;
    if (color.isValid())
        channelColors[entry] = color;
    if (checkBox)
        checkBox->setStyleSheet(colorSheet(channelColors.at(entry)));
    drawAll();
}

void VectorWidget::paintEvent(QPaintEvent *)
{
    if (m_renderPending)
        renderPixmaps();
}

void VectorWidget::showEvent(QShowEvent *)
{
    makeCheckBoxes(std::max(shownCheckBoxes - m_checkBoxes.size(), 0));
    QTimer::singleShot(firstDrawDelay, this, &VectorWidget::drawAll);
}

void VectorWidget::resizeEvent(QResizeEvent *) { }

void VectorWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

bool VectorWidget::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal && isVisible()) // to one of another factor
        requestRedraw();
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), plainToolTip(tipAt(help->pos())), this);
    return true;
}

QString VectorWidget::tipAt(const QPoint &point) const
{
    const QWidget *place = childAt(point);
    int found = -1;
    if (place == ui->labelVector) {
        const QPoint origin = PhasorDiagram(0, ui->labelVector->size()).origin();
        const QPoint right = place->mapFrom(this, point) - origin;
        found = phasorAtLine(m_drawn, {right.x(), -right.y()});
    } else if (place == ui->labelMagnitudes) {
        found = phasorAtText(m_drawn, place->mapFrom(this, point), place->width());
    }
    return found < 0 ? QString() : tipOf(m_drawn.at(found));
}

// Over a check box, the right button chooses a colour; by the keys, that is in the menu.
void VectorWidget::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    auto *checkBox = qobject_cast<QCheckBox *>(isByKey ? focusWidget() : childAt(event->pos()));
    if (event->reason() == QContextMenuEvent::Mouse && checkBox) {
        event->ignore();
        return;
    }
    QList<int> channels;
    for (const int number : checkedChannels()) {
        if (number > 0)
            channels.append(number - 1);
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *measure = menu->addAction(tr("Measurements..."));
    measure->setEnabled(plotter && !channels.isEmpty());
    connect(measure, &QAction::triggered, this, [=] { emit measurementsWanted(channels); });
    if (checkBox) {
        // Once the menu is done, which would be deleted while the dialog is open.
        connect(
            menu->addAction(tr("Color...")), &QAction::triggered, checkBox,
            [this, checkBox] { chooseColor(checkBox); }, Qt::QueuedConnection);
    }
    menu->popup(event->globalPos());
}

void VectorWidget::renderPixmaps()
{
    m_renderPending = false;
    m_diagramPixmap.fill(Qt::transparent);
    m_magnitudesPixmap.fill(Qt::transparent);
    m_drawn.clear();
    if (!plotter)
        return;

    const QList<int> channels = checkedChannels();
    const PhasorDiagram diagram(extremeOf(channels), ui->labelVector->size());
    QPainter diagramPainter(&m_diagramPixmap);
    QPainter magnitudesPainter(&m_magnitudesPixmap);
    diagramPainter.translate(30, 20);
    drawGrid(diagramPainter, diagram);
    diagramPainter.resetTransform();
    // Within a clip, the toolkit draws dashed lines several times as fast.
    diagramPainter.setClipRect(ui->labelVector->rect());
    diagramPainter.setPen(Qt::DashLine);
    drawPhasors(diagramPainter, magnitudesPainter, diagram, channels);
}

void VectorWidget::drawPhasors(QPainter &diagramPainter, QPainter &magnitudesPainter,
    const PhasorDiagram &diagram, const QList<int> &channels)
{
    QFont font;
    font.setPixelSize(9);
    diagramPainter.setFont(font);
    magnitudesPainter.setFont(font);
    const QStringList names = recordingNames();
    const int reference = referenceChannel();
    // Texts that stand on it or lower lie outside the pixmap.
    const int lowestBaseLine = ui->labelMagnitudes->height() + 2 * font.pixelSize();
    const QList<double> times = plotter->cursors();
    if (!times.isEmpty()) {
        diagramPainter.resetTransform();
        diagramPainter.translate(0, 20);
        setPenColor(diagramPainter, Qt::white);
        drawAxisLabels(diagramPainter, diagram);
    }
    diagramPainter.resetTransform();
    diagramPainter.translate(diagram.origin());
    diagramPainter.scale(1, -1);
    for (int cursor = 0; cursor < times.size(); ++cursor) {
        SampleAtTime sample(times.at(cursor), plotter->sampleTimes());
        const auto phasorOf = [&](int channel) {
            const AnalogChannel *record = recordOf(channel);
            return record ? ::phasorOf(*record, sample.of(*record)) : Phasor();
        };
        const Phasor referencePhasor = phasorOf(reference);
        for (const int channel : channels) {
            // Unsigned, so that channel 0, a name unknown to the recording, has a colour as well.
            const QColor color
                = channelColors.at(static_cast<int>((static_cast<unsigned>(channel) - 1)
                    % static_cast<unsigned>(channelColors.size())));
            setPenColor(diagramPainter, color);
            setPenColor(magnitudesPainter, color);
            const Phasor phasor = phasorOf(channel);
            const QPoint end = diagram.lineEnd(phasor, referencePhasor.angle);
            diagramPainter.drawLine(QPoint(0, 0), end);
            const QPoint position
                = magnitudeTextPosition(m_drawn.size(), ui->labelMagnitudes->width());
            m_drawn.append({names.value(channel - 1), recordedUnit(channel), cursor, phasor,
                names.value(reference - 1), referencePhasor, end});
            if (position.y() < lowestBaseLine)
                magnitudesPainter.drawText(position,
                    fittingName(shownName(names.value(channel - 1)),
                        QStringLiteral(": ") + generalText(static_cast<double>(phasor.magnitude)),
                        magnitudesPainter.fontMetrics(),
                        magnitudeTextWidth(ui->labelMagnitudes->width())));
        }
    }
}

int VectorWidget::referenceChannel() const
{
    const int position = m_owner ? m_owner->referencePosition() : -1;
    return position < 0 ? 0 : positionOf(m_owner->referenceName(), recordingNames(), position) + 1;
}

// With the side, of a channel counted from 1.
QString VectorWidget::recordedUnit(int channel) const
{
    const AnalogChannel *record = recordOf(channel);
    if (!record)
        return QString();
    return ::recordedUnit(trimmedName(recording()->analogUnits.value(channel - 1)), *record);
}

// Numbers of the checked channels in the recording, 1-based; 0 for a name that it does not have.
QList<int> VectorWidget::checkedChannels() const
{
    const QStringList names = recordingNames();
    QList<int> channels;
    for (int i = 0; i < m_checkBoxes.size(); ++i)
        if (m_checkBoxes.at(i)->isChecked())
            channels.append(positionOf(m_channelNames.at(i), names, i) + 1);
    return channels;
}

double VectorWidget::extremeOf(const QList<int> &channels) const
{
    double extreme = 0;
    for (const int number : channels) {
        if (const AnalogChannel *channel = recordOf(number)) {
            extreme = std::max(extreme, static_cast<double>(channel->maxReal));
            extreme = std::max(extreme, static_cast<double>(channel->maxImaginary));
        }
    }
    return extreme;
}

// Not by the recording's own accessor, which wraps numbers beyond the records around.
const AnalogChannel *VectorWidget::recordOf(int channel) const
{
    const CFGProperties *source = recording();
    return source ? source->analogChannels.value(channel - 1) : nullptr;
}

const CFGProperties *VectorWidget::recording() const
{
    return mainWindow ? mainWindow->recording() : nullptr;
}

QStringList VectorWidget::recordingNames() const
{
    const CFGProperties *source = recording();
    return source ? source->analogIds : QStringList();
}

QPixmap VectorWidget::pixmapFor(const QWidget &label) const
{
    QPixmap pixmap(label.size() * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    return pixmap;
}
