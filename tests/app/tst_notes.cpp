// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "notesdialog.h"
#include "plotmenus.h"
#include "plotswindow.h"
#include "samplebudget.h"

#include <QClipboard>
#include <QLabel>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>

// Of three lines of a channel Ia, recorded by the revision of 2013, the second has a mark of a
// missing value; the recording has two notes.
class TestNotes : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void nothingIsShownWithoutNotes();
    void theSignTellsHowMany();
    void theSignLeavesTheBarAsItIs();
    void theSignOpensTheWindow();
    void theSignByTheKeys();
    void theMenuOpensTheWindow();
    void notesFollowTheRecording();
    void notesAreGoneWithAFailedLoad();
    void aWindowThatWasClosedKeepsNothing();
    void inTheLanguageOfTheWindow();
    void theTableIsCopied();
    void lettersAreOffered();
    void textsOfNotes_data();
    void textsOfNotes();

private:
    QToolButton *sign() const { return child<QToolButton>("noteSign"); }
    NotesDialog *notes() const { return window->findChild<NotesDialog *>(); }
    QTableView *table() const { return notes()->findChild<QTableView *>(); }
    int rows() const { return table()->model()->rowCount(); }
    QString cell(int row, int column) const
    {
        return table()->model()->index(row, column).data().toString();
    }
    void openText(const ConfigurationText &text, const QByteArray &data)
    {
        window->open(writePair(folder->path() + QStringLiteral("/noted"), text.text(), data));
        QVERIFY(window->recording());
    }
    void openNoted()
    {
        ConfigurationText text;
        text.station = "Harju,J07,2013";
        text.addAnalog("Ia,A,line,A,1,0,0,-99,99,400,5,P");
        text.rates = QByteArrayList{"1000,3"};
        openText(text, "1,0,5\n2,1000,99999\n3,2000,7\n");
    }
    void openPlain() { open({QStringLiteral("Ia")}, {QStringLiteral("Trip")}); }
    void openFailing()
    {
        QVERIFY(writeTextFile(path("bad.cfg"), "x"));
        const BoxReader boxes;
        window->open(path("bad.cfg"));
    }
    void chooseLanguage(const char *name)
    {
        for (QAction *entry : window->findChildren<QAction *>()) {
            if (entry->text() == QString::fromUtf8(name))
                entry->trigger();
        }
        QCoreApplication::processEvents();
    }
    void click() { QTest::mouseClick(sign(), Qt::LeftButton); }
};

void TestNotes::nothingIsShownWithoutNotes()
{
    QVERIFY(sign()->isHidden());
    openPlain();
    QVERIFY(sign()->isHidden());
    QVERIFY(!offers(analog(), QStringLiteral("Notes...")));
    QVERIFY(!notes());
}

void TestNotes::theSignTellsHowMany()
{
    openNoted();
    QVERIFY(sign()->isVisible());
    QCOMPARE(sign()->text(), QStringLiteral("Notes: 2"));
    QCOMPARE(sign()->toolTip(),
        QStringLiteral("What was noticed while the recording was read. Notes: 2"));
    QCOMPARE(sign()->accessibleName(), sign()->toolTip());
    QVERIFY(!notes()); // nothing comes up by itself
    QVERIFY(!QApplication::activeModalWidget());
}

void TestNotes::theSignLeavesTheBarAsItIs()
{
    const int height = window->statusBar()->height();
    openPlain();
    QCoreApplication::processEvents();
    QCOMPARE(window->statusBar()->height(), height);
    openNoted();
    QCoreApplication::processEvents();
    QCOMPARE(window->statusBar()->height(), height);
    QVERIFY(sign()->height() <= height);
    QVERIFY(sign()->width() >= sign()->fontMetrics().horizontalAdvance(sign()->text()));
    // A message has a quarter of the bar but for the sign.
    QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
    const auto *field = child<QLabel>("statusField");
    QVERIFY(field->x() > window->fontMetrics().horizontalAdvance(QStringLiteral("File loaded")));
    QVERIFY(sign()->x() >= field->x() + field->width());
    window->resize(700, 600);
    QCoreApplication::processEvents();
    QVERIFY(field->x() > window->fontMetrics().horizontalAdvance(QStringLiteral("File loaded")));
    QVERIFY(sign()->geometry().right() < window->statusBar()->width());
}

void TestNotes::theSignOpensTheWindow()
{
    openNoted();
    for (int time = 0; time < 2; ++time) {
        click();
        QVERIFY(QTest::qWaitForWindowExposed(notes()));
        QVERIFY(!notes()->isModal());
        QCOMPARE(table()->accessibleName(), QStringLiteral("Notes"));
        QCOMPARE(rows(), 2);
        QCOMPARE(cell(0, 0),
            QStringLiteral("Written by the revision of 2013, read by the rules of 1999"));
        QCOMPARE(cell(0, 1), QStringLiteral("Configuration"));
        QCOMPARE(cell(0, 2), QStringLiteral("1"));
        QCOMPARE(cell(0, 3), QString());
        QCOMPARE(cell(1, 0), QStringLiteral("Ia: marks of missing values, read as numbers"));
        QCOMPARE(cell(1, 1), QStringLiteral("Data"));
        QCOMPARE(cell(1, 2), QStringLiteral("2"));
        QCOMPARE(cell(1, 3), QStringLiteral("1"));
        notes()->close();
    }
    QCOMPARE(window->findChildren<NotesDialog *>().size(), 1);
}

