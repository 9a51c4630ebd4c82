// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "eventtable.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <memory>
#include <vector>

class TestEventTable : public QObject {
    Q_OBJECT

private slots:
    void init();
    void listsChangesInOrder();
    void listsTheTriggerAlone();
    void holdsNothingWithoutARecording();
    void placesTheTrigger_data();
    void placesTheTrigger();
    void filters_data();
    void filters();
    void keepsTheOrderOfSamplesWhereTimesStepBack();
    void survivesTimesThatAreNoNumbers();
    void leavesTheClockEmptyWithoutAStart();
    void makesManyRowsInPortions();
    void copiesRows_data();
    void copiesRows();
    void forgetsARecordingThatIsGone();
    void asksNobodyToReadRowsThatGo();

private:
    void add(const char *name, const QVector<int> &states);
    // Of a column, with bars between the rows.
    QString texts(EventTable::Column column) const;
    QString cell(int row, EventTable::Column column) const
    {
        return table->index(row, column).data().toString();
    }

    std::vector<std::unique_ptr<DigitalChannel>> channels;
    std::unique_ptr<CFGProperties> recording;
    std::unique_ptr<EventTable> table;
};

void TestEventTable::init()
{
    channels.clear();
    recording = std::make_unique<CFGProperties>();
    recording->sampleTimes = {0, 1, 2, 3, 4};
    recording->startTime = QStringLiteral("10:00:00.000");
    recording->triggerOffsetMs = 2;
    table = std::make_unique<EventTable>();
    new QAbstractItemModelTester(
        table.get(), QAbstractItemModelTester::FailureReportingMode::Fatal, table.get());
}

void TestEventTable::add(const char *name, const QVector<int> &states)
{
    channels.push_back(std::make_unique<DigitalChannel>());
    channels.back()->id = QString::fromLatin1(name);
    channels.back()->appendValues(states.constData(), states.size());
    recording->digitalChannels.append(channels.back().get());
}

QString TestEventTable::texts(EventTable::Column column) const
{
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        texts.append(cell(row, column));
    return texts.join(QLatin1Char('|'));
}

void TestEventTable::listsChangesInOrder()
{
    recording->sampleTimes = {0, 0.5, 2.25, 30, 40};
    recording->triggerOffsetMs = 20;
    add("Start", {0, 1, 1, 0, 0});
    add("Idle", {0, 0, 0, 0, 0});
    add("Always", {1, 1, 1, 1, 1});
    add("Trip", {0, 0, 7, 7, 0}); // any state but 0 counts as 1
    add("Breaker", {1, 1, 1, 0, 0});
    table->setRecording(recording.get());

    QCOMPARE(texts(EventTable::Time), QStringLiteral("0.500|2.250|20.000|30.000|30.000|40.000"));
    QCOMPARE(texts(EventTable::Clock),
        QStringLiteral("10:00:00.000500|10:00:00.002250|10:00:00.020000|10:00:00.030000|10:00:00."
                       "030000|10:00:00.040000"));
    QCOMPARE(texts(EventTable::FromTrigger),
        QStringLiteral("-19.500|-17.750|0.000|10.000|10.000|20.000"));
    QCOMPARE(texts(EventTable::FromBefore), QStringLiteral("|1.750|17.750|10.000|0.000|10.000"));
    QCOMPARE(texts(EventTable::Channel), QStringLiteral("Start|Trip|Trigger|Start|Breaker|Trip"));
    QCOMPARE(texts(EventTable::State), QStringLiteral("1|1||0|0|0"));
    QCOMPARE(table->timeOf(1), 2.25);
    QCOMPARE(table->changingChannels(), (QList<int>{0, 3, 4}));
}

void TestEventTable::listsTheTriggerAlone()
{
    add("Idle", {0, 0, 0, 0, 0});
    table->setRecording(recording.get());
    QCOMPARE(texts(EventTable::Channel), QStringLiteral("Trigger"));
    QCOMPARE(texts(EventTable::FromTrigger), QStringLiteral("0.000"));
}

