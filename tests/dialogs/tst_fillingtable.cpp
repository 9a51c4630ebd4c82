// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fillingtable.h"

#include <QDialog>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

class TestFillingTable : public QObject {
    Q_OBJECT

private slots:
    void init();
    void widensItsWindow_data();
    void widensItsWindow();
    void staysWithinTheScreen();
    void widensItsWindowOnce();
    void takesTheRoomThatIsLeft();

private:
    // Of three columns, the second of which fills the table.
    void show(const QString &before, const QString &filling);
    bool scrolls() const { return table->horizontalScrollBar()->maximum() > 0; }
    int widthOf(int column) const { return table->horizontalHeader()->sectionSize(column); }
    QFontMetrics metrics() const { return table->fontMetrics(); }

    std::unique_ptr<QDialog> dialog;
    FillingTable *table = nullptr; // the dialog's
};

void TestFillingTable::init()
{
    dialog = std::make_unique<QDialog>();
    auto *layout = new QVBoxLayout(dialog.get());
    table = new FillingTable(dialog.get());
    table->verticalHeader()->hide();
    layout->addWidget(table);
    dialog->resize(200, 300);
}

void TestFillingTable::show(const QString &before, const QString &filling)
{
    auto *model = new QStandardItemModel(table);
    model->setHorizontalHeaderLabels(
        {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    model->appendRow({new QStandardItem(before), new QStandardItem(filling), new QStandardItem});
    table->setModel(model);
    table->setFillingColumn(1);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    QTRY_VERIFY(widthOf(0) >= metrics().horizontalAdvance(before));
}

void TestFillingTable::widensItsWindow_data()
{
    QTest::addColumn<int>("points"); // of the font
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("least"); // has room
    QTest::addColumn<QString>("most"); // has not
    const QString name = QStringLiteral("Breaker Q1 closed");
    for (const int points : {10, 12, 14}) {
        const QString n(20, QLatin1Char('n'));
        QTest::addRow("a name at %d points", points) << points << name << name << name + name;
        QTest::addRow("no text at %d points", points)
            << points << QString() << QString(12, QLatin1Char('n')) << n;
        QTest::addRow("a very long text at %d points", points)
            << points << QString(300, QLatin1Char('n')) << n + n.mid(10) << n + n + n + n + n;
    }
}

void TestFillingTable::widensItsWindow()
{
    QFETCH(int, points);
    QFETCH(QString, text);
    QFETCH(QString, least);
    QFETCH(QString, most);
    QFont font = dialog->font();
    font.setPointSize(points);
    dialog->setFont(font);
    show(QStringLiteral("10:00:00.123456"), text);
    QVERIFY(dialog->width() > 200);
    QCOMPARE(dialog->height(), 300);
    QTRY_VERIFY(!scrolls());
    QVERIFY(widthOf(1) >= metrics().horizontalAdvance(least));
    QVERIFY(widthOf(1) < metrics().horizontalAdvance(most));
}

void TestFillingTable::staysWithinTheScreen()
{
    show(QString(300, QLatin1Char('n')), QStringLiteral("Breaker"));
    QVERIFY(dialog->width() <= dialog->screen()->availableSize().width() * 9 / 10);
    QTRY_VERIFY(scrolls());
    QVERIFY(widthOf(1) >= metrics().horizontalAdvance(QStringLiteral("Breaker")));
}

void TestFillingTable::widensItsWindowOnce()
{
    show(QStringLiteral("10:00:00.123456"), QStringLiteral("Breaker"));
    for (const int width : {220, 180}) {
        dialog->resize(width, 300);
        dialog->hide();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QCOMPARE(dialog->width(), width);
    }
}

void TestFillingTable::takesTheRoomThatIsLeft()
{
    show(QStringLiteral("10:00:00.123456"), QStringLiteral("Breaker"));
    for (int time = 0; time < 2; ++time) {
        dialog->resize(600, 300);
        QTRY_VERIFY(!scrolls());
        QCOMPARE(table->horizontalHeader()->length(), table->viewport()->width());
        const int wide = widthOf(1);
        dialog->resize(650, 300);
        QTRY_COMPARE(widthOf(1), wide + 50);

        dialog->resize(160, 300);
        QTRY_VERIFY(scrolls());
        QVERIFY(widthOf(1) >= metrics().horizontalAdvance(QString(12, QLatin1Char('n'))));
    }
    // The others come first.
    dialog->resize(600, 300);
    table->model()->setData(table->model()->index(0, 2), QStringLiteral("more than before"));
    QTRY_VERIFY(widthOf(2) >= metrics().horizontalAdvance(QStringLiteral("more than before")));
    QTRY_COMPARE(table->horizontalHeader()->length(), table->viewport()->width());
}

QTEST_MAIN(TestFillingTable)
#include "tst_fillingtable.moc"
