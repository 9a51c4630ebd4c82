// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textrow.h"

#include <QtTest>

namespace {

using Texts = QVector<RowText>;
constexpr int none = -1;

} // namespace

Q_DECLARE_METATYPE(Texts)

class TestTextRow : public QObject {
    Q_OBJECT

private slots:
    void textsFindTheirPlaces_data();
    void textsFindTheirPlaces();
};

void TestTextRow::textsFindTheirPlaces_data()
{
    QTest::addColumn<Texts>("texts"); // width, wanted, lowest, highest
    QTest::addColumn<QVector<int>>("places");
    QTest::newRow("no text") << Texts() << QVector<int>();
    QTest::newRow("one text") << Texts{{50, 100, 0, 500}} << QVector<int>{100};
    QTest::newRow("two that touch")
        << Texts{{50, 100, 0, 500}, {50, 150, 0, 500}} << QVector<int>{100, 150};
    QTest::newRow("two that overlap by 30 share the way")
        << Texts{{50, 100, 0, 500}, {50, 120, 0, 500}} << QVector<int>{85, 135};
    QTest::newRow("given in the other order")
        << Texts{{50, 120, 0, 500}, {50, 100, 0, 500}} << QVector<int>{135, 85};
    QTest::newRow("the one at its end stays, the other has all the way")
        << Texts{{50, 100, 100, 500}, {50, 120, 0, 500}} << QVector<int>{100, 150};
    QTest::newRow("a third one goes with them") << Texts{{50, 100, 100, 500}, {50, 120, 0, 500},
        {50, 170, 0, 500}} << QVector<int>{100, 150, 200};
    QTest::newRow("no room for the second")
        << Texts{{50, 100, 100, 100}, {50, 110, 110, 110}} << QVector<int>{100, none};
    QTest::newRow("no place at all") << Texts{{50, 100, 100, 99}} << QVector<int>{none};
    QTest::newRow("the one that can move makes room")
        << Texts{{50, 200, 0, 500}, {50, 210, 210, 210}} << QVector<int>{160, 210};
    QTest::newRow("to the other side where its own is shut")
        << Texts{{50, 100, 100, 100}, {50, 90, 90, 400}} << QVector<int>{100, 150};
    QTest::newRow("between two that make room") << Texts{{50, 90, 60, 90}, {50, 140, 140, 170},
        {50, 115, 110, 120}} << QVector<int>{65, 165, 115};
}

void TestTextRow::textsFindTheirPlaces()
{
    QFETCH(Texts, texts);
    QVector<int> found;
    for (const std::optional<int> &place : placeTexts(texts))
        found.append(place.value_or(none));
    QTEST(found, "places");
}

QTEST_MAIN(TestTextRow)
#include "tst_textrow.moc"
