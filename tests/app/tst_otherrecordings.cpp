// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "openingfixture.h"
#include "plotmenus.h"
#include "recentrecordings.h"
#include "startup.h"

#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>

namespace {

const QString next = QStringLiteral("Open &Next in Folder");
const QString previous = QStringLiteral("Open &Previous in Folder");
const QString recent = QStringLiteral("&Recent Recordings");

} // namespace

class TestOtherRecordings : public OpeningFixture {
    Q_OBJECT

private slots:
    void init()
    {
        open();
        window->resize(1000, 653);
        showActive();
    }
    void cleanup() { close(); }

    void throughAFolderAndBack();
    void pastAFileThatCannotBeLoaded();
    void pastAPackageThatCannotBeUnpacked();
    void aChoiceThatFailsLeavesTheWalk_data();
    void aChoiceThatFailsLeavesTheWalk();
    void fromEveryPlot();
    void aPackageStandsInItsOwnFolder();
    void theLatestInTheMenu();
    void theLatestByKeys();
    void filesThatAreGone();
    void namesAsTheyStand();
    void manyChoicesAtOnce();
    void nothingInAnEmptyAreaAtFirst();
    void theLatestInTheEmptyArea();
    void anEmptyAreaByKeys();
    void anEmptyAreaOfAnySize();
    void anEmptyAreaInEachLanguage();
    void whatIsNotShownIsNotRemembered();

private:
    Plotter *analog() const { return plotNamed(QStringLiteral("Analog")); }
    QString title() const { return window->windowTitle().section(QLatin1String(" - "), 1); }
    // After a choice, which takes effect later.
    bool comesToShow(const char *name) const
    {
        return QTest::qWaitFor([=] { return title() == QLatin1String(name) && analog(); });
    }
    // By real keys in the context menu.
    void press(const QList<Qt::Key> &keys) const
    {
        QPointer<QMenu> menu = contextMenuAt(analog(), {300, 100});
        QVERIFY(menu);
        for (const Qt::Key key : keys) {
            QVERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), key);
        }
    }
    QStringList latestInMenu(QList<bool> *enabled = nullptr) const
    {
        QMenu *menu = contextMenuAt(analog(), {300, 100});
        QMenu *latest = entryOf(menu, recent)->menu();
        QMetaObject::invokeMethod(latest, "aboutToShow");
        QStringList texts;
        for (const QAction *entry : latest->actions()) {
            texts.append(entry->text());
            if (enabled)
                enabled->append(entry->isEnabled());
        }
        delete menu;
        return texts;
    }
    QWidget *recentList() const { return child<QWidget>("recentList"); }
    QList<QPushButton *> links() const { return recentList()->findChildren<QPushButton *>(); }
    QString badRecording() const
    {
        QFile file(path("bad.cfg"));
        file.open(QIODevice::WriteOnly);
        return file.fileName();
    }
    static QString installedArchiver()
    {
        QString archiver;
        for (const char *name : {"7z", "7zz", "7za"}) {
            if (archiver.isEmpty())
                archiver = QStandardPaths::findExecutable(QLatin1String(name));
        }
        return archiver;
    }
    // As if the program had been ended.
    void startAnew()
    {
        window = std::make_unique<MainWindow>();
        window->resize(1000, 653);
        showActive();
    }
};

void TestOtherRecordings::throughAFolderAndBack()
{
    for (const char *name : {"r10", "r9", "r100"})
        goodRecording(name);
    badRecording(); // without data
    QFile readme(path("r11.txt"));
    QVERIFY(readme.open(QIODevice::WriteOnly) && readme.write("Three trips.\n") > 0);
    readme.close();
    window->open(path("r9.cfg"));
    for (int twice = 0; twice < 2; ++twice) {
        QVERIFY(!offers(analog(), previous));
        QVERIFY(choose(analog(), next));
        QVERIFY(comesToShow("r10.cfg"));
        QVERIFY(offers(analog(), previous));
        QVERIFY(choose(analog(), next));
        QVERIFY(comesToShow("r100.cfg"));
        QVERIFY(!offers(analog(), next));
        QVERIFY(choose(analog(), previous));
        QVERIFY(comesToShow("r10.cfg"));
        press({Qt::Key_P});
        QVERIFY(comesToShow("r9.cfg"));
        press({Qt::Key_N});
        QVERIFY(comesToShow("r10.cfg"));
        window->open(path("r9.cfg"));
    }
    // A file that comes while the recording is on screen.
    goodRecording("r9b");
    QVERIFY(choose(analog(), next));
    QVERIFY(comesToShow("r9b.cfg"));
    QVERIFY(QFile::remove(path("r9b.cfg")));
    QVERIFY(choose(analog(), next));
    QVERIFY(comesToShow("r10.cfg"));
    QCOMPARE(boxes->count(), 0);
}

