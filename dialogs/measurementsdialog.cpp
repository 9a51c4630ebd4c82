// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "measurementsdialog.h"

#include "analogsource.h"
#include "cfgproperties.h"
#include "channelnames.h"
#include "dialoghost.h"
#include "filekind.h"
#include "filepair.h"
#include "plothost.h"
#include "plotterdg.h"
#include "ui_measurementsdialog.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

QStringList rowNames(const TextTableModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.headerData(row, Qt::Vertical).toString());
    return names;
}

} // namespace

MeasurementsDialog::MeasurementsDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::MeasurementsDialog>()), m_timer(new QTimer(this))
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_timer->setSingleShot(true);
    connect(&NameLetters::shared(), &NameLetters::changed, this, &MeasurementsDialog::showNames);
    connect(m_timer, &QTimer::timeout, this, &MeasurementsDialog::measure);
    for (QTableView *view : findChildren<QTableView *>())
        prepareTable(view);
    for (const QCheckBox *box : findChildren<QCheckBox *>())
        connect(box, &QCheckBox::toggled, this, &MeasurementsDialog::measure);
    for (const ElidingComboBox *box : findChildren<ElidingComboBox *>())
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MeasurementsDialog::measure);
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &MeasurementsDialog::measure);
    addShortcut(
        QKeySequence::keyBindings(QKeySequence::Copy), [this] { ui->pushButton_copy->click(); });
    // Wherever the focus is, not in the pages alone.
    const auto turnPage = [this](int pages) {
        const int count = ui->tabWidget->count();
        ui->tabWidget->setCurrentIndex((ui->tabWidget->currentIndex() + pages + count) % count);
    };
    addShortcut(QKeySequence::keyBindings(QKeySequence::NextChild), [=] { turnPage(1); });
    // The toolkit's own keys name the letter that Shift makes of Tab, which windowing systems leave
    // out where they are told of Shift.
    addShortcut(QKeySequence::keyBindings(QKeySequence::PreviousChild)
            << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
        [=] { turnPage(-1); });
}

MeasurementsDialog::~MeasurementsDialog() = default;

void MeasurementsDialog::addShortcut(
    const QList<QKeySequence> &keys, const std::function<void()> &command)
{
    auto *action = new QAction(this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, command);
    addAction(action);
}

void MeasurementsDialog::prepareTable(QTableView *view)
{
    auto *model = new TextTableModel(view);
    view->setModel(model);
    for (const QHeaderView *header : {view->horizontalHeader(), view->verticalHeader()})
        connect(model, &TextTableModel::namesChanged, header->viewport(),
            QOverload<>::of(&QWidget::update));
    view->verticalHeader()->setTextElideMode(Qt::ElideMiddle);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setHighlightSections(false);
}

void MeasurementsDialog::setMainWindow(QObject *object)
{
    m_hostObject = object;
    m_host = qobject_cast<PlotHost *>(object);
}

void MeasurementsDialog::setPlotter(Plotter *source)
{
    setSource(source, std::nullopt, m_host && source ? m_host->referenceIndex() - 1 : -1);
}

const Plotter *MeasurementsDialog::plotter() const
{
    return m_plotter;
}

void MeasurementsDialog::showForPlotter(Plotter *source)
{
    setPlotter(source);
    bringForward();
}

void MeasurementsDialog::showForChannels(
    Plotter *cursors, const QList<int> &channels, int reference)
{
    setSource(cursors, channels, reference);
    bringForward();
}

// No larger than its screen.
void MeasurementsDialog::bringForward()
{
    if (!isVisible())
        resize(size().boundedTo(screen()->availableSize() * 9 / 10));
    show();
    raise();
    activateWindow();
}

// Of the analog ones, behind the entry of none.
QStringList MeasurementsDialog::channelNames() const
{
    QStringList names{QStringLiteral("-")};
    const CFGProperties *recording = m_host && m_plotter ? m_host->recording() : nullptr;
    if (recording) {
        for (const AnalogChannel *channel : recording->analogChannels)
            names.append(trimmedName(channel->id));
    }
    return names;
}