void TestEventTable::holdsNothingWithoutARecording()
{
    QCOMPARE(table->rowCount(), 0);
    add("Trip", {0, 1, 1, 1, 1});
    table->setRecording(recording.get());
    QCOMPARE(table->rowCount(), 2);
    table->setRecording(nullptr);
    QCOMPARE(table->rowCount(), 0);
    QVERIFY(table->changingChannels().isEmpty());
}

void TestEventTable::placesTheTrigger_data()
{
    QTest::addColumn<int>("trigger");
    QTest::addColumn<QString>("order");
    QTest::newRow("before the recording") << -5 << QStringLiteral("Trigger|A|B");
    QTest::newRow("at a change, before it") << 1 << QStringLiteral("Trigger|A|B");
    QTest::newRow("between two") << 2 << QStringLiteral("A|Trigger|B");
    QTest::newRow("after the recording") << 99 << QStringLiteral("A|B|Trigger");
}

void TestEventTable::placesTheTrigger()
{
    QFETCH(int, trigger);
    recording->triggerOffsetMs = trigger;
    add("A", {0, 1, 1, 1, 1});
    add("B", {0, 0, 0, 1, 1});
    table->setRecording(recording.get());
    QTEST(texts(EventTable::Channel), "order");
}

void TestEventTable::filters_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("all") << -1 << "" << QStringLiteral("Trip L1|Trigger|Trip L2|Start L1");
    QTest::newRow("a text in any case")
        << -1 << "tRIP" << QStringLiteral("Trip L1|Trigger|Trip L2");
    QTest::newRow("a channel") << 2 << "" << QStringLiteral("Trigger|Start L1");
    QTest::newRow("a channel and a text of it") << 2 << "l1" << QStringLiteral("Trigger|Start L1");
    QTest::newRow("a channel and a text of another") << 2 << "L2" << QStringLiteral("Trigger");
    QTest::newRow("a text of none") << -1 << ".*" << QStringLiteral("Trigger");
}

void TestEventTable::filters()
{
    QFETCH(int, channel);
    QFETCH(QString, text);
    add("Trip L1", {0, 1, 1, 1, 1});
    add("Trip L2", {0, 0, 0, 1, 1});
    add("Start L1", {0, 0, 0, 0, 1});
    table->setRecording(recording.get());
    table->setFilter(channel, text);
    QTEST(texts(EventTable::Channel), "shown");
    table->setFilter(EventTable::allChannels, QString());
    QCOMPARE(table->rowCount(), 4);
    table->setFilter(channel, text);
    QTEST(texts(EventTable::Channel), "shown");
    table->setRecording(recording.get()); // as it begins
    QCOMPARE(table->rowCount(), 4);
}

void TestEventTable::keepsTheOrderOfSamplesWhereTimesStepBack()
{
    recording->sampleTimes = {0, 10, 5, 6, 7};
    recording->triggerOffsetMs = 8;
    add("A", {0, 1, 1, 1, 1});
    add("B", {0, 0, 1, 1, 1});
    table->setRecording(recording.get());
    QCOMPARE(texts(EventTable::Channel), QStringLiteral("Trigger|A|B"));
    QCOMPARE(texts(EventTable::FromBefore), QStringLiteral("|2.000|-5.000"));
}

void TestEventTable::survivesTimesThatAreNoNumbers()
{
    recording->sampleTimes = {0, std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::infinity(), 1e300, 4};
    add("A", {0, 1, 0, 1, 0});
    table->setRecording(recording.get());
    QCOMPARE(texts(EventTable::Time), QStringLiteral("|2.000||1e+300|4.000"));
    QCOMPARE(texts(EventTable::Clock), QStringLiteral("|10:00:00.002000|||10:00:00.004000"));
}

