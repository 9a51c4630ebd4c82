// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "eventsdialog.h"
#include "pseudotranslator.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOption>
#include <QTableView>
#include <QToolButton>
#include <QtTest>

#include <memory>

namespace {

QVector<double> chosen(const QSignalSpy &times)
{
    QVector<double> chosen;
    for (const QVariantList &arguments : times)
        chosen.append(arguments.constFirst().toDouble());
    return chosen;
}

} // namespace

class TestEventsDialog : public QObject {
    Q_OBJECT

private slots:
    void init();
    void standsBesideTheWindow();
    void choosesNothingByItself();
    void showsATimeByAClick();
    void showsATimeAgain();
    void showsTimesByTheArrowKeys();
    void goesToTheFirstAndTheLastRow();
    void reachesRowsThatAreNotMadeYet();
    void setsACursorByADoubleClick();
    void setsACursorByReturn();
    void filtersByText();
    void filtersByChannel();
    void beginsAnewWithARecording();
    void offersToClearATextAlone();
    void copiesAllRows();
    void copiesSelectedRowsInOrder();
    void tellsWholeNames();
    void retranslatesOnALanguageChange();
    void hasRoomForAllChannelsInEveryLanguage_data();
    void hasRoomForAllChannelsInEveryLanguage();
    void hasNamesForEveryControl();

private:
    QPoint placeOf(int row) const;
    void click(int row) { QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, placeOf(row)); }
    QString names() const; // of the rows' channels, with bars between them

    DigitalChannel trip;
    DigitalChannel start;
    std::unique_ptr<CFGProperties> recording;
    std::unique_ptr<EventsDialog> dialog;
    QTableView *view = nullptr;
};

// Rows: Start L1 at 1, the trigger at 2, Trip at 3, Trip and Start L1 at 4 ms.
void TestEventsDialog::init()
{
    trip = DigitalChannel();
    trip.id = QStringLiteral("Trip");
    start = DigitalChannel();
    start.id = QStringLiteral("Start L1");
    const QVector<int> tripStates{0, 0, 0, 1, 0};
    const QVector<int> startStates{0, 1, 1, 1, 0};
    trip.appendValues(tripStates.constData(), tripStates.size());
    start.appendValues(startStates.constData(), startStates.size());
    recording = std::make_unique<CFGProperties>();
    recording->sampleTimes = {0, 1, 2, 3, 4};
    recording->startTime = QStringLiteral("10:00:00.000");
    recording->triggerOffsetMs = 2;
    recording->digitalChannels = {&trip, &start};

    QGuiApplication::clipboard()->clear();
    dialog = std::make_unique<EventsDialog>();
    dialog->setRecording(recording.get());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    view = dialog->findChild<QTableView *>(QStringLiteral("tableView"));
}

QPoint TestEventsDialog::placeOf(int row) const
{
    return view->visualRect(view->model()->index(row, 0)).center();
}

QString TestEventsDialog::names() const
{
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        names.append(view->model()->index(row, 4).data().toString());
    return names.join(QLatin1Char('|'));
}

void TestEventsDialog::standsBesideTheWindow()
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Events"));
    QVERIFY(!dialog->isModal());
    QTest::keyClick(view, Qt::Key_Escape);
    QVERIFY(dialog->isHidden());
}

void TestEventsDialog::choosesNothingByItself()
{
    const QSignalSpy times(dialog.get(), &EventsDialog::timeChosen);
    view->setFocus();
    dialog->hide();
    dialog->show();
    dialog->setRecording(recording.get());
    QCOMPARE(times.count(), 0);
}

void TestEventsDialog::showsATimeByAClick()
{
    QSignalSpy times(dialog.get(), &EventsDialog::timeChosen);
    const QSignalSpy cursors(dialog.get(), &EventsDialog::cursorWanted);
    click(2);
    QVERIFY(!times.isEmpty());
    QCOMPARE(times.constLast(), QVariantList{3.0});
    click(0);
    QCOMPARE(times.constLast(), QVariantList{1.0});
    QCOMPARE(cursors.count(), 0);
}

void TestEventsDialog::showsATimeAgain()
{
    click(2);
    QSignalSpy times(dialog.get(), &EventsDialog::timeChosen);
    click(2);
    QCOMPARE(times.count(), 1);
    QCOMPARE(times.constFirst(), QVariantList{3.0});
}