void MeasurementsDialog::showNames()
{
    const QStringList names = channelNames();
    for (ElidingComboBox *box : {ui->comboBox_reference, ui->comboBox_phase1, ui->comboBox_phase2,
             ui->comboBox_phase3, ui->comboBox_channel})
        box->setTexts(names, box->currentIndex());
    refresh();
}

void MeasurementsDialog::setSource(
    Plotter *source, const std::optional<QList<int>> &channels, int reference)
{
    m_plotter = source;
    m_ownChannels = channels;
    m_traces.clear();

    const QStringList names = channelNames();
    QList<int> firsts; // of the analog channels
    if (channels)
        firsts = *channels;
    else if (source && !qobject_cast<plotterDg *>(source))
        firsts = source->channels();
    const int count = names.size() - 1;
    const auto entry = [&](int place) {
        return place < firsts.size() && count > 0 ? firsts.at(place) % count + 1 : 0;
    };
    ui->comboBox_reference->setTexts(names, reference + 1);
    ui->comboBox_phase1->setTexts(names, entry(0));
    ui->comboBox_phase2->setTexts(names, entry(1));
    ui->comboBox_phase3->setTexts(names, entry(2));
    ui->comboBox_channel->setTexts(names, entry(0));
    refresh();
}

void MeasurementsDialog::refresh()
{
    if (isVisible() && !m_timer->isActive())
        m_timer->start(0);
}

QList<Quantity> MeasurementsDialog::quantities() const
{
    QList<Quantity> wanted{Quantity::Value};
    const QVector<QPair<const QCheckBox *, Quantity>> choices{
        {ui->checkBox_fundamental, Quantity::FundamentalRms}, {ui->checkBox_angle, Quantity::Angle},
        {ui->checkBox_trueRms, Quantity::TrueRms}, {ui->checkBox_peak, Quantity::Peak}};
    for (const auto &[box, quantity] : choices) {
        if (box->isChecked())
            wanted.append(quantity);
    }
    return wanted;
}

Measured MeasurementsDialog::measured(const AnalogSource &source) const
{
    Measured measured;
    const CFGProperties *recording = m_host ? m_host->recording() : nullptr;
    if (!recording || !m_plotter)
        return measured;
    measured.samplesPerCycle = recording->samplesPerCycle;
    measured.lineFrequency = recording->lineFrequency;
    const MeasuredChannel reference = chosenChannel(source, *ui->comboBox_reference);
    measured.reference = reference.analog;
    measured.referenceFactor = reference.factor;
    const QList<double> times = m_plotter->cursors();
    for (int i = 0; i < times.size(); ++i) {
        measured.cursors.append({QStringLiteral("P%1").arg(i + 1), times.at(i),
            m_plotter->sampleTimes().sampleAt(source.sampleRate(), times.at(i))});
    }
    return measured;
}

MeasuredChannel MeasurementsDialog::analogChannel(const AnalogSource &source, int number) const
{
    MeasuredChannel measured;
    measured.analog = source.channel(number);
    if (!measured.analog)
        return measured;
    measured.isSpectrum = source.isSpectrum(number);
    measured.name = source.nameOf(number, trimmedName(measured.analog->id));
    measured.factor = source.factor(number);
    const QString unit = m_host->recording()->analogUnits.value(number % source.firstSpectrum());
    measured.unit = shownUnit(trimmedName(unit), *measured.analog, m_host->valueMode());
    return measured;
}

// Nothing at the first entry.
MeasuredChannel MeasurementsDialog::chosenChannel(
    const AnalogSource &source, const ElidingComboBox &box) const
{
    return box.currentIndex() > 0 ? analogChannel(source, box.currentIndex() - 1)
                                  : MeasuredChannel();
}