// From the empty area, by the mouse and from what has the focus there.
void TestOtherRecordings::pastAFileThatCannotBeLoaded()
{
    goodRecording("r1");
    goodRecording("r3");
    const QString bad = writePair(folder->path() + QStringLiteral("/r2"),
        smallConfiguration().replace("ASCII", "BINARY"), QByteArray(6, '\0'));
    window->open(path("r1.cfg"));
    auto *area = child<QWidget>("scrollWidget");
    QVERIFY(!contextMenuAt(area, {5, 5})); // between the plots
    const auto isRefused = [this] { return boxes->take().size() == 1 && !analog(); };
    for (int twice = 0; twice < 2; ++twice) {
        QVERIFY(choose(analog(), next));
        QVERIFY(QTest::qWaitFor(isRefused));
        QVERIFY(choose(area, next));
        QVERIFY(comesToShow("r3.cfg"));
        QVERIFY(choose(analog(), previous));
        QVERIFY(QTest::qWaitFor(isRefused));
        QVERIFY(choose(links().first(), previous, {2, 2}));
        QVERIFY(comesToShow("r1.cfg"));
    }
    QVERIFY(!recentRecordings().contains(bad));
}

// The recording before it stays on screen.
void TestOtherRecordings::pastAPackageThatCannotBeUnpacked()
{
    if (installedArchiver().isEmpty())
        QSKIP("no archiver is installed");
    preferApplicationFolder();
    goodRecording("r1");
    goodRecording("r3");
    QVERIFY(writeTextFile(path("r2.zip"), "no package"));
    const auto isRefused = [this] {
        const QList<BoxReader::Box> seen = boxes->take();
        return seen.size() == 1 && seen.first().details == path("r2.zip");
    };
    window->open(path("r1.cfg"));
    for (int twice = 0; twice < 2; ++twice) {
        QVERIFY(choose(analog(), next));
        QVERIFY(QTest::qWaitFor(isRefused));
        QCOMPARE(title(), QStringLiteral("r1.cfg"));
        QVERIFY(choose(analog(), next));
        QVERIFY(comesToShow("r3.cfg"));
        QVERIFY(choose(analog(), previous));
        QVERIFY(QTest::qWaitFor(isRefused));
        QVERIFY(choose(analog(), previous));
        QVERIFY(comesToShow("r1.cfg"));
    }
    QVERIFY(!recentRecordings().contains(path("r2.zip")));
}

void TestOtherRecordings::aChoiceThatFailsLeavesTheWalk_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::newRow("a recording that vanished") << "sub/r8.cfg";
    QTest::newRow("a package that vanished") << "sub/r8.zip";
    QTest::newRow("a package that cannot be unpacked") << "sub/r8.bad.zip";
}

// Of the latest, from another folder. What is on screen stays, and the next is the one beside that.
void TestOtherRecordings::aChoiceThatFailsLeavesTheWalk()
{
    QFETCH(QString, chosen);
    const bool vanishes = !chosen.contains(QLatin1String("bad"));
    if (!vanishes && installedArchiver().isEmpty())
        QSKIP("no archiver is installed");
    preferApplicationFolder();
    for (const char *name : {"r1", "r2", "r3"})
        goodRecording(name);
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
    goodRecording("sub/r7");
    goodRecording("sub/r9");
    for (int twice = 0; twice < 2; ++twice) {
        window->open(path("r2.cfg"));
        QVERIFY(writeTextFile(folder->filePath(chosen), "no package"));
        rememberRecording(folder->filePath(chosen));
        const QPointer<QMenu> menu = contextMenuAt(analog(), {300, 100});
        QTest::keyClick(menu, Qt::Key_R);
        if (vanishes) // while the menu is open
            QVERIFY(QFile::remove(folder->filePath(chosen)));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_1);
        QVERIFY(QTest::qWaitFor([this] { return boxes->take().size() == 1; }));
        QTest::qWait(20);
        QCOMPARE(title(), QStringLiteral("r2.cfg"));
        QVERIFY(offers(analog(), previous));
        QVERIFY(choose(analog(), next));
        QVERIFY(comesToShow("r3.cfg"));
        QVERIFY(!offers(analog(), next));
        QVERIFY(choose(analog(), previous));
        QVERIFY(comesToShow("r2.cfg"));
        QVERIFY(choose(analog(), previous));
        QVERIFY(comesToShow("r1.cfg"));
    }
}

