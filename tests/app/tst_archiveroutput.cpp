// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "archiveroutput.h"

#include <QElapsedTimer>
#include <QtTest>

class TestArchiverOutput : public QObject {
    Q_OBJECT

private slots:
    void reactsToWords_data();
    void reactsToWords();
    void wordsMayComeInPieces_data();
    void wordsMayComeInPieces();
    void everyReadingIsAnswered();
    void errorIsReportedOnce();
    void nextPackageHasItsOwnErrors();
    void longOutputWithoutWordsIsQuiet();
    void manyErrorsInOneReadingTakeNoTime();
};

namespace {

constexpr char always[] = "A\r\n";
constexpr char emptyLine[] = "\n";

// The answers to an output that comes in these pieces, in a row.
QByteArray answers(ArchiverOutput &output, const QList<QByteArray> &pieces, int *errors = nullptr)
{
    QByteArray written;
    for (const QByteArray &piece : pieces) {
        const ArchiverOutput::Reaction reaction = output.read(piece);
        written += reaction.answer;
        if (errors && reaction.error)
            ++*errors;
    }
    return written;
}

} // namespace

void TestArchiverOutput::reactsToWords_data()
{
    QTest::addColumn<QString>("package");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("error");
    const QString device = QStringLiteral("/rec/device.zip");
    const QString ill = QStringLiteral("/rec/Error Overwrite/my password error.zip");
    const QByteArray none;

    QTest::newRow("nothing") << device << none << none << false;
    QTest::newRow("a good package is silent")
        << device << QByteArray("Path = /rec/device.zip\nType = zip\nEverything is Ok\n") << none
        << false;
    QTest::newRow("an overwrite question is answered with always")
        << device << QByteArray("Overwrite a.cfg? (Y)es / (A)lways?") << QByteArray(always)
        << false;
    QTest::newRow("the question's word in lower case is no question")
        << device << QByteArray("overwrite mode") << none << false;
    QTest::newRow("two questions in one output get one answer")
        << device << QByteArray("Overwrite? Overwrite?") << QByteArray(always) << false;
    QTest::newRow("a password question is answered with an empty line")
        << device << QByteArray("\nEnter password (will not be echoed):") << QByteArray(emptyLine)
        << false;
    QTest::newRow("both questions in one output get both answers")
        << device << QByteArray("Enter password: Overwrite?") << QByteArray("A\r\n\n") << false;
    QTest::newRow("error") << device << QByteArray("CRC error in a.dat\n") << none << true;
    QTest::newRow("Error") << device << QByteArray("Error: no archiver is installed\n") << none
                           << true;
    QTest::newRow("ERROR") << device << QByteArray("ERROR: Data Error : a.dat\n") << none << true;
    QTest::newRow("Errors as part of a longer word")
        << device << QByteArray("Archives with Errors: 1\n") << none << true;
    QTest::newRow("mixed capitals are no error")
        << device << QByteArray("eRROR ErRoR\n") << none << false;
    QTest::newRow("a question and an error in one output")
        << device << QByteArray("Overwrite a.cfg?\nError\n") << QByteArray(always) << true;
    QTest::newRow("a word after a zero byte and letters beyond ASCII") << device
                                                                       << QByteArray("\0\xff\xe4"
                                                                                     "error\0",
                                                                              9)
                                                                       << none << true;

    QTest::newRow("words in the package's own path do not count")
        << ill << "Path = " + ill.toUtf8() + "\nEverything is Ok\n"
        << none << false;
    QTest::newRow("the path may be repeated")
        << ill << ill.toUtf8() + ill.toUtf8() << none << false;
    QTest::newRow("an error beside the package's own path counts")
        << ill << "ERROR: " + ill.toUtf8() << none << true;
    QTest::newRow("an error after the package's own path counts")
        << ill << ill.toUtf8() + " : error" << none << true;
    QTest::newRow("a path that only begins alike counts")
        << ill << QByteArray("/rec/Error Overwrite/my other.zip") << QByteArray(always) << true;
    QTest::newRow("a path with letters beyond ASCII does not count")
        << QStringLiteral("/h\u00e4iri\u00f6/\u6545\u969c error.zip")
        << QByteArray("Path = /h\xc3\xa4iri\xc3\xb6/\xe6\x95\x85\xe9\x9a\x9c error.zip\n") << none
        << false;
    const QString foreign = QStringLiteral("C:\\error \u00e4\u00c5\\\u6545\u969c error.zip");
    QTest::newRow("a path in the code page of a console, other letters as underscores")
        << foreign << QByteArray("Path = C:\\error \x84\x8f\\__ error.zip\n") << none << false;
    QTest::newRow("a path in a Chinese code page, other letters by their likes")
        << foreign << QByteArray("Path = C:\\error aA\\\xb9\xca\xd5\xcf error.zip\n") << none
        << false;
    QTest::newRow("an error beside a path in a code page counts")
        << foreign << QByteArray("ERROR: C:\\error \x84\x8f\\__ error.zip\n") << none << true;
    QTest::newRow("a path with more letters than the package's counts")
        << foreign << QByteArray("C:\\error 1234567\\__ error.zip\n") << none << true;
    QTest::newRow("a path with signs of patterns is taken as it stands")
        << QStringLiteral("/rec/(error)+[1].zip") << QByteArray("Path = /rec/(error)+[1].zip\n")
        << none << false;
    QTest::newRow("signs of patterns match themselves alone")
        << QStringLiteral("/rec/.*.zip") << QByteArray("/rec/error.zip") << none << true;
    QTest::newRow("without a path every word counts")
        << QString() << QByteArray("error") << none << true;
}