void TestEventTable::leavesTheClockEmptyWithoutAStart()
{
    recording->startTime = QStringLiteral("noon");
    table->setRecording(recording.get());
    QCOMPARE(cell(0, EventTable::Clock), QString());
    QCOMPARE(cell(0, EventTable::Time), QStringLiteral("2.000"));
}

void TestEventTable::makesManyRowsInPortions()
{
    constexpr int samples = 25'001;
    QVector<int> states(samples);
    recording->sampleTimes.resize(samples);
    for (int i = 0; i < samples; ++i) {
        states[i] = i % 2;
        recording->sampleTimes[i] = i;
    }
    recording->triggerOffsetMs = 90'000;
    add("A", states);
    table = std::make_unique<EventTable>(); // without the tester, which asks for more by itself
    table->setRecording(recording.get());
    QCOMPARE(table->rowCount(), 10'000);
    QVERIFY(table->canFetchMore({}));
    QVERIFY(!table->canFetchMore(table->index(0, 0)));
    table->fetchMore({});
    QCOMPARE(table->rowCount(), 20'000);
    table->fetchMore({});
    QCOMPARE(table->rowCount(), 25'001); // 25,000 changes and the trigger
    QVERIFY(!table->canFetchMore({}));
    QCOMPARE(cell(19'999, EventTable::Time), QStringLiteral("20000.000"));
    QCOMPARE(cell(25'000, EventTable::Channel), QStringLiteral("Trigger"));

    table->setFilter(EventTable::allChannels, QStringLiteral("a"));
    QCOMPARE(table->rowCount(), 10'000);
    const QSignalSpy insertions(table.get(), &EventTable::rowsInserted);
    QCOMPARE(table->asText({}).count(QLatin1Char('\n')), 25'002); // with the headers
    QCOMPARE(insertions.count(), 1); // a view takes note of each
    QCOMPARE(table->rowCount(), 25'001);
    table->fetchAll();
    QCOMPARE(insertions.count(), 1);
}

void TestEventTable::copiesRows_data()
{
    const QString headers = QStringLiteral(
        "Time (ms)\tClock Time\tFrom Trigger (ms)\tFrom Row Before (ms)\tChannel\tState\n");
    const QString first = QStringLiteral("1.000\t10:00:00.001000\t-1.000\t\tTrip L1\t1\n");
    const QString second = QStringLiteral("2.000\t10:00:00.002000\t0.000\t1.000\tTrigger\t\n");
    const QString third = QStringLiteral("3.000\t10:00:00.003000\t1.000\t1.000\tTrip L1\t0\n");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("text");
    QTest::newRow("all") << QList<int>() << headers + first + second + third;
    QTest::newRow("two of them") << QList<int>{0, 2} << headers + first + third;
}

void TestEventTable::copiesRows()
{
    QFETCH(QList<int>, rows);
    add("Trip\tL1", {0, 1, 1, 0, 0}); // a tab in a name would shift the columns
    table->setRecording(recording.get());
    QTEST(table->asText(rows), "text");
}

void TestEventTable::forgetsARecordingThatIsGone()
{
    add("Trip", {0, 1, 1, 0, 0});
    table->setRecording(recording.get());
    recording.reset();
    channels.clear();
    table->setFilter(0, QString());
    QCOMPARE(texts(EventTable::Channel), QStringLiteral("Trip|Trigger|Trip"));
}

// The names of their channels are gone before them.
void TestEventTable::asksNobodyToReadRowsThatGo()
{
    add("Trip", {0, 1, 1, 0, 0});
    const QSignalSpy changes(table.get(), &EventTable::dataChanged);
    for (const CFGProperties *each : {recording.get(), recording.get(),
             static_cast<CFGProperties *>(nullptr), recording.get()}) {
        table->setRecording(each);
        QCOMPARE(changes.count(), 0);
    }
    table->showNames();
    QCOMPARE(changes.count(), 1);
}

QTEST_GUILESS_MAIN(TestEventTable)
#include "tst_eventtable.moc"