void TestOtherRecordings::fromEveryPlot()
{
    goodRecording("a");
    goodRecording("b");
    window->open(path("a.cfg"));
    QVERIFY(choose(plotNamed(QStringLiteral("Digital")), next));
    QVERIFY(comesToShow("b.cfg"));
    window->addPlotter({QStringLiteral("IL1")});
    QVERIFY(choose(plotNamed(QStringLiteral("Graph 1")), previous));
    QVERIFY(comesToShow("a.cfg"));
    // Where the menu is that of a cursor, there is none of them.
    analog()->addCursorAt(10);
    const auto *label = analog()->findChild<QLabel *>(QStringLiteral("lineLabel"));
    QVERIFY(!offers(analog(), next, label->geometry().center()));
    QVERIFY(offers(analog(), next));
}

// What is unpacked lies in a folder that is nobody's business.
void TestOtherRecordings::aPackageStandsInItsOwnFolder()
{
    const QString archiver = installedArchiver();
    if (archiver.isEmpty())
        QSKIP("no archiver is installed");
    preferApplicationFolder();
    goodRecording("in");
    for (const char *name : {"a.zip", "b.zip"}) {
        QProcess packing;
        packing.start(archiver,
            {QStringLiteral("a"), QStringLiteral("-tzip"), path(name), path("in.cfg"),
                path("in.dat")});
        QVERIFY(packing.waitForFinished() && packing.exitCode() == 0);
    }
    QVERIFY(QFile::remove(path("in.cfg")));
    window->open(path("a.zip"));
    QVERIFY(window->recording());
    QCOMPARE(recentRecordings(), QStringList(path("a.zip")));
    QVERIFY(!offers(analog(), previous));
    QVERIFY(choose(analog(), next));
    QVERIFY(QTest::qWaitFor([&] { return recentRecordings().size() == 2; }));
    QCOMPARE(recentRecordings().constFirst(), path("b.zip"));
    QVERIFY(!offers(analog(), next));
}

void TestOtherRecordings::theLatestInTheMenu()
{
    for (const char *name : {"a", "b", "c"})
        window->open(goodRecording(name));
    const QStringList expected{
        QStringLiteral("&1 c.cfg"), QStringLiteral("&2 b.cfg"), QStringLiteral("&3 a.cfg")};
    QCOMPARE(latestInMenu(), expected);
    QCOMPARE(latestInMenu(), expected);
    window->open(path("a.cfg"));
    QCOMPARE(latestInMenu().constFirst(), QStringLiteral("&1 a.cfg"));
    QCOMPARE(latestInMenu().size(), 3);
    startAnew();
    window->open(goodRecording("d"));
    QCOMPARE(latestInMenu().size(), 4);
    for (int i = 0; i < 9; ++i)
        window->open(goodRecording(qPrintable(QStringLiteral("more%1").arg(i))));
    QCOMPARE(latestInMenu().size(), 10);
    QCOMPARE(latestInMenu().constLast(), QStringLiteral("&0 d.cfg"));
}

void TestOtherRecordings::theLatestByKeys()
{
    for (const char *name : {"a", "b", "c"})
        window->open(goodRecording(name));
    press({Qt::Key_R, Qt::Key_3});
    QVERIFY(comesToShow("a.cfg"));
    press({Qt::Key_R, Qt::Key_Down, Qt::Key_Return});
    QVERIFY(comesToShow("c.cfg"));
    press({Qt::Key_R, Qt::Key_1}); // the one on screen, read again
    QVERIFY(comesToShow("c.cfg"));
    QCOMPARE(latestInMenu(),
        QStringList(
            {QStringLiteral("&1 c.cfg"), QStringLiteral("&2 a.cfg"), QStringLiteral("&3 b.cfg")}));
}

