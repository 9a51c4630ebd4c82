// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"
#include "openingfixture.h"

#include <QClipboard>
#include <QMenuBar>
#include <QScrollArea>

class TestOpenHint : public OpeningFixture {
    Q_OBJECT

private slots:
    void init()
    {
        open();
        showActive();
    }
    void cleanup() { close(); }

    void goesWithALoadAndIsBackAfterAFailedOne();
    void isGoneWhileARecordingLoads();
    void staysWhereNothingIsLoaded();
    void standsOutInTheWholeArea();
    void fillsTheAreaOfAnySize();
    void isInNoPicture();
    void leavesTheMouseToTheArea();
    void namesTheMenuInEachLanguage_data();
    void namesTheMenuInEachLanguage();

private:
    QLabel *hint() const { return child<QLabel>("openHint"); }
    QString badRecording() const
    {
        QFile file(path("bad.cfg"));
        file.open(QIODevice::WriteOnly);
        return file.fileName();
    }
    void choose(const QString &language) const
    {
        for (QAction *each : window->findChildren<QAction *>()) {
            if (each->text() == language)
                each->trigger();
        }
        QCoreApplication::processEvents();
    }
    static QString withoutMark(QString text) { return text.remove(QLatin1Char('&')); }
};

void TestOpenHint::goesWithALoadAndIsBackAfterAFailedOne()
{
    QVERIFY(hint()->isVisible());
    for (int twice = 0; twice < 2; ++twice) {
        window->open(goodRecording());
        QVERIFY(hint()->isHidden());
        window->open(badRecording());
        QVERIFY(hint()->isVisible());
        window->open(badRecording());
        QVERIFY(hint()->isVisible());
    }
    QCOMPARE(boxes->count(), 4);
}

void TestOpenHint::isGoneWhileARecordingLoads()
{
    window->open(goodRecording());
    delayLoader();
    int seen = -1; // 1 where the hint was visible
    QTimer::singleShot(100, window.get(), [&] { seen = hint()->isVisible() ? 1 : 0; });
    window->open(goodRecording("other"));
    QCOMPARE(seen, 0);
}

void TestOpenHint::staysWhereNothingIsLoaded()
{
    window->open(path("none.cfg"));
    QCOMPARE(boxes->count(), 1);
    QVERIFY(hint()->isVisible());
    window->open(goodRecording());
    window->open(path("none.cfg"));
    QVERIFY(hint()->isHidden()); // the recording is still on screen
}

// White letters, against what stands behind them when they are hidden. The area's upper edge is
// lightest. At a scale factor between whole numbers its last row is partly that of the border
// below.
void TestOpenHint::standsOutInTheWholeArea()
{
    const QWidget *area = hint()->parentWidget();
    const auto picture = [&] {
        const QPoint place = area->mapTo(window.get(), QPoint());
        return window->grab(QRect(place, area->size() - QSize(0, 1))).toImage();
    };
    const QImage with = picture();
    hint()->hide();
    const QImage without = picture();
    QVERIFY(differentPixels(with, without, 4.5) > 100);
    for (int y = 0; y < without.height(); ++y)
        QVERIFY(contrast(qRgb(255, 255, 255), without.pixel(without.width() / 2, y)) >= 4.5);
}

void TestOpenHint::fillsTheAreaOfAnySize()
{
    for (const QSize &size : {QSize(1400, 900), QSize(1000, 700), QSize(1300, 800)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(hint()->size(), child<QScrollArea>("scrollArea")->viewport()->size());
        QCOMPARE(hint()->pos(), QPoint());
        QVERIFY(hint()->heightForWidth(hint()->width()) <= hint()->height());
    }
}

void TestOpenHint::isInNoPicture()
{
    const auto copied = [&] {
        window->copyToClipboard();
        return QGuiApplication::clipboard()->image();
    };
    const QImage with = copied();
    hint()->hide();
    QCOMPARE(copied(), with);
}

void TestOpenHint::leavesTheMouseToTheArea()
{
    const QPoint middle = hint()->mapTo(window.get(), hint()->rect().center());
    QCOMPARE(window->childAt(middle)->objectName(), QStringLiteral("scrollWidget"));
}

void TestOpenHint::namesTheMenuInEachLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("beginning");
    QTest::newRow("English") << QStringLiteral("English") << QStringLiteral("Open a recording: ");
    QTest::newRow("Finnish") << QStringLiteral("Suomi") << QStringLiteral("Avaa häiriötallenne: ");
    QTest::newRow("Chinese") << QStringLiteral("中文") << QStringLiteral("打开故障录波：");
}

// At once, shown and hidden.
void TestOpenHint::namesTheMenuInEachLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, beginning);
    QAction *open = action("&Open...");
    choose(QStringLiteral("Suomi"));
    choose(language);
    const QString menu = withoutMark(window->menuBar()->actions().constFirst()->text());
    const QString path = menu + QStringLiteral(" > ") + withoutMark(open->text());
    QVERIFY2(hint()->text().startsWith(beginning + path), qPrintable(hint()->text()));
    QVERIFY(hint()->text().contains(open->shortcut().toString()));
    choose(QStringLiteral("English"));
    window->open(goodRecording());
    choose(language);
    window->open(badRecording());
    QVERIFY2(hint()->text().startsWith(beginning + path), qPrintable(hint()->text()));
}

QTEST_MAIN(TestOpenHint)
#include "tst_openhint.moc"