void TestNotes::theSignByTheKeys()
{
    openNoted();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    for (int step = 0; step < 100 && !sign()->hasFocus(); ++step)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(sign()->hasFocus());
    QTest::keyClick(sign(), Qt::Key_Space);
    QVERIFY(QTest::qWaitForWindowExposed(notes()));
    QCOMPARE(rows(), 2);
}

void TestNotes::theMenuOpensTheWindow()
{
    openNoted();
    QVERIFY(choose(analog(), QStringLiteral("Notes...")));
    QVERIFY(QTest::qWaitForWindowExposed(notes()));
    QCOMPARE(rows(), 2);
}

void TestNotes::notesFollowTheRecording()
{
    openNoted();
    click();
    for (int time = 0; time < 2; ++time) {
        openPlain();
        QVERIFY(sign()->isHidden());
        QVERIFY(notes()->isVisible());
        QCOMPARE(rows(), 0);
        openNoted();
        QVERIFY(sign()->isVisible());
        QCOMPARE(rows(), 2);
    }
    openNoted();
    QCOMPARE(rows(), 2);
}

void TestNotes::notesAreGoneWithAFailedLoad()
{
    openNoted();
    click();
    openFailing();
    QVERIFY(sign()->isHidden());
    QCOMPARE(rows(), 0);
    openNoted();
    QVERIFY(sign()->isVisible());
    QCOMPARE(rows(), 2);
}

void TestNotes::aWindowThatWasClosedKeepsNothing()
{
    openNoted();
    click();
    notes()->close();
    openNoted();
    QCOMPARE(rows(), 0);
    click();
    QCOMPARE(rows(), 2);
}

