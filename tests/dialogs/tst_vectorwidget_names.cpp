// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Names of channels in a panel: long ones, equal ones, and those that no one could show.

#include "vectorpanel.h"

#include <QToolButton>

#include <algorithm>
#include <functional>

namespace {

using namespace vectorpanel;

constexpr int column = 121; // of the magnitudes, a third of 365 pixels

const QStringList longNames{QStringLiteral("Feeder K07 current IL1X"), // 23 characters
    QStringLiteral("Feeder K07 current in IL2"), QStringLiteral("Feeder K07 current of IL3Y"),
    QStringLiteral("Feeder K07 voltage of UL1 sec"),
    QStringLiteral("Feeder K07 voltage of UL2 prim.")}; // 31 characters

// Whether something holds for a name with about as much of its beginning as of its end.
bool isShortened(const QString &name, const std::function<bool(const QString &)> &holds)
{
    for (int head = 1; head < std::min(name.size(), 40); ++head) {
        for (const int tail : {head - 1, head, head + 1}) {
            if (holds(name.left(head) + QChar(0x2026) + name.right(tail)))
                return true;
        }
    }
    return false;
}

bool isShownShortened(const QImage &image, const Text &text, const QString &value)
{
    const QRect cell(text.position - QPoint(0, 11), QSize(column, 15));
    return isShortened(text.text, [&](const QString &name) {
        const QImage expected = pictureOf({{text.position, text.color, name + value}});
        return image.copy(cell) == expected.copy(cell);
    });
}

} // namespace

class TestVectorWidgetNames : public QObject, private VectorPanelFixture {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void magnitudesOfLongNamesAreWhole();
    void namesThatFitStayAsTheyAre();
    void equalNamesHaveTheirOwnPhasors();
    void equalNamesAreReferencesOfTheirOwn();
    void theDashIsNoReferenceEvenAsAName();
    void namesElsewhereAreFoundByTheirFirstRecord();
    void namesThatDifferBeyondTheCutHaveTheirOwnPhasors();
    void otherNamesAreFoundAgain();
    void checkBoxesShowBothEnds_data();
    void checkBoxesShowBothEnds();

private:
    void click(int box)
    {
        QCheckBox *each = checkBoxes().at(box);
        QTest::mouseClick(each, Qt::LeftButton, {}, QPoint(8, each->height() / 2));
    }
    // Adds channels of these names, with the magnitudes 10, 20, 30, ...
    void add(const QStringList &names)
    {
        for (int i = 0; i < names.size(); ++i)
            recording.add(names.at(i), 0, static_cast<float>(10 * (i + 1)), extremeOf100);
    }
};

void TestVectorWidgetNames::magnitudesOfLongNamesAreWhole()
{
    add(longNames);
    for (const auto &channel : recording.channels) {
        for (int sample = 60; sample <= 100; ++sample)
            channel->fftMagnitudes[sample] += 0.625F;
    }
    setPlotter({50, 70});
    show();
    for (int box = 0; box < 5; ++box)
        click(box);
    const QColor colors[]{orange, green, blue, violet, QColor(60, 150, 0)};
    const QStringList values{QStringLiteral(": 10"), QStringLiteral(": 20"), QStringLiteral(": 30"),
        QStringLiteral(": 40"), QStringLiteral(": 50"), QStringLiteral(": 10.625"),
        QStringLiteral(": 20.625"), QStringLiteral(": 30.625"), QStringLiteral(": 40.625"),
        QStringLiteral(": 50.625")};
    const QImage image = magnitudes();
    for (int i = 0; i < 10; ++i) {
        const QPoint position(column * (i % 3), 15 * (i / 3 + 1));
        QVERIFY2(
            isShownShortened(image, {position, colors[i % 5], longNames.at(i % 5)}, values.at(i)),
            qPrintable(longNames.at(i % 5) + values.at(i)));
    }
}

// Up to the last pixel of the column.
void TestVectorWidgetNames::namesThatFitStayAsTheyAre()
{
    QFont font;
    font.setPixelSize(9);
    QString name = QStringLiteral("I");
    while (QFontMetrics(font).horizontalAdvance(name + QStringLiteral("i: 10")) <= column)
        name += QLatin1Char('i');
    add({name, name + QStringLiteral("i")});
    show();
    click(0);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, orange, name + QStringLiteral(": 10")}}));
    click(0);
    click(1);
    QVERIFY(isShownShortened(
        magnitudes(), {{0, 15}, green, name + QStringLiteral("i")}, QStringLiteral(": 20")));
}

void TestVectorWidgetNames::equalNamesHaveTheirOwnPhasors()
{
    add({QStringLiteral("I"), QStringLiteral("U"), QStringLiteral("I")});
    show();
    click(2);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, blue, QStringLiteral("I: 30")}}));
    QVERIFY(boundsOf(diagram(), orange).isNull());
    click(0);
    QCOMPARE(magnitudes(),
        pictureOf({{{0, 15}, orange, QStringLiteral("I: 10")},
            {{column, 15}, blue, QStringLiteral("I: 30")}}));
    click(2);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, orange, QStringLiteral("I: 10")}}));
}