void TestArchiverOutput::reactsToWords()
{
    QFETCH(QString, package);
    QFETCH(QByteArray, output);
    ArchiverOutput watched(package);
    const ArchiverOutput::Reaction reaction = watched.read(output);
    QTEST(reaction.answer, "answer");
    QTEST(reaction.error, "error");
}

void TestArchiverOutput::wordsMayComeInPieces_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("errors");
    QTest::newRow("an overwrite question")
        << QByteArray("a.cfg: Overwrite (A)lways?") << QByteArray(always) << 0;
    QTest::newRow("a password question")
        << QByteArray("Enter password:") << QByteArray(emptyLine) << 0;
    QTest::newRow("error") << QByteArray("CRC error\n") << QByteArray() << 1;
    QTest::newRow("Error") << QByteArray("Data Error\n") << QByteArray() << 1;
    QTest::newRow("ERROR") << QByteArray("ERROR: x\n") << QByteArray() << 1;
    QTest::newRow("a word after its own beginning") << QByteArray("eerror\n") << QByteArray() << 1;
    QTest::newRow("the package's path")
        << QByteArray("Path = /rec/Error error.zip\nOk\n") << QByteArray() << 0;
    QTest::newRow("the package's path, then an error")
        << QByteArray("/rec/Error error.zip: error\n") << QByteArray() << 1;
    QTest::newRow("the beginning of the package's path, then something else")
        << QByteArray("/rec/Error other\n") << QByteArray() << 1;
}

// In two pieces, cut at every place, and byte by byte.
void TestArchiverOutput::wordsMayComeInPieces()
{
    QFETCH(QByteArray, output);
    QFETCH(QByteArray, answer);
    QFETCH(int, errors);
    const QString package = QStringLiteral("/rec/Error error.zip");
    for (int cut = 0; cut <= output.size(); ++cut) {
        ArchiverOutput watched(package);
        int seen = 0;
        QCOMPARE(answers(watched, {output.left(cut), output.mid(cut)}, &seen), answer);
        QCOMPARE(seen, errors);
    }
    QList<QByteArray> bytes;
    for (const char byte : qAsConst(output))
        bytes << QByteArray(1, byte);
    ArchiverOutput watched(package);
    int seen = 0;
    QCOMPARE(answers(watched, bytes, &seen), answer);
    QCOMPARE(seen, errors);
}

void TestArchiverOutput::everyReadingIsAnswered()
{
    ArchiverOutput watched(QStringLiteral("/rec/device.zip"));
    QCOMPARE(answers(watched, {"Overwrite?", "a.cfg", "Overwrite?"}), QByteArray("A\r\nA\r\n"));
}

void TestArchiverOutput::errorIsReportedOnce()
{
    ArchiverOutput watched(QStringLiteral("/rec/device.zip"));
    QVERIFY(watched.read("Error error\n").error);
    QVERIFY(!watched.read("ERROR\n").error);
    const ArchiverOutput::Reaction later = watched.read("Overwrite? error\n");
    QVERIFY(!later.error);
    QCOMPARE(later.answer, QByteArray(always)); // questions are still answered
}

void TestArchiverOutput::nextPackageHasItsOwnErrors()
{
    const QString package = QStringLiteral("/rec/device.zip");
    ArchiverOutput first(package);
    QVERIFY(first.read("error").error);
    ArchiverOutput second(package);
    QVERIFY(second.read("error").error);
}

void TestArchiverOutput::longOutputWithoutWordsIsQuiet()
{
    ArchiverOutput watched(QStringLiteral("/rec/device.zip"));
    const QByteArray block(1 << 20, 'E'); // every byte may be the beginning of a word
    for (int i = 0; i < 8; ++i) {
        const ArchiverOutput::Reaction reaction = watched.read(block);
        QVERIFY(reaction.answer.isEmpty() && !reaction.error);
    }
    QVERIFY(watched.read("rror").error);
}

// A damaged package of some megabytes makes the archiver tell of each file in it. Going over the
// whole output for each of them would take minutes.
void TestArchiverOutput::manyErrorsInOneReadingTakeNoTime()
{
    ArchiverOutput watched(QStringLiteral("/rec/device.zip"));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(watched.read(QByteArray("ERROR: Data Error : file\n").repeated(100000)).error);
    QVERIFY(timer.elapsed() < 20000);
}

QTEST_GUILESS_MAIN(TestArchiverOutput)
#include "tst_archiveroutput.moc"
