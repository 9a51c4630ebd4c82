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
    void aHeaderThatDoesNotFitHasTwoLines();
    void fourTimesAreReadable_data();
    void fourTimesAreReadable();
    void namesGoBeforeValues();
    void columnsShareTheRoomWhenTooWide();
    void timesOnTwoLinesGoBeforeTimesOnOne();
    void twentyCursorsKeepTheirNames();
    void emptyCellsStayEmpty();
    void rowsMoveTogetherBeforeTheyAreLeftOut();
    void rowsThatDoNotFitGiveAnEllipsis_data();
    void rowsThatDoNotFitGiveAnEllipsis();
    void nothingIsDrawnWithoutRoom();
    void numbersAreBriefBeforeTheyAreCut_data();
    void numbersAreBriefBeforeTheyAreCut();
    void briefNumbersGoBeforeLongOnes();
    void cellsAreToldInFull();
    void anEllipsisListsWhatIsLeftOut_data();
    void anEllipsisListsWhatIsLeftOut();

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

// Where the room is short, the header that is wider than its value is on two lines; all rows stand
// one line lower.
void TestReadout::aHeaderThatDoesNotFitHasTwoLines()
{
    const Readout readout = table(
        {{QStringLiteral("Name"), QStringLiteral("P1 (17)"), QStringLiteral("P2 (3115.06)")},
            {QStringLiteral("Ia"), QStringLiteral("-1234.56"), QStringLiteral("0.5")}});
    const int width = readout.neededWidth(font);
    const int rowHeight = metrics.height() + 4;
    for (const bool fits : {true, false}) {
        // A text may use six of the eight pixels of padding.
        const QImage image = draw(readout, geometryOf({800, 301}, fits ? width : width - 7), font);
        QCOMPARE(!findText(image, QStringLiteral("P2 (3115.06)"), font).isNull(), fits);
        QVERIFY(!findText(image, QStringLiteral("P1 (17)"), font).isNull());
        const QRect value = findText(image, QStringLiteral("0.5"), font);
        QCOMPARE(value.top() >= 60 + 2 * rowHeight, !fits);
        if (fits)
            continue;
        const QRect name = findText(image, QStringLiteral("P2"), font);
        const QRect time = findText(image, QStringLiteral("(3115.06)"), font);
        QVERIFY(!name.isNull() && !time.isNull());
        QVERIFY(name.bottom() < time.top() && time.bottom() < value.top());
        QVERIFY(std::abs(name.center().x() - time.center().x()) <= 2);
    }
}

// In less than half of a plot in a window of 1000; the longest names have 31 letters.
void TestReadout::fourTimesAreReadable_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("short names") << QStringLiteral("IL1");
    QTest::newRow("long names") << QStringLiteral("Current of the northern feeder1");
}

void TestReadout::fourTimesAreReadable()
{
    QFETCH(QString, name);
    const QStringList times{QStringLiteral("(1234.56)"), QStringLiteral("(2345.67)"),
        QStringLiteral("(3115.06)"), QStringLiteral("(987.654)")};
    QStringList header{QStringLiteral("Parameter")};
    QStringList values{name};
    for (int i = 0; i < times.size(); ++i) {
        header << QStringLiteral("P%1 %2").arg(i + 1).arg(times.at(i));
        values << QStringLiteral("-1234.5%1").arg(i);
    }
    const QImage image = draw(table({header, values}), geometryOf({815, 301}, 340), font);
    for (const QString &time : times)
        QVERIFY2(!findText(image, time, font).isNull(), qPrintable(time));
    QVERIFY(inkRect(image, image.rect()).left() >= 815 - 340);
}

// Of 180 pixels 172 are for the columns. The name has what it needs, the values share the rest.
void TestReadout::namesGoBeforeValues()
{
    const QString name = QStringLiteral("Current north");
    const QString value = QStringLiteral("1234567890123456");
    const Readout readout
        = table({{QStringLiteral("Name"), QStringLiteral("P1"), QStringLiteral("P2")},
            {name, value, value}});
    const QImage image = draw(readout, geometryOf({800, 301}, 180), font);
    const int share = (172 - metrics.horizontalAdvance(name) - 8) / 2;
    const QString cut = metrics.elidedText(value, Qt::ElideRight, share - 2);
    for (const QString &text : {name, QStringLiteral("P1"), QStringLiteral("P2"), cut})
        QVERIFY2(!findText(image, text, font).isNull(), qPrintable(text));
}

