// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "elidingcombobox.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QToolTip>
#include <QtTest>

class TestElidingComboBox : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { combo.reset(); }
    void replacesItsTextsWithoutASignal();
    void keepsWhatItCutsAsData();
    void looksLikeAnyOtherWhileItsTextFits();
    void showsBothEndsOfALongText();
    void tellsALongTextInItsToolTip_data();
    void tellsALongTextInItsToolTip();
    void needsNoMoreRoomThanItWants();
    void widensItsListWithinTheScreen_data();
    void widensItsListWithinTheScreen();

private:
    QImage picture(const QString &text) const
    {
        combo->setTexts({text}, 0);
        return combo->grab().toImage();
    }

    std::unique_ptr<ElidingComboBox> combo;
};

namespace {

const QString longName = QStringLiteral("Phase current IL1 of feeder K07");

} // namespace

void TestElidingComboBox::init()
{
    combo = std::make_unique<ElidingComboBox>();
    combo->setFixedWidth(120);
    combo->show();
    QVERIFY(QTest::qWaitForWindowExposed(combo.get()));
}

void TestElidingComboBox::replacesItsTextsWithoutASignal()
{
    QSignalSpy changed(combo.get(), QOverload<int>::of(&QComboBox::currentIndexChanged));
    combo->setTexts({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("A")}, 2);
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->currentIndex(), 2);
    combo->setTexts({QStringLiteral("C")}, 0);
    QCOMPARE(combo->count(), 1);
    QCOMPARE(combo->currentText(), QStringLiteral("C"));
    combo->setTexts({}, -1);
    QCOMPARE(combo->count(), 0);
    QCOMPARE(changed.count(), 0);
}

void TestElidingComboBox::keepsWhatItCutsAsData()
{
    const QString same(1000, QLatin1Char('W'));
    combo->setTexts({same + QLatin1Char('1'), same + QLatin1Char('2')}, 1);
    QCOMPARE(combo->currentText(), same);
    QCOMPARE(combo->currentData().toString(), same + QLatin1Char('2'));
    QCOMPARE(combo->itemData(0).toString(), same + QLatin1Char('1'));
}

void TestElidingComboBox::looksLikeAnyOtherWhileItsTextFits()
{
    QComboBox other;
    other.addItem(QStringLiteral("IL1"));
    other.setFixedWidth(120);
    other.resize(combo->size());
    QCOMPARE(picture(QStringLiteral("IL1")), other.grab().toImage());
}

void TestElidingComboBox::showsBothEndsOfALongText()
{
    const QImage one = picture(longName);
    QVERIFY(picture(QStringLiteral("Phase current IL1 of feeder K08")) != one);
    QVERIFY(picture(QStringLiteral("phase current IL1 of feeder K07")) != one);
    QCOMPARE(picture(QStringLiteral("Phase current IL2 of feeder K07")), one);
    QCOMPARE(combo->currentText(), QStringLiteral("Phase current IL2 of feeder K07"));
}

void TestElidingComboBox::tellsALongTextInItsToolTip_data()
{
    QTest::addColumn<QString>("ownTip");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::newRow("a long text") << QString() << longName << longName;
    QTest::newRow("below the tip of the box")
        << QStringLiteral("Reference") << longName << QStringLiteral("Reference\n") + longName;
    QTest::newRow("a long text that looks like tags")
        << QString() << QStringLiteral("<b>Phase current IL1 of feeder K07</b>")
        << QStringLiteral("&lt;b&gt;Phase current IL1 of feeder K07&lt;/b&gt;");
    QTest::newRow("a text that fits")
        << QStringLiteral("Reference") << QStringLiteral("IL1") << QStringLiteral("Reference");
}

// The tip of a mouse that rests.
void TestElidingComboBox::tellsALongTextInItsToolTip()
{
    QFETCH(QString, ownTip);
    QFETCH(QString, text);
    combo->setToolTip(ownTip);
    combo->setTexts({text}, 0);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    QTest::mouseMove(combo.get(), QPoint(10, 10));
    QTest::mouseMove(combo.get(), QPoint(12, 10));
    QTRY_VERIFY(QToolTip::isVisible());
    QTEST(QToolTip::text(), "tip");
}

void TestElidingComboBox::needsNoMoreRoomThanItWants()
{
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo->setTexts({QStringLiteral("Per Unit")}, 0);
    const auto needed = [this](int points) {
        QFont font = combo->font();
        font.setPointSize(points);
        combo->setFont(font);
        return combo->minimumSizeHint();
    };
    const QSize large = needed(20);
    QCOMPARE(large, combo->sizeHint());
    const QSize small = needed(9);
    QCOMPARE(small, combo->sizeHint());
    QVERIFY(small.width() < large.width());
}

void TestElidingComboBox::widensItsListWithinTheScreen_data()
{
    QTest::addColumn<int>("characters");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    const int screen = QGuiApplication::primaryScreen()->availableSize().width();
    QTest::newRow("short texts") << 2 << 120 << 160;
    QTest::newRow("long texts") << 40 << 300 << screen;
    QTest::newRow("endless texts") << 5000 << screen / 2 << screen;
}

// Twice, and then with a short text again.
void TestElidingComboBox::widensItsListWithinTheScreen()
{
    QFETCH(int, characters);
    QFETCH(int, least);
    QFETCH(int, most);
    combo->setTexts({QString(characters, QLatin1Char('W'))}, 0);
    for (int i = 0; i < 2; ++i) {
        QTest::mouseClick(combo.get(), Qt::LeftButton);
        QTRY_VERIFY(combo->view()->isVisible());
        const int width = combo->view()->width();
        QVERIFY2(width >= least && width <= most, qPrintable(QString::number(width)));
        combo->hidePopup();
        QTRY_VERIFY(!combo->view()->isVisible());
    }
    combo->setTexts({QStringLiteral("A")}, 0);
    combo->showPopup();
    QVERIFY(combo->view()->width() <= 160);
}

QTEST_MAIN(TestElidingComboBox)
#include "tst_elidingcombobox.moc"