void TestOtherRecordings::filesThatAreGone()
{
    for (const char *name : {"a", "b", "c"})
        window->open(goodRecording(name));
    QVERIFY(QFile::rename(path("b.cfg"), path("b.away")));
    QList<bool> enabled;
    QCOMPARE(latestInMenu(&enabled).size(), 3);
    QCOMPARE(enabled, QList<bool>({true, false, true}));
    press({Qt::Key_R, Qt::Key_2});
    QTest::qWait(20);
    QCOMPARE(title(), QStringLiteral("c.cfg"));
    delete QApplication::activePopupWidget();
    QVERIFY(QFile::rename(path("b.away"), path("b.cfg")));
    enabled.clear();
    latestInMenu(&enabled);
    QCOMPARE(enabled, QList<bool>({true, true, true}));
}

void TestOtherRecordings::namesAsTheyStand()
{
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("sub")));
#ifdef Q_OS_WIN
    const QString odd = QStringLiteral("R&D");
#else
    const QString odd = QStringLiteral("R&D <b>1");
#endif
    window->open(writeSmallRecording(folder->path(), odd));
    QCOMPARE(latestInMenu().constFirst(),
        QStringLiteral("&1 %1.cfg")
            .arg(QString(odd).replace(QLatin1Char('&'), QLatin1String("&&"))));
    window->open(writeSmallRecording(folder->path(), QString(90, QLatin1Char('W'))));
    const QString longName = latestInMenu().constFirst();
    QVERIFY2(longName.size() < 60 && longName.startsWith(QLatin1String("&1 WWW"))
            && longName.endsWith(QLatin1String(".cfg")) && longName.contains(QChar(0x2026)),
        qPrintable(longName));
    // Two of one name tell their folders.
    window->open(goodRecording("same"));
    window->open(
        writeSmallRecording(folder->filePath(QStringLiteral("sub")), QStringLiteral("same")));
    QCOMPARE(latestInMenu().at(0), QStringLiteral("&1 same.cfg (sub)"));
    QCOMPARE(latestInMenu().at(1),
        QStringLiteral("&2 same.cfg (%1)").arg(QFileInfo(folder->path()).fileName()));

    QMenu *menu = contextMenuAt(analog(), {300, 100});
    QMenu *latest = entryOf(menu, recent)->menu();
    QMetaObject::invokeMethod(latest, "aboutToShow");
    QVERIFY(latest->toolTipsVisible());
    const auto tip = [&](int i) { return latest->actions().at(i)->toolTip(); };
    QCOMPARE(tip(1), QDir::toNativeSeparators(path("same.cfg")));
    QVERIFY(tip(2).contains(QString(90, QLatin1Char('W'))));
    QCOMPARE(tip(3).contains(QLatin1String("&lt;b&gt;")), odd.contains(QLatin1Char('<')));
    delete menu;
}

// Of several asked for while one loads, the last is opened.
void TestOtherRecordings::manyChoicesAtOnce()
{
    for (const char *name : {"a", "b", "c"})
        window->open(goodRecording(name));
    window->open(path("b.cfg"));
    for (int i = 0; i < 5; ++i) {
        QVERIFY(choose(analog(), i % 2 == 0 ? next : previous));
        press({Qt::Key_R, Qt::Key_1});
    }
    QVERIFY(comesToShow("b.cfg"));
    QTest::qWait(50);
    QCOMPARE(title(), QStringLiteral("b.cfg"));
    QCOMPARE(boxes->count(), 0);
}

void TestOtherRecordings::nothingInAnEmptyAreaAtFirst()
{
    QVERIFY(recentList()->isHidden());
    QVERIFY(links().isEmpty());
    window->open(badRecording());
    QVERIFY(recentList()->isHidden());
}

void TestOtherRecordings::theLatestInTheEmptyArea()
{
    for (const char *name : {"a", "b", "c"})
        window->open(goodRecording(name));
    QVERIFY(recentList()->isHidden());
    QVERIFY(QFile::remove(path("b.cfg")));
    const auto link = [&](const char *name) -> QPushButton * {
        for (QPushButton *each : links()) {
            if (each->text().endsWith(QLatin1String(name)))
                return each;
        }
        return nullptr;
    };
    for (const char *name : {"a.cfg", "c.cfg", "a.cfg"}) {
        window->open(badRecording());
        QVERIFY(recentList()->isVisible());
        QCOMPARE(links().size(), 3);
        for (const QPushButton *each : links()) {
            QVERIFY(each->isVisible());
            QCOMPARE(each->isEnabled(), each != link("b.cfg"));
            QCOMPARE(each->toolTip(), each->accessibleName());
        }
        QTest::mouseClick(link("b.cfg"), Qt::LeftButton);
        QTest::qWait(20);
        QVERIFY(!analog());
        QTest::mouseClick(link(name), Qt::LeftButton);
        QVERIFY(comesToShow(name));
        QVERIFY(recentList()->isHidden());
    }
    startAnew();
    QVERIFY(recentList()->isVisible());
    QCOMPARE(links().size(), 3);
    window->hide();
    window->show();
    QVERIFY(recentList()->isVisible());
}