void TestNotes::inTheLanguageOfTheWindow()
{
    openNoted();
    click();
    chooseLanguage("Suomi");
    QCOMPARE(sign()->text(), QStringLiteral("Huomautuksia: 2"));
    QCOMPARE(notes()->windowTitle(), QStringLiteral("Huomautukset tallenteesta"));
    QCOMPARE(cell(1, 1), QStringLiteral("Datatiedosto"));
    QCOMPARE(cell(0, 1), QStringLiteral("Määrittelytiedosto"));
    QCOMPARE(table()->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Rivi"));
    chooseLanguage("中文");
    QCOMPARE(sign()->text(), QStringLiteral("备注：2"));
    QCOMPARE(cell(0, 1), QStringLiteral("配置"));
    chooseLanguage("English");
    QCOMPARE(sign()->text(), QStringLiteral("Notes: 2"));
    QCOMPARE(cell(0, 1), QStringLiteral("Configuration"));
}

void TestNotes::theTableIsCopied()
{
    openNoted();
    click();
    QTest::mouseClick(
        notes()->findChild<QPushButton *>(QStringLiteral("pushButton_copy")), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(),
        QStringLiteral("Note\tFile\tLine\tHow Many\n"
                       "Written by the revision of 2013, read by the rules of 1999\tConfiguration"
                       "\t1\t\n"
                       "Ia: marks of missing values, read as numbers\t"
                       "Data\t2\t1\n"));
}

void TestNotes::lettersAreOffered()
{
    ConfigurationText text;
    text.station = QByteArray::fromHex("cfd3d1ca") + ",J07,1999"; // ПУСК
    text.addAnalog("Ia,A,line,A,1,0,0,-99,99,400,5,P");
    text.rates = QByteArrayList{"1000,1"};
    openText(text, "1,0,5\n");
    click();
    QCOMPARE(rows(), 1);
    const QString english = QStringLiteral(
        "The names seem to be in Windows-1251; see Names As in the menu of the plots");
    QCOMPARE(cell(0, 0), english);
    QCOMPARE(cell(0, 1), QStringLiteral("Configuration"));
    QCOMPARE(cell(0, 2), QStringLiteral("1"));
    QCOMPARE(cell(0, 3), QStringLiteral("1"));
    chooseLanguage("Suomi");
    QCOMPARE(cell(0, 0),
        QStringLiteral(
            "Nimien merkistö näyttää olevan Windows-1251; valitse se kuvaajien valikosta"));
    chooseLanguage("中文");
    QCOMPARE(
        cell(0, 0), QStringLiteral("名称似乎采用 Windows-1251 编码；请用曲线图菜单中的“名称编码”"));
    chooseLanguage("English");
    QCOMPARE(cell(0, 0), english);
}

void TestNotes::textsOfNotes_data()
{
    QTest::addColumn<QByteArray>("counts");
    QTest::addColumn<QByteArrayList>("rates");
    QTest::addColumn<QByteArrayList>("stamps"); // of start and trigger
    QTest::addColumn<QByteArray>("fileType");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QStringList>("texts"); // "what, file, line, how many" of each note
    const auto row = [](const char *name, const QByteArray &data, const QStringList &texts,
                         const QByteArrayList &rates = {"1000,3"},
                         const QByteArray &trigger = "15/03/2024,10:00:00.001000",
                         const QByteArray &fileType = "ASCII", const QByteArray &counts = {}) {
        QTest::newRow(name) << counts << rates
                            << QByteArrayList{"15/03/2024,10:00:00.000000", trigger} << fileType
                            << data << texts;
    };
    const auto text
        = [](const char *texts) { return QString::fromUtf8(texts).split(QLatin1Char('|')); };
    const QByteArray whole = "1,0,5\n2,1000,6\n3,2000,7\n";
    row("rates", whole,
        text("Several lines of sampling rates; the last one, 500.5 Hz, is taken for all; "
             "Configuration; 7; "
             "2"),
        {"1000,2", "500.5,3"});
    row("no rates", whole,
        text("No sampling rates announced; where a rate line follows, it is read as the start; "
             "Configuration; 5; "),
        {});
    row("days", whole,
        text("Start and trigger lie on two days; the trigger is placed by time of day alone; "
             "Configuration; 8; "),
        {"1000,3"}, "16/03/2024,10:00:00.001000");
    row("type", whole, text("Data of type BINARY, read as ASCII; Configuration; 9; "), {"1000,3"},
        "15/03/2024,10:00:00.001000", "BINARY");
    // Of three channels, the rates stand two lines further on, and each sample has two states.
    row("counts", "1,0,5,0,1\n2,1000,6,0,1\n3,2000,7,0,1\n",
        text("The total of 3 channels is not the sum of analog and digital ones, 1; "
             "Configuration; 2; "),
        {"1000,3\n1000,3\n1000,3"}, "15/03/2024,10:00:00.001000", "ASCII", "3,1A,0D");
    row("a line too long", "1,0,5\n2,1000,6\n3,2000," + QByteArray(mostLineBytes, '7') + '\n',
        text("Too long a line, or too many samples for the file: not read from here on; "
             "Data; 3; |"
             "Fewer samples than the last rate line promises: 2 of 3; Configuration; 6; "));
    row("fewer and ended", "1,0,5\n2,1000,6\n\n3,2000,7\n",
        text("A blank or short line ended the reading before the end of the file; Data; 3; |"
             "Fewer samples than the last rate line promises: 2 of 3; Configuration; 6; "));
    row("more", whole + "4,3000,8\n",
        text("More samples than the last rate line promises: 4 instead of 3; Configuration; 6; "));
    row("fields too few", "1,0,5\n2,1000\n3,2000\n",
        text("Too few or too many fields; in the first such line 1 too few; Data; 2; 2"));
    row("fields too many", "1,0,5\n2,1000,6,7,8\n3,2000,7\n",
        text("Too few or too many fields; in the first such line 2 too many; Data; 2; 1"));
    row("equal times", "1,1500,5\n2,1500,6\n3,1500,7\n",
        text("All time stamps are the same: 1.500 ms; Data; 1; 3"));
    row("jump and step back", "1,0,5\n2,900000,6\n3,800,7\n4,1600,8\n",
        text("Time steps back by 899.200 ms, at most by 899.200 ms; Data; 3; 1"), {"1000,4"});
    row("jumps", "1,0,5\n2,1000,6\n3,11000,7\n4,12000,8\n5,52000,8\n6,53000,8\n",
        text("Time jumps ahead by 10.000 ms, at most by 40.000 ms; Data; 3; 2"), {"1000,6"});
}

void TestNotes::textsOfNotes()
{
    QFETCH(QByteArray, counts);
    QFETCH(QByteArrayList, rates);
    QFETCH(QByteArrayList, stamps);
    QFETCH(QByteArray, fileType);
    QFETCH(QByteArray, data);
    QFETCH(QStringList, texts);
    ConfigurationText text;
    text.addAnalog("Ia,A,line,A,1,0,0,-99,99,400,5,P");
    text.counts = counts;
    text.rates = rates;
    text.start = stamps.at(0);
    text.trigger = stamps.at(1);
    text.fileType = fileType;
    openText(text, data);
    click();
    QStringList shown;
    for (int row = 0; row < rows(); ++row)
        shown.append(QStringList({cell(row, 0), cell(row, 1), cell(row, 2), cell(row, 3)})
                         .join(QStringLiteral("; ")));
    QCOMPARE(shown, texts);
}

QTEST_MAIN(TestNotes)
#include "tst_notes.moc"