void TestVectorWidgetNames::equalNamesAreReferencesOfTheirOwn()
{
    recording.add(QStringLiteral("I"), pi / 2, 50, extremeOf100);
    recording.add(QStringLiteral("I"), pi, 50, extremeOf100);
    show();
    click(0);
    auto *references = dialog->findChild<QComboBox *>(QStringLiteral("comboBox_reference"));
    const auto bounds = [this] { return boundsOf(diagram(), orange); };
    QVERIFY(bounds().top() <= origin.y() - 73); // up
    QTest::keyClick(references, Qt::Key_Down);
    QTRY_VERIFY(bounds().right() >= origin.x() + 73); // against itself to the right
    QTest::keyClick(references, Qt::Key_Down);
    QTRY_VERIFY(bounds().bottom() >= origin.y() + 73); // against the other one down
    QTest::keyClick(references, Qt::Key_Up);
    QTRY_VERIFY(bounds().right() >= origin.x() + 73);
}

void TestVectorWidgetNames::theDashIsNoReferenceEvenAsAName()
{
    recording.add(QStringLiteral("-"), pi / 2, 50, extremeOf100);
    show();
    click(0);
    QVERIFY(boundsOf(diagram(), orange).top() <= origin.y() - 73);
}

void TestVectorWidgetNames::namesElsewhereAreFoundByTheirFirstRecord()
{
    add({QStringLiteral("I"), QStringLiteral("U"), QStringLiteral("I")});
    show();
    panel->setChannelNames({QStringLiteral("U"), QStringLiteral("I"), QStringLiteral("I")});
    for (int box = 0; box < 3; ++box)
        click(box);
    QCOMPARE(magnitudes(),
        pictureOf({{{0, 15}, green, QStringLiteral("U: 20")},
            {{column, 15}, orange, QStringLiteral("I: 10")},
            {{2 * column, 15}, blue, QStringLiteral("I: 30")}}));
}

void TestVectorWidgetNames::namesThatDifferBeyondTheCutHaveTheirOwnPhasors()
{
    const QString same(1000, QLatin1Char('W'));
    add({same + QLatin1Char('1'), same + QLatin1Char('2')});
    show();
    QCOMPARE(checkBoxes().at(1)->text(), same);
    QCOMPARE(checkBoxes().at(1)->toolTip(), same);
    click(1);
    QVERIFY(isShownShortened(magnitudes(), {{0, 15}, green, same}, QStringLiteral(": 20")));
    auto *references = dialog->findChild<QComboBox *>(QStringLiteral("comboBox_reference"));
    references->setCurrentIndex(2);
    QCOMPARE(references->currentText(), same);
    QCOMPARE(dialog->referenceName(), same + QLatin1Char('2'));
}

// Twice, with a panel added in between.
void TestVectorWidgetNames::otherNamesAreFoundAgain()
{
    show();
    const auto load = [this](const QStringList &names) {
        recording = PhasorRecording();
        add(names);
        host->shown = recording.properties.get();
        dialog->setChannelNames(names);
    };
    load({QStringLiteral("I"), QStringLiteral("I")});
    click(1);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, green, QStringLiteral("I: 20")}}));
    load({QStringLiteral("U"), QStringLiteral("I"), QStringLiteral("I")});
    QTest::mouseClick(
        dialog->findChild<QToolButton *>(QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly),
        Qt::LeftButton);
    for (VectorWidget *each : dialog->findChildren<VectorWidget *>()) {
        panel = each;
        QTRY_VERIFY(!diagram().isNull());
        click(2);
        QCOMPARE(magnitudes(), pictureOf({{{0, 15}, blue, QStringLiteral("I: 30")}}));
    }
    load({QStringLiteral("I"), QStringLiteral("U")});
    click(1);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, green, QStringLiteral("U: 20")}}));
}

void TestVectorWidgetNames::checkBoxesShowBothEnds_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("31 characters") << longNames.last();
    QTest::newRow("ampersands") << QStringLiteral("A&B&C&D&E&F&G&H&I&J&K&L&M&N&O&P&Q");
    QTest::newRow("pairs of them") << QStringLiteral("A&&B&&C&&D&&E&&F&&G&&H&&I&&J&&K");
}

void TestVectorWidgetNames::checkBoxesShowBothEnds()
{
    QFETCH(QString, name);
    add({name, QStringLiteral("U"), QStringLiteral("W")});
    show();
    QCheckBox *box = checkBoxes().first();
    QCheckBox usual(box->parentWidget());
    usual.setStyleSheet(box->styleSheet());
    usual.setGeometry(box->geometry());
    const QImage shown = box->grab().toImage();
    QVERIFY(isShortened(name, [&](QString text) {
        usual.setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        return usual.grab().toImage() == shown;
    }));
    QCOMPARE(box->toolTip(), name);
}

QTEST_MAIN(TestVectorWidgetNames)
#include "tst_vectorwidget_names.moc"