QVector<MeasuredChannel> MeasurementsDialog::channels(const AnalogSource &source)
{
    QVector<MeasuredChannel> channels;
    const CFGProperties *recording = m_host ? m_host->recording() : nullptr;
    if (!recording || !m_plotter)
        return channels;
    const bool isDigital = !m_ownChannels && qobject_cast<plotterDg *>(m_plotter.data());
    const QList<int> numbers = m_ownChannels ? *m_ownChannels : m_plotter->channels();
    for (const int number : numbers) {
        MeasuredChannel channel;
        if (isDigital) {
            channel.digital = recording->digitalChannels.value(number);
            if (channel.digital)
                channel.name = trimmedName(channel.digital->id);
        } else {
            channel = analogChannel(source, number);
        }
        if (channel.analog || channel.digital)
            channels.append(channel);
        if (channel.analog && currentView() == ui->tableView_differences) {
            if (!m_traces.contains(number))
                m_traces.insert(number, TraceSummary(channel.values()));
            channels.last().trace = m_traces.value(number);
        }
    }
    return channels;
}

void MeasurementsDialog::measure()
{
    m_timer->stop();
    tellTitle();
    const AnalogSource source(m_host);
    const Measured now = measured(source);
    QList<double> times;
    for (const MeasuredCursor &cursor : now.cursors)
        times.append(cursor.time);
    followCursors(times);
    QTableView *view = currentView();
    const bool hasQuantities = view == ui->tableView_cursors || view == ui->tableView_differences;
    for (QCheckBox *box : findChildren<QCheckBox *>())
        box->setEnabled(hasQuantities);
    if (view == ui->tableView_cursors) {
        fill(view, cursorTable(now, channels(source), quantities()));
    } else if (view == ui->tableView_differences) {
        fill(view,
            differenceTable(now, channels(source), quantities(), ui->comboBox_from->currentIndex(),
                ui->comboBox_to->currentIndex()));
    } else if (view == ui->tableView_sequences) {
        fill(view,
            sequenceTable(now,
                {chosenChannel(source, *ui->comboBox_phase1),
                    chosenChannel(source, *ui->comboBox_phase2),
                    chosenChannel(source, *ui->comboBox_phase3)}));
    } else {
        const MeasuredChannel channel = chosenChannel(source, *ui->comboBox_channel);
        const MeasuredCursor cursor = now.cursors.value(ui->comboBox_cursor->currentIndex());
        const Harmonics harmonics = measuredHarmonics(now, channel, cursor);
        fill(view, harmonicTable(harmonics, channel, cursor));
        ui->bars->setHarmonics(harmonics,
            now.cursors.isEmpty() ? tr("There is no cursor.")
                                  : tr("No whole cycle of this channel lies around the cursor."));
    }
}

// Offers the cursors that exist. Those chosen stay chosen while others go; in place of one that is
// gone comes another than the other end of the differences, if there is one. At first the
// differences are those of the first two.
void MeasurementsDialog::followCursors(const QList<double> &times)
{
    const QList<double> before = std::exchange(m_cursorTimes, times);
    if (before.size() == times.size())
        return; // moved at most
    QStringList names;
    for (int i = 1; i <= times.size(); ++i)
        names.append(QStringLiteral("P%1").arg(i));
    const int last = times.size() - 1;
    // -1 for one that is gone. Cursors only move up as others go.
    const auto placeNow = [&](const ElidingComboBox *box, int atFirst) {
        const int chosen = box->currentIndex();
        return chosen < 0 || before.size() <= atFirst
            ? std::min(atFirst, last)
            : times.lastIndexOf(before.at(chosen), chosen);
    };
    const auto instead = [&](const ElidingComboBox *box, int otherEnd) {
        const int place = std::min(box->currentIndex(), last);
        if (place != otherEnd)
            return place;
        return place > 0 ? place - 1 : std::min(1, last);
    };
    int from = placeNow(ui->comboBox_from, 0);
    int to = placeNow(ui->comboBox_to, 1);
    if (from < 0)
        from = instead(ui->comboBox_from, to);
    if (to < 0)
        to = instead(ui->comboBox_to, from);
    const int cursor = placeNow(ui->comboBox_cursor, 0);
    ui->comboBox_from->setTexts(names, from);
    ui->comboBox_to->setTexts(names, to);
    ui->comboBox_cursor->setTexts(names, cursor < 0 ? instead(ui->comboBox_cursor, -1) : cursor);
}