void TestEventsDialog::showsTimesByTheArrowKeys()
{
    click(0);
    QSignalSpy times(dialog.get(), &EventsDialog::timeChosen);
    QTest::keyClick(view, Qt::Key_Down);
    QCOMPARE(times.count(), 1);
    QCOMPARE(times.constLast(), QVariantList{2.0});
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(times.constLast(), QVariantList{2.0});
}

void TestEventsDialog::goesToTheFirstAndTheLastRow()
{
    click(2);
    QSignalSpy times(dialog.get(), &EventsDialog::timeChosen);
    for (const auto modifier : {Qt::NoModifier, Qt::KeypadModifier}) {
        times.clear();
        QTest::keyClick(view, Qt::Key_End, modifier);
        QCOMPARE(chosen(times), QVector<double>{4});
        QTest::keyClick(view, Qt::Key_Home, modifier);
        QCOMPARE(chosen(times), (QVector<double>{4, 1}));
    }
    QTest::keyClick(view, Qt::Key_Down); // on from there
    QCOMPARE(chosen(times), (QVector<double>{4, 1, 2}));
    dialog->setRecording(nullptr); // no row at all
    QTest::keyClick(view, Qt::Key_Home);
    QTest::keyClick(view, Qt::Key_End);
    QCOMPARE(times.count(), 3);
}

// 10,000 rows stand at first; the last one is the trigger.
void TestEventsDialog::reachesRowsThatAreNotMadeYet()
{
    QVector<int> states(30'001);
    recording->sampleTimes.resize(states.size());
    for (int i = 0; i < states.size(); ++i) {
        states[i] = i % 2;
        recording->sampleTimes[i] = i;
    }
    recording->triggerOffsetMs = 90'000;
    trip = DigitalChannel();
    trip.appendValues(states.constData(), states.size());
    recording->digitalChannels = {&trip};
    dialog->setRecording(recording.get());
    click(0);
    QSignalSpy times(dialog.get(), &EventsDialog::timeChosen);
    QTest::keyClick(view, Qt::Key_End);
    QCOMPARE(chosen(times), QVector<double>{90'000});

    dialog->setRecording(recording.get());
    view->setFocus();
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().count(QLatin1Char('\n')), 30'002);
}

void TestEventsDialog::setsACursorByADoubleClick()
{
    QSignalSpy cursors(dialog.get(), &EventsDialog::cursorWanted);
    click(3);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, placeOf(3));
    QCOMPARE(cursors.count(), 1);
    QCOMPARE(cursors.constFirst(), QVariantList{4.0});
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, {5, view->viewport()->height() - 5});
    QCOMPARE(cursors.count(), 1);
}

void TestEventsDialog::setsACursorByReturn()
{
    QSignalSpy cursors(dialog.get(), &EventsDialog::cursorWanted);
    click(1);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(cursors.count(), 1);
    QCOMPARE(cursors.constFirst(), QVariantList{2.0});
    QVERIFY(dialog->isVisible());
}

void TestEventsDialog::filtersByText()
{
    auto *filter = dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_filter"));
    QTest::keyClicks(filter, QStringLiteral("trip"));
    QCOMPARE(names(), QStringLiteral("Trigger|Trip|Trip"));
    QTest::keyClick(filter, Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    filter->selectAll();
    QTest::keyClick(filter, Qt::Key_Delete);
    QCOMPARE(names(), QStringLiteral("Start L1|Trigger|Trip|Trip|Start L1"));
}

void TestEventsDialog::filtersByChannel()
{
    auto *channels = dialog->findChild<QComboBox *>(QStringLiteral("comboBox_channel"));
    QCOMPARE(channels->itemText(0), QStringLiteral("All Channels"));
    QCOMPARE(channels->itemText(2), QStringLiteral("Start L1"));
    QTest::keyClick(channels, Qt::Key_Down);
    QTest::keyClick(channels, Qt::Key_Down);
    QCOMPARE(names(), QStringLiteral("Start L1|Trigger|Start L1"));
    QTest::keyClick(channels, Qt::Key_Home);
    QCOMPARE(view->model()->rowCount(), 5);
}

void TestEventsDialog::beginsAnewWithARecording()
{
    auto *filter = dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_filter"));
    auto *channels = dialog->findChild<QComboBox *>(QStringLiteral("comboBox_channel"));
    QTest::keyClicks(filter, QStringLiteral("trip"));
    QTest::keyClick(channels, Qt::Key_Down);
    dialog->setRecording(nullptr);
    QCOMPARE(names(), QString());
    QCOMPARE(channels->count(), 1);
    dialog->setRecording(recording.get());
    QCOMPARE(filter->text(), QString());
    QCOMPARE(channels->currentIndex(), 0);
    QCOMPARE(view->model()->rowCount(), 5);
}

// Its button is there for as long as there is a text.
void TestEventsDialog::offersToClearATextAlone()
{
    auto *filter = dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_filter"));
    const auto *button = filter->findChild<QToolButton *>();
    QTest::keyClicks(filter, QStringLiteral("trip"));
    QTRY_COMPARE(button->property("opacity").toReal(), 1.0);
    dialog->setRecording(recording.get());
    QTRY_COMPARE(button->property("opacity").toReal(), 0.0);
    QCOMPARE(names(), QStringLiteral("Start L1|Trigger|Trip|Trip|Start L1"));
}

void TestEventsDialog::copiesAllRows()
{
    click(0);
    QTest::mouseClick(
        dialog->findChild<QPushButton *>(QStringLiteral("pushButton_copy")), Qt::LeftButton);
    const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 7); // headers, five rows, the end
    QCOMPARE(lines.at(3), QStringLiteral("3.000\t10:00:00.003000\t1.000\t1.000\tTrip\t1"));
}

void TestEventsDialog::copiesSelectedRowsInOrder()
{
    click(3);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(0));
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(1), QStringLiteral("1.000\t10:00:00.001000\t-1.000\t\tStart L1\t1"));
    QVERIFY(lines.at(2).startsWith(QLatin1String("4.000\t")));
}