// With more cursors than have room for their times, these are left out, and a name too long for an
// equal share loses its middle.
void TestReadout::columnsShareTheRoomWhenTooWide()
{
    const QString longName = QStringLiteral("Current of the first feeder in the north");
    const Readout readout
        = table({{longName, QStringLiteral("P1 (123456.7)"), QStringLiteral("P2 (234567.8)")},
            {QStringLiteral("Ia"), QStringLiteral("7"), QString()},
            {QStringLiteral("Ib"), QString(), QStringLiteral("5")}});
    const QImage image = draw(readout, geometryOf({800, 301}, 128), font); // 40 for each column
    const int number = std::max(metrics.horizontalAdvance(QStringLiteral("P1")),
        metrics.horizontalAdvance(QStringLiteral("P2")));
    const QString cut = metrics.elidedText(longName, Qt::ElideMiddle, 120 - 2 * (number + 2) - 2);
    QVERIFY(cut.size() > 3 && cut.endsWith(QLatin1Char('h')));
    for (const QString &text :
        {cut, QStringLiteral("Ia"), QStringLiteral("7"), QStringLiteral("5")})
        QVERIFY2(!findText(image, text, font).isNull(), qPrintable(text));
    const QRect ink = inkRect(image, image.rect());
    QVERIFY(ink.left() >= 800 - 128 + 4);
    QVERIFY(ink.right() < 796);
}

// Three pixels are missing for all times with their padding, of which they can give up six; the
// third cursor has no values, so its column is narrower than the others without its time.
void TestReadout::timesOnTwoLinesGoBeforeTimesOnOne()
{
    const QString value = QStringLiteral("-1234.5"); // narrower than a time
    const Readout readout
        = table({{QStringLiteral("Name"), QStringLiteral("P1 (1234.5)"),
                     QStringLiteral("P2 (5678.9)"), QStringLiteral("P3 (9012.3)")},
            {QStringLiteral("Ia"), value, value, QString()}});
    int columns = metrics.horizontalAdvance(QStringLiteral("Name")) + 8;
    for (const char *time : {"(1234.5)", "(5678.9)", "(9012.3)"})
        columns += metrics.horizontalAdvance(QLatin1String(time)) + 8;
    const QImage image = draw(readout, geometryOf({800, 301}, columns + 8 - 3), font);
    for (const char *text : {"(1234.5)", "(5678.9)", "(9012.3)", "P1", "P2", "P3"})
        QVERIFY2(!findText(image, QLatin1String(text), font).isNull(), text);
}

