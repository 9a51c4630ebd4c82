// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "texttable.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

// Cells are told apart by bars.
QStringList cells(const char *row)
{
    return QString::fromUtf8(row).split(QLatin1Char('|'));
}

// Two columns that name the row, two of cells.
TextTable tableOf(const QList<const char *> &rows)
{
    TextTable table;
    table.headings = cells("Channel|Unit|P1|P2");
    table.names = 2;
    for (const char *row : rows)
        table.rows.append(cells(row));
    return table;
}

} // namespace

class TestTextTable : public QObject {
    Q_OBJECT

private slots:
    void columnsAreSeparated_data();
    void columnsAreSeparated();
    void aModelShowsCellsAndNames();
    void aModelWithoutATableIsEmpty();
    void aTableOfTheSameSizeIsNoNewModel();
};

void TestTextTable::columnsAreSeparated_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("tabs");
    QTest::addColumn<QByteArray>("commas");
    const auto row = [](const char *name, const char *text, const char *tabs, const char *commas) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(tabs) << QByteArray(commas);
    };
    row("plain", "IL1|A|1.5|-2", "IL1\tA\t1.5\t-2", "IL1,A,1.5,-2");
    row("nothing known", "IL1|A||", "IL1\tA\t\t", "IL1,A,,");
    row("a tab", "I\tL1|A|1|2", "I L1\tA\t1\t2", "I\tL1,A,1,2");
    row("a line end", "I\nL1|A|1|2", "I L1\tA\t1\t2", "\"I\nL1\",A,1,2");
    row("a comma", "I, L1|A|1|2", "I, L1\tA\t1\t2", "\"I, L1\",A,1,2");
    row("quotes", "\"I\" 1|A|1|2", "\"I\" 1\tA\t1\t2", "\"\"\"I\"\" 1\",A,1,2");
    row("letters beyond ASCII", "vaihe ä|°|1|2", "vaihe ä\t°\t1\t2", "vaihe ä,°,1,2");
}

void TestTextTable::columnsAreSeparated()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, tabs);
    QFETCH(QByteArray, commas);
    const TextTable table = tableOf({row.constData(), row.constData()});
    QCOMPARE(table.tabSeparated().toUtf8(), "Channel\tUnit\tP1\tP2\n" + tabs + '\n' + tabs + '\n');
    QCOMPARE(table.commaSeparated(),
        "\xEF\xBB\xBF"
        "Channel,Unit,P1,P2\r\n"
            + commas + "\r\n" + commas + "\r\n");
}

void TestTextTable::aModelShowsCellsAndNames()
{
    TextTableModel model;
    model.setTable(tableOf({"IL1|A|1|2", "<b>IL2||3|4"}));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
    QCOMPARE(model.data(model.index(0, 1)).toString(), QStringLiteral("2"));
    QCOMPARE(model.data(model.index(1, 0)).toString(), QStringLiteral("3"));
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("P2"));
    QCOMPARE(model.headerData(0, Qt::Vertical).toString(), QStringLiteral("IL1, A"));
    QCOMPARE(model.headerData(1, Qt::Vertical).toString(), QStringLiteral("<b>IL2"));
    QCOMPARE(model.headerData(1, Qt::Vertical, Qt::ToolTipRole).toString(),
        QStringLiteral("&lt;b&gt;IL2"));
}

void TestTextTable::aModelWithoutATableIsEmpty()
{
    TextTableModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
    model.setTable(TextTable());
    QCOMPARE(model.columnCount(), 0);
}

void TestTextTable::aTableOfTheSameSizeIsNoNewModel()
{
    TextTableModel model;
    model.setTable(tableOf({"IL1|A|1|2"}));
    const QSignalSpy resets(&model, &TextTableModel::modelReset);
    const QSignalSpy changes(&model, &TextTableModel::dataChanged);
    const QSignalSpy names(&model, &TextTableModel::namesChanged);
    model.setTable(tableOf({"IL1|A|1|2"}));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(names.count(), 0);
    model.setTable(tableOf({"IL2|A|1|6"}));
    QCOMPARE(resets.count(), 0);
    QCOMPARE(changes.count(), 1); // only what differs
    QCOMPARE(changes.at(0).at(0).toModelIndex(), model.index(0, 1));
    QCOMPARE(changes.at(0).at(1).toModelIndex(), model.index(0, 1));
    QCOMPARE(names.count(), 1);
    QCOMPARE(model.data(model.index(0, 1)).toString(), QStringLiteral("6"));
    TextTable renamed = tableOf({"IL2|A|1|6"});
    renamed.headings.last() = QStringLiteral("P2 (7 ms)");
    model.setTable(renamed);
    QCOMPARE(names.count(), 2);
    model.setTable(tableOf({"IL2|A|5|6", "IL3|A|5|6"}));
    QCOMPARE(resets.count(), 1);
    QCOMPARE(changes.count(), 1);
}

QTEST_MAIN(TestTextTable)
#include "tst_texttable.moc"