void TestOtherRecordings::anEmptyAreaByKeys()
{
    for (const char *name : {"a", "b", "c"})
        window->open(goodRecording(name));
    startAnew();
    QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("listWidget"));
    for (int i = 0; i < 30 && window->focusWidget() != links().at(0); ++i)
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    QCOMPARE(window->focusWidget(), links().at(0));
    QTest::keyClick(links().at(0), Qt::Key_Down);
    QCOMPARE(window->focusWidget(), links().at(1));
    QTest::keyClick(links().at(1), Qt::Key_Tab);
    QCOMPARE(window->focusWidget(), links().at(2));
    QTest::keyClick(links().at(2), Qt::Key_Up);
    QTest::keyClick(links().at(1), Qt::Key_Return);
    QVERIFY(comesToShow("b.cfg"));
    QCOMPARE(window->focusWidget(), analog());
    window->open(badRecording());
    links().at(2)->setFocus();
    QTest::keyClick(links().at(2), Qt::Key_Space);
    QVERIFY(comesToShow("a.cfg"));
}

// Text and list stand apart and inside, or the list ends where there is no more room.
void TestOtherRecordings::anEmptyAreaOfAnySize()
{
    for (int i = 0; i < 10; ++i)
        window->open(writeSmallRecording(folder->path(),
            QStringLiteral("%1").arg(i) + QString(i == 5 ? 200 : 3, QLatin1Char('x'))));
    startAnew();
    const auto *hint = child<QLabel>("openHint");
    for (const QSize &size : {QSize(1000, 653), QSize(1600, 1000), QSize(1000, 700)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        const QRect area = child<QScrollArea>("scrollArea")->viewport()->rect();
        QVERIFY(area.contains(recentList()->geometry()));
        QVERIFY(recentList()->y() >= hint->contentsRect().center().y());
        int bottom = 0;
        for (const QPushButton *link : links()) {
            QVERIFY(link->isVisible());
            QVERIFY(link->y() >= bottom);
            bottom = link->geometry().bottom();
            QVERIFY(recentList()->rect().contains(link->geometry()));
            QVERIFY(link->fontMetrics().horizontalAdvance(link->text()) <= link->width());
        }
    }
    child<QScrollArea>("scrollArea")->setFixedHeight(150);
    QCoreApplication::processEvents();
    int seen = 0;
    for (const QPushButton *link : links())
        seen += link->isVisible() ? 1 : 0;
    QVERIFY2(seen > 0 && seen < 10, qPrintable(QString::number(seen)));
}

void TestOtherRecordings::anEmptyAreaInEachLanguage()
{
    window->open(goodRecording());
    startAnew();
    const auto *title = recentList()->findChild<QLabel *>();
    for (const char *text : {"Suomi|Viimeksi avatut tallenteet:", "中文|最近打开的录波：",
             "English|Recent recordings:"}) {
        const QStringList parts = QString::fromUtf8(text).split(QLatin1Char('|'));
        for (QAction *each : window->findChildren<QAction *>()) {
            if (each->text() == parts.at(0))
                each->trigger();
        }
        QCoreApplication::processEvents();
        QCOMPARE(title->text(), parts.at(1));
        QVERIFY(title->width() >= title->sizeHint().width());
    }
}

void TestOtherRecordings::whatIsNotShownIsNotRemembered()
{
    window->open(badRecording());
    window->open(path("none.cfg"));
    QFile other(path("some.pdf"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    window->open(other.fileName());
    QVERIFY(recentRecordings().isEmpty());
    window->open(goodRecording());
    window->open(path("none.cfg")); // the other stays on screen
    QCOMPARE(recentRecordings(), QStringList(goodRecording()));
    goodRecording("next");
    QVERIFY(choose(analog(), next));
    QVERIFY(comesToShow("next.cfg"));
}

QTEST_MAIN(TestOtherRecordings)
#include "tst_otherrecordings.moc"