// Where there is just room for the names, with the two pixels that stay free in a cell.
void TestReadout::twentyCursorsKeepTheirNames()
{
    QStringList header{QStringLiteral("Parameter")};
    QStringList values{QStringLiteral("Current L1")};
    int room = std::max(metrics.horizontalAdvance(header.first()),
                   metrics.horizontalAdvance(values.first()))
        + 2;
    for (int i = 1; i <= 20; ++i) {
        const QString name = QStringLiteral("P%1").arg(i);
        header << name + QStringLiteral(" (1234.5)");
        values << QStringLiteral("-1234.56");
        room += metrics.horizontalAdvance(name) + 2;
    }
    const Readout readout = table({header, values});
    const PlotGeometry geometry = geometryOf({1200, 301}, room + 8);
    QMap<QString, int> widths;
    for (int x = 1200 - room - 8; x < 1200; ++x)
        ++widths[readout.textAt({x, 62}, geometry, font)];
    for (int i = 1; i <= 20; ++i)
        QCOMPARE(widths.value(header.at(i)),
            metrics.horizontalAdvance(QStringLiteral("P%1").arg(i)) + 2);
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

void TestReadout::numbersAreBriefBeforeTheyAreCut_data()
{
    QTest::addColumn<int>("missing"); // pixels of what the six digits need with 8 of padding
    QTest::addColumn<QString>("shown");
    const QString full = QStringLiteral("-1234.56");
    const QString brief = QStringLiteral("-1235");
    const int saved = metrics.horizontalAdvance(full) - metrics.horizontalAdvance(brief);
    QTest::newRow("six digits fit") << 0 << full;
    QTest::newRow("six digits just fit") << 6 << full;
    QTest::newRow("a pixel too few for six digits") << 7 << brief;
    QTest::newRow("four digits just fit") << 6 + saved << brief;
    QTest::newRow("a pixel too few for four digits")
        << 7 + saved
        << metrics.elidedText(
               full, Qt::ElideRight, metrics.horizontalAdvance(full) + 8 - (7 + saved) - 2);
}

// The name has what it needs, the value the rest; what it says in full stays.
void TestReadout::numbersAreBriefBeforeTheyAreCut()
{
    QFETCH(int, missing);
    QFETCH(QString, shown);
    const QString name = QStringLiteral("A long name");
    const QString full = QStringLiteral("-1234.56");
    Readout readout = table({{QStringLiteral("Name"), QStringLiteral("P1")}, {name, full}});
    readout.briefRows
        = table({{QStringLiteral("Name"), QStringLiteral("P1")}, {name, QStringLiteral("-1235")}})
              .rows;
    const PlotGeometry geometry = geometryOf({800, 301}, readout.neededWidth(font) - missing);
    const QImage image = draw(readout, geometry, font);
    for (const QString &text : {full, QStringLiteral("-1235"), shown})
        QCOMPARE(!findText(image, text, font).isNull(), text == shown);
    QVERIFY(!findText(image, name, font).isNull());
    QCOMPARE(readout.textAt({790, 60 + metrics.height() + 8}, geometry, font),
        QStringLiteral("A long name, P1: -1234.56"));
}

// The room is just that of the brief numbers, with two pixels free in each cell; equal shares would
// cut the wider one.
void TestReadout::briefNumbersGoBeforeLongOnes()
{
    const QString small = QStringLiteral("12.5");
    const QString large = QStringLiteral("-1.235e-05");
    const QStringList header{QStringLiteral("N"), QStringLiteral("P1"), QStringLiteral("P2")};
    Readout readout = table(
        {header, {QStringLiteral("I"), QStringLiteral("12.5432"), QStringLiteral("-1.23456e-05")}});
    readout.briefRows = table({header, {QStringLiteral("I"), small, large}}).rows;
    const int name = metrics.horizontalAdvance(QStringLiteral("N")) + 8; // has its padding first
    int room = name;
    for (const QString &text : {small, large})
        room += metrics.horizontalAdvance(text) + 2;
    const QImage image = draw(readout, geometryOf({800, 301}, room + 8), font);
    int left = 800 - 4 - room + name; // by cells, which are closer than texts that stand alone
    for (const QString &text : {small, large}) {
        const int width = metrics.horizontalAdvance(text) + 2;
        const QImage cell = image.copy(left, 0, width, image.height());
        QVERIFY2(!findText(cell, text, font).isNull(), qPrintable(text));
        left += width;
    }
}

// The columns share the room of 100 pixels from x = 704 on; that of "P1" ends it.
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
    QCOMPARE(textAt(798, 0), QStringLiteral("P1 (123456.789)"));
    QCOMPARE(textAt(710, 1), QStringLiteral("Current of a feeder"));
    QCOMPARE(
        textAt(798, 1), QStringLiteral("Current of a feeder, P1 (123456.789): -17.25 and more"));
    QCOMPARE(textAt(798, 2), QString());
    QCOMPARE(textAt(798, 3), QString());
    QCOMPARE(textAt(700, 1), QString());
    QCOMPARE(Readout().textAt({798, 70}, geometry, font), QString());
}

void TestReadout::anEllipsisListsWhatIsLeftOut_data()
{
    QTest::addColumn<int>("lines"); // of text that there is room for
    QTest::addColumn<int>("rows"); // besides the header
    QTest::addColumn<QString>("tip");
    QTest::newRow("all rows fit") << 4 << 3 << QStringLiteral("N3, P1: V3");
    QTest::newRow("two rows") << 4 << 4 << QStringLiteral("Name: P1\nN3: V3\nN4: V4");
    QTest::newRow("all rows") << 2 << 2 << QStringLiteral("Name: P1\nN1: V1\nN2: V2");
    QTest::newRow("the header, too") << 1 << 2 << QStringLiteral("Name: P1\nN1: V1\nN2: V2");
    QString tip = QStringLiteral("Name: P1");
    for (int i = 3; i <= 27; ++i)
        tip += QStringLiteral("\nN%1: V%1").arg(i);
    QTest::newRow("25 rows") << 4 << 27 << tip;
    QTest::newRow("more rows") << 4 << 30 << tip + QStringLiteral("\n\u2026 +3");
}

void TestReadout::anEllipsisListsWhatIsLeftOut()
{
    QFETCH(int, lines);
    QFETCH(int, rows);
    const Readout readout = tableOf(rows);
    const PlotGeometry geometry
        = geometryOf({800, 60 + lines * metrics.height() + 4}, readout.neededWidth(font));
    const int y = 60 + lines * metrics.height() - metrics.height() / 2;
    QTEST(readout.textAt({790, y}, geometry, font), "tip");
    if (lines > 1)
        QCOMPARE(readout.textAt({790, 62}, geometry, font), QStringLiteral("P1"));
}

QTEST_MAIN(TestReadout)
#include "tst_readout.moc"
