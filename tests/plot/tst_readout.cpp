// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotgeometry.h"
#include "readout.h"
#include "textsearch.h"

#include <QtTest>

#include <cmath>

namespace {

Readout table(const QVector<QStringList> &rows)
{
    Readout readout;
    for (const QStringList &row : rows)
        readout.rows.append(row.toVector());
    return readout;
}

// A header and rows "N1" to "N<count>" with a value each.
Readout tableOf(int count)
{
    Readout readout = table({{QStringLiteral("Name"), QStringLiteral("P1")}});
    for (int i = 1; i <= count; ++i)
        readout.rows.append({QStringLiteral("N%1").arg(i), QStringLiteral("V%1").arg(i)});
    return readout;
}

QImage draw(const Readout &readout, const PlotGeometry &geometry, const QFont &font)
{
    QImage image(geometry.widgetSize() + QSize(50, 50), QImage::Format_ARGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    readout.draw(painter, geometry, font);
    return image;
}

PlotGeometry geometryOf(const QSize &widget, int readoutWidth)
{
    return {widget, readoutWidth, {0, 1000, 10, -12, 12, 8}};
}

} // namespace

class TestReadout : public QObject {
    Q_OBJECT

private slots:
    void nothingIsNeededWithoutACursor();
    void aColumnNeedsItsWidestText();
    void cellsStandInTheMiddleOfTheirColumns();
    void columnsShareTheRoomWhenTooWide();
    void emptyCellsStayEmpty();
    void rowsMoveTogetherBeforeTheyAreLeftOut();
    void rowsThatDoNotFitGiveAnEllipsis_data();
    void rowsThatDoNotFitGiveAnEllipsis();
    void nothingIsDrawnWithoutRoom();
    void cellsAreToldInFull();

private:
    QFont font = crispFont(10);
    QFontMetrics metrics = QFontMetrics(font);
};

void TestReadout::nothingIsNeededWithoutACursor()
{
    QCOMPARE(Readout().neededWidth(font), 0);
    QCOMPARE(table({{QStringLiteral("Name")}, {QStringLiteral("Ia")}}).neededWidth(font), 0);
}

// Eight pixels of padding to each text, four on both sides of the table.
void TestReadout::aColumnNeedsItsWidestText()
{
    const Readout readout = table({{QStringLiteral("Name"), QStringLiteral("P1")},
        {QStringLiteral("A long name"), QStringLiteral("0.5")},
        {QStringLiteral("Ib"), QStringLiteral("-1234.5")}});
    QCOMPARE(readout.neededWidth(font),
        metrics.horizontalAdvance(QStringLiteral("A long name")) + 8
            + metrics.horizontalAdvance(QStringLiteral("-1234.5")) + 8 + 8);
}

// Rows are four pixels higher than the font from y = 60 on, columns as wide as their widest text
// and eight pixels more.
void TestReadout::cellsStandInTheMiddleOfTheirColumns()
{
    const QVector<QStringList> rows{
        {QStringLiteral("Parameter"), QStringLiteral("P1 (200)"), QStringLiteral("P2 (450.5)")},
        {QStringLiteral("Ia"), QStringLiteral("17"), QStringLiteral("-3.25")}};
    const int width = table(rows).neededWidth(font);
    const QImage image = draw(table(rows), geometryOf({800, 301}, width), font);
    const int rowHeight = metrics.height() + 4;
    int left = 800 - width + 4;
    for (int column = 0; column < 3; ++column) {
        const int columnWidth = metrics.horizontalAdvance(rows.at(0).at(column)) + 8;
        for (int row = 0; row < 2; ++row) {
            const QRect cell(left, 60 + row * rowHeight, columnWidth, rowHeight);
            const QRect found = findText(image, rows.at(row).at(column), font);
            QVERIFY2(cell.contains(found), qPrintable(rows.at(row).at(column)));
            QVERIFY(std::abs(found.center().x() - cell.center().x()) <= 1);
        }
        left += columnWidth;
    }
    QVERIFY(inkRect(image, image.rect()).right() < 800);
}

// Of 180 pixels 172 are for the columns. The middle one needs less than a third and keeps it; the
// others have half of the rest each and cut their texts.
void TestReadout::columnsShareTheRoomWhenTooWide()
{
    const QString longName = QStringLiteral("Current of the first feeder in the north");
    const QString longHead = QStringLiteral("P2 (123456.78901234 and some more)");
    const Readout readout = table({{longName, QStringLiteral("P1"), longHead},
        {QStringLiteral("Ia"), QStringLiteral("17"), QStringLiteral("25")}});
    const QImage image = draw(readout, geometryOf({800, 301}, 180), font);
    const int middleWidth = metrics.horizontalAdvance(QStringLiteral("17"))
            > metrics.horizontalAdvance(QStringLiteral("P1"))
        ? metrics.horizontalAdvance(QStringLiteral("17")) + 8
        : metrics.horizontalAdvance(QStringLiteral("P1")) + 8;
    const int share = (172 - middleWidth) / 2;
    const QVector<QRect> columns{{624, 60, share, 200}, {624 + share, 60, middleWidth, 200},
        {624 + share + middleWidth, 60, 172 - share - middleWidth, 200}};

    QVERIFY(columns.at(1).contains(findText(image, QStringLiteral("P1"), font)));
    QVERIFY(columns.at(1).contains(findText(image, QStringLiteral("17"), font)));
    QVERIFY(columns.at(0).contains(findText(image, QStringLiteral("Ia"), font)));
    QVERIFY(columns.at(2).contains(findText(image, QStringLiteral("25"), font)));
    const QString cut = metrics.elidedText(longName, Qt::ElideRight, share - 2);
    QVERIFY(cut != longName && cut.size() > 3);
    QVERIFY2(columns.at(0).contains(findText(image, cut, font)), qPrintable(cut));
    // A cursor keeps its name before its time.
    QVERIFY(columns.at(2).contains(findText(image, QStringLiteral("P2"), font)));
    const QRect ink = inkRect(image, image.rect());
    QVERIFY(ink.left() >= 624);
    QVERIFY(ink.right() < 796);
}

void TestReadout::emptyCellsStayEmpty()
{
    const Readout readout = table(
        {{QStringLiteral("Name"), QStringLiteral("P1 (1500)")}, {QStringLiteral("Ia"), QString()}});
    const int width = readout.neededWidth(font);
    const QImage image = draw(readout, geometryOf({800, 301}, width), font);
    const int rowHeight = metrics.height() + 4;
    const int second = 800 - width + 4 + metrics.horizontalAdvance(QStringLiteral("Name")) + 8;
    QVERIFY(!findText(image, QStringLiteral("P1 (1500)"), font).isNull());
    QVERIFY(inkRect(image, {second, 60 + rowHeight, 800 - second, 200}).isNull());
}

// A header and nine rows in a height of ten times the font's and twenty pixels have two pixels
// more than the font needs.
void TestReadout::rowsMoveTogetherBeforeTheyAreLeftOut()
{
    const int height = 60 + 10 * metrics.height() + 20 + 4;
    const QImage image = draw(tableOf(9), geometryOf({800, height}, 150), font);
    const QRect first = findText(image, QStringLiteral("N1"), font);
    const QRect last = findText(image, QStringLiteral("N9"), font);
    QVERIFY(!first.isNull());
    QCOMPARE(last.top() - first.top(), 8 * (metrics.height() + 2));
}

void TestReadout::rowsThatDoNotFitGiveAnEllipsis_data()
{
    QTest::addColumn<int>("lines"); // of text that there is room for
    QTest::addColumn<int>("rows"); // besides the header
    QTest::addColumn<int>("complete"); // shown besides the header
    QTest::newRow("all rows just fit") << 6 << 5 << 5;
    QTest::newRow("one row too many") << 6 << 6 << 4;
    QTest::newRow("far too many rows") << 6 << 60 << 4;
    QTest::newRow("room for the header and one row") << 2 << 5 << 0;
}

void TestReadout::rowsThatDoNotFitGiveAnEllipsis()
{
    QFETCH(int, lines);
    QFETCH(int, rows);
    QFETCH(int, complete);
    const int height = 60 + lines * metrics.height() + 4;
    const QImage image = draw(tableOf(rows), geometryOf({800, height}, 150), font);
    const QRect header = findText(image, QStringLiteral("Name"), font);
    QVERIFY(!header.isNull());
    for (int i = 1; i <= complete; ++i) {
        const QRect name = findText(image, QStringLiteral("N%1").arg(i), font);
        QVERIFY(!name.isNull());
        QCOMPARE(name.bottom() - header.bottom(), i * metrics.height());
        QVERIFY(!findText(image, QStringLiteral("V%1").arg(i), font).isNull());
    }
    QVERIFY(findText(image, QStringLiteral("N%1").arg(complete + 1), font).isNull());
    QVERIFY(findText(image, QStringLiteral("V%1").arg(complete + 1), font).isNull());
    const QRect ellipsis = findText(image, QString(QChar(0x2026)), font);
    QCOMPARE(!ellipsis.isNull(), complete < rows);
    if (complete < rows)
        QCOMPARE((ellipsis.bottom() - header.bottom()) / metrics.height(), complete + 1);
    QVERIFY(inkRect(image, image.rect()).bottom() < height);
}

void TestReadout::nothingIsDrawnWithoutRoom()
{
    const QImage image = draw(tableOf(3), geometryOf({800, 301}, 8), font);
    QVERIFY(inkRect(image, image.rect()).isNull());
    const QImage names = draw(table({{QStringLiteral("Name")}}), geometryOf({800, 301}, 100), font);
    QVERIFY(inkRect(names, names.rect()).isNull());
}

// Two columns of 50 pixels each share the room of 100, from x = 704 on.
void TestReadout::cellsAreToldInFull()
{
    const Readout readout
        = table({{QStringLiteral("Parameter of a plot"), QStringLiteral("P1 (123456.789)")},
            {QStringLiteral("Current of a feeder"), QStringLiteral("-17.25 and more")},
            {QStringLiteral("Voltage of a feeder"), QString()}});
    const PlotGeometry geometry = geometryOf({812, 301}, 108);
    const int rowHeight = metrics.height() + 4;
    const auto textAt = [&](int x, int row) {
        return readout.textAt({x, 60 + row * rowHeight + rowHeight / 2}, geometry, font);
    };
    QCOMPARE(textAt(710, 0), QStringLiteral("Parameter of a plot"));
    QCOMPARE(textAt(760, 0), QStringLiteral("P1 (123456.789)"));
    QCOMPARE(textAt(710, 1), QStringLiteral("Current of a feeder"));
    QCOMPARE(
        textAt(760, 1), QStringLiteral("Current of a feeder, P1 (123456.789): -17.25 and more"));
    QCOMPARE(textAt(760, 2), QString());
    QCOMPARE(textAt(760, 3), QString());
    QCOMPARE(textAt(700, 1), QString());
    QCOMPARE(Readout().textAt({760, 70}, geometry, font), QString());
}

QTEST_MAIN(TestReadout)
#include "tst_readout.moc"