void MeasurementsDialog::tellTitle()
{
    setWindowTitle(m_plotter && !m_ownChannels ? tr("Measurements: %1").arg(m_plotter->name())
                                               : tr("Measurements"));
}

QTableView *MeasurementsDialog::currentView() const
{
    return ui->tabWidget->currentWidget()->findChild<QTableView *>();
}

TextTableModel *MeasurementsDialog::modelOf(QTableView *view) const
{
    return static_cast<TextTableModel *>(view->model());
}

// Columns have room for their headings, with times of three digits more, and for the longest
// numbers. Their widths change with the table's size alone, not while a cursor is dragged.
void MeasurementsDialog::fill(QTableView *view, const TextTable &table)
{
    TextTableModel *model = modelOf(view);
    const QSize before(model->columnCount(), model->rowCount());
    const QStringList headings = model->table().headings;
    const QStringList names = rowNames(*model);
    model->setTable(table);
    if (rowNames(*model) != names) // lays out anew, which a drag need not wait for
        emit model->headerDataChanged(Qt::Vertical, 0, model->rowCount() - 1);
    if (before == QSize(model->columnCount(), model->rowCount())
        && headings.mid(0, table.names) == table.headings.mid(0, table.names))
        return;
    const QFontMetrics metrics(view->horizontalHeader()->font());
    const int padding = 2 * metrics.horizontalAdvance(QLatin1Char('0'));
    const int digits = metrics.horizontalAdvance(QStringLiteral("000"));
    const int number = metrics.horizontalAdvance(QStringLiteral("-1.23457e+07"));
    for (int column = 0; column < model->columnCount(); ++column) {
        const QString heading = table.headings.at(table.names + column);
        view->setColumnWidth(
            column, std::max(number, metrics.horizontalAdvance(heading) + digits) + padding);
    }
    view->verticalHeader()->setDefaultSectionSize(metrics.height() + 6);
}

void MeasurementsDialog::on_pushButton_copy_clicked()
{
    measure();
    QGuiApplication::clipboard()->setText(modelOf(currentView())->table().tabSeparated());
}

void MeasurementsDialog::on_pushButton_save_clicked()
{
    const auto *host = qobject_cast<DialogHost *>(m_hostObject);
    const QString folder = host ? host->recordingsFolder() : QString();
    const QString name = QStringLiteral("measurements.csv");
    const QString path = QFileDialog::getSaveFileName(this, tr("Save as CSV"),
        folder.isEmpty() ? name : folder + QLatin1Char('/') + name, tr("CSV Files (*.csv)"));
    if (!path.isEmpty())
        saveTable(path);
}

void MeasurementsDialog::saveTable(const QString &path)
{
    measure();
    const QByteArray contents = modelOf(currentView())->table().commaSeparated();
    const WriteOutcome outcome = isPipeOrDevice(path)
        ? WriteOutcome{path, tr("It is a pipe or a device")}
        : replaceFile(path, contents);
    emit saved(outcome.failedFile, outcome.error);
}

void MeasurementsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        refresh();
    }
    QDialog::changeEvent(event);
}

// Long names leave most of a table to its cells.
void MeasurementsDialog::resizeEvent(QResizeEvent *event)
{
    for (const QTableView *view : findChildren<QTableView *>())
        view->verticalHeader()->setMaximumWidth(width() * 2 / 5);
    QDialog::resizeEvent(event);
}

void MeasurementsDialog::showEvent(QShowEvent *event)
{
    measure();
    QDialog::showEvent(event);
}