// Where there is no room for one, its ends are shown, and the tool tip has all of it.
void TestEventsDialog::tellsWholeNames()
{
    QCOMPARE(view->textElideMode(), Qt::ElideMiddle);
    trip.id = QStringLiteral(" <b>Trip</b> ");
    dialog->setRecording(recording.get());
    const auto tip = [this](int row, int column) {
        return view->model()->index(row, column).data(Qt::ToolTipRole).toString();
    };
    QCOMPARE(tip(2, 4), QStringLiteral("&lt;b&gt;Trip&lt;/b&gt;"));
    QCOMPARE(tip(2, 0), QString()); // there, that of the table
}

void TestEventsDialog::retranslatesOnALanguageChange()
{
    auto *channels = dialog->findChild<QComboBox *>(QStringLiteral("comboBox_channel"));
    QTest::keyClick(channels, Qt::Key_Down);
    const QString english = view->model()->headerData(0, Qt::Horizontal).toString();
    PseudoTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(dialog->windowTitle() != QLatin1String("Events"));
    QVERIFY(channels->itemText(0) != QLatin1String("All Channels"));
    QVERIFY(view->model()->headerData(0, Qt::Horizontal).toString() != english);
    QVERIFY(!names().split(QLatin1Char('|')).contains(QStringLiteral("Trigger")));
    QCOMPARE(channels->currentIndex(), 1);
    QCoreApplication::removeTranslator(&translator);
}

void TestEventsDialog::hasRoomForAllChannelsInEveryLanguage_data()
{
    QTest::addColumn<QString>("entry");
    QTest::newRow("English") << QStringLiteral("All Channels");
    QTest::newRow("Finnish") << QStringLiteral("Kaikki kanavat");
    QTest::newRow("Chinese") << QStringLiteral("所有通道");
}

// The language may change after the window was first shown.
void TestEventsDialog::hasRoomForAllChannelsInEveryLanguage()
{
    QFETCH(QString, entry);
    const auto *channels = dialog->findChild<QComboBox *>(QStringLiteral("comboBox_channel"));
    QStyleOptionComboBox option;
    option.initFrom(channels);
    const QRect field = channels->style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, channels);
    QVERIFY(field.width() > channels->fontMetrics().horizontalAdvance(entry));
}

void TestEventsDialog::hasNamesForEveryControl()
{
    QCOMPARE(view->accessibleName(), QStringLiteral("Events"));
    for (const char *name : {"label_filter", "label_channel"})
        QVERIFY2(dialog->findChild<QLabel *>(QLatin1String(name))->buddy(), name);
}

QTEST_MAIN(TestEventsDialog)
#include "tst_eventsdialog.moc"
