// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "converterrun.h"
#include "publishedforms.h"

#include <QRegularExpression>
#include <QtTest>

#include <memory>

namespace {

using Form = PublishedRecording::Form;

PublishedRecording recording()
{
    PublishedRecording made;
    made.rates = QByteArrayList{"1000,4"};
    made.samples = {{0, {10}, "0"}, {1000, {20}, "1"}, {2000, {30}, "1"}, {3000, {40}, "0"}};
    return made;
}

const QByteArray whole = "1,0,10,0\r\n2,1000,20,1\r\n3,2000,30,1\r\n4,3000,40,0\r\n";

} // namespace

// The converter as a program: its arguments, its files, and what is in their way.
class TestConverterProgram : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ConverterFolder> m_folder;

    void writePair(const char *name, const PublishedRecording &made = recording()) const
    {
        const Form form{1999, "BINARY"};
        QVERIFY(m_folder->write((QByteArray(name) + ".cfg").constData(), made.configuration(form)));
        QVERIFY(m_folder->write((QByteArray(name) + ".dat").constData(), made.data(form)));
    }

private slots:
    void init() { m_folder = std::make_unique<ConverterFolder>(); }

    void wrongUsage_data();
    void wrongUsage();
    void helpAndVersion();
    void optionsMayStandAnywhere_data();
    void optionsMayStandAnywhere();
    void placesOfOutputs_data();
    void placesOfOutputs();
    void dataFileInOtherLetters();
    void parts_data();
    void parts();
    void bordersOfAPart_data();
    void bordersOfAPart();
    void partWithoutSamples();
    void partOfATableKeepsItsTimes();
    void sidesOfTheTransformers_data();
    void sidesOfTheTransformers();
    void sideOfARecordingWithoutRatios_data();
    void sideOfARecordingWithoutRatios();
    void sideThatIsBeyondAllNumbers_data();
    void sideThatIsBeyondAllNumbers();
    void encodings_data();
    void encodings();
    void textsOfAnotherEncoding();
    void namesOfColumns();
    void inputIsNeverReplaced_data();
    void inputIsNeverReplaced();
    void inputInOtherLettersIsNeverReplaced();
    void otherOutputOfTheSameRunIsNotReplaced();
    void existingFilesNeedForce();
    void batchGoesOnAfterAFault();
    void highestStatusCounts_data();
    void highestStatusCounts();
    void dataFileThatIsNotThere();
    void patternIsResolved();
};

void TestConverterProgram::wrongUsage_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *words, const char *message) {
        QTest::newRow(name) << QString::fromLatin1(words) << QByteArray(message);
    };
    row("nothing", "", "there is no input");
    row("options alone", "--csv --force", "there is no input");
    row("unknown option", "--colour @a.cfg", "there is no option --colour");
    row("unknown letter", "-x @a.cfg", "there is no option -x");
    row("option without its value", "@a.cfg -o", "-o takes a value");
    row("empty value", "--encoding= @a.cfg", "--encoding takes a value");
    row("value of a switch", "--csv=1 @a.cfg", "--csv takes no value");
    row("time that is no number", "--from now @a.cfg", "--from takes a number of milliseconds");
    row("time that is not finite", "--to inf @a.cfg", "--to takes a number of milliseconds");
    row("end before the beginning", "--from 2 --to 1 @a.cfg", "--from is after --to");
    row("both sides", "--primary --secondary @a.cfg",
        "--primary and --secondary exclude each other");
    row("unknown encoding", "--encoding Klingon @a.cfg", "--encoding does not know Klingon");
    row("encoding of two bytes", "--encoding UTF-16 @a.cfg", "--encoding does not know UTF-16");
    row("two inputs, one output file", "@a.cfg @b.cfg -o @out",
        "several inputs need a folder behind -o that exists");
    row("pattern of nothing", "@*.cff", "no file is named like *.cff");
}

void TestConverterProgram::wrongUsage()
{
    QFETCH(QString, words);
    QFETCH(QByteArray, message);
    writePair("a");
    writePair("b");
    const auto outcome = m_folder->run(words);
    QCOMPARE(outcome.errors, "wavorin-convert: " + message + "; see --help\n");
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(outcome.status, 2);
    QCOMPARE(m_folder->names().size(), 4);
}

void TestConverterProgram::helpAndVersion()
{
    const auto help = m_folder->run(QStringLiteral("--help"));
    QCOMPARE(help.status, 0);
    for (const char *option : {"-o FILE-OR-FOLDER", "--csv", "--primary", "--secondary",
             "--from MS", "--to MS", "--encoding NAME", "--force", "--help", "--version"})
        QVERIFY2(help.output.contains("\n  " + QByteArray(option) + ' '), option);
    const auto version = m_folder->run(QStringLiteral("nosuch.cfg --version"));
    QCOMPARE(version.status, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^wavorin-convert \\d+\\.\\d+\\.\\d+\n$"))
                .match(QString::fromLatin1(version.output))
                .hasMatch());
}

void TestConverterProgram::optionsMayStandAnywhere_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("before") << QStringLiteral("--from 1 --to 2 -o @out @a.cfg");
    QTest::newRow("behind") << QStringLiteral("@a.cfg --from 1 --to 2 -o @out");
    QTest::newRow("with equals signs") << QStringLiteral("--to=2 @a.cfg --from=1 -o @out");
    QTest::newRow("behind the end of options")
        << QStringLiteral("--from 1 --to 2 -o @out -- @a.cfg");
}

void TestConverterProgram::optionsMayStandAnywhere()
{
    QFETCH(QString, words);
    writePair("a");
    QCOMPARE(m_folder->run(words).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,20,1\r\n2,1000,30,1\r\n"));
}

void TestConverterProgram::placesOfOutputs_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("made");
    const auto row = [](const char *name, const char *words, const char *made) {
        QTest::newRow(name) << QString::fromLatin1(words)
                            << QString::fromLatin1(made).split(QLatin1Char(' '));
    };
    row("pair beside a single file", "@s.cff", "s.cfg s.dat");
    row("table beside its input", "--csv @a.cfg", "a.csv");
    row("pair in a folder", "@a.cfg -o @sub", "sub/a.cfg sub/a.dat");
    row("pair in a folder with a slash", "@a.cfg -o @sub/", "sub/a.cfg sub/a.dat");
    row("table in a folder", "--csv @a.cfg -o @sub", "sub/a.csv");
    row("pair by its name", "@a.cfg -o @out", "out.cfg out.dat");
    row("pair by its configuration", "@a.cfg -o @out.cfg", "out.cfg out.dat");
    row("pair by a name with a point", "@a.cfg -o @out.1", "out.1.cfg out.1.dat");
    row("table by its name", "--csv @a.cfg -o @out.txt", "out.txt");
    row("table by a name without an ending", "--csv @a.cfg -o @out", "out.csv");
}

void TestConverterProgram::placesOfOutputs()
{
    QFETCH(QString, words);
    QFETCH(QStringList, made);
    writePair("a");
    m_folder->write("s.cff", recording().singleFile({2013, "FLOAT32"}));
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("sub"));
    const int before = m_folder->names().size();
    QCOMPARE(m_folder->run(words).errors, QByteArray());
    for (const QString &name : made)
        QVERIFY2(QFileInfo(m_folder->path(name)).size() > 0, qPrintable(name));
    if (!made.constFirst().contains(QLatin1Char('/')))
        QCOMPARE(m_folder->names().size(), before + made.size());
}

void TestConverterProgram::dataFileInOtherLetters()
{
    const Form form{1999, "BINARY"};
    m_folder->write("A.CFG", recording().configuration(form));
    m_folder->write("a.Dat", recording().data(form));
    QCOMPARE(m_folder->run(QStringLiteral("@A.CFG -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), whole);
}

void TestConverterProgram::parts_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("samples");
    QTest::addColumn<QByteArray>("start"); // of the day
    const auto row
        = [](const char *name, const char *options, const char *samples, const char *start) {
              QTest::newRow(name) << QString::fromLatin1(options) << QByteArray(samples)
                                  << QByteArray(start);
          };
    row("both ends belong to it", "--from 1 --to 2", "1,0,20,1\r\n2,1000,30,1\r\n",
        "10:00:00.001000");
    row("from", "--from 2.5", "1,0,40,0\r\n", "10:00:00.003000");
    row("to", "--to 0.5", "1,0,10,0\r\n", "10:00:00.000000");
    row("all of it", "--from -5 --to 5", whole.constData(), "10:00:00.000000");
}

void TestConverterProgram::parts()
{
    QFETCH(QString, options);
    QFETCH(QByteArray, samples);
    QFETCH(QByteArray, start);
    writePair("a");
    QCOMPARE(m_folder->run(options + QStringLiteral(" @a.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), samples);
    QVERIFY(m_folder->read("out.cfg").contains(
        "\r\n15/03/2024," + start + "\r\n15/03/2024,10:00:00.001000\r\n"));
}

void TestConverterProgram::bordersOfAPart_data()
{
    QTest::addColumn<qint64>("stamp"); // in microseconds
    QTest::addColumn<QString>("limit"); // the same in milliseconds
    const auto row = [](const char *limit, qint64 stamp) {
        QTest::newRow(limit) << stamp << QString::fromLatin1(limit);
    };
    row("1.001", 1001);
    row("2.007", 2007);
    row("4.1", 4100);
    row("16.667", 16667);
    row("-4.1", -4100);
    row("0.1", 100);
    row("123456789.123", 123456789123);
}

// A sample on the border belongs to the part, its neighbours on the other side do not.
void TestConverterProgram::bordersOfAPart()
{
    QFETCH(qint64, stamp);
    QFETCH(QString, limit);
    m_folder->write("a.cfg", recording().configuration({1999, "ASCII"}));
    QByteArray data;
    for (int k = 1; k <= 3; ++k)
        data += QByteArray::number(k) + ',' + QByteArray::number(stamp - 2 + k) + ','
            + QByteArray::number(k) + ",0\n";
    m_folder->write("a.dat", data);
    const QString words = QStringLiteral(" --force @a.cfg -o @out");
    m_folder->run(QStringLiteral("--from ") + limit + words);
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,2,0\r\n2,1,3,0\r\n"));
    m_folder->run(QStringLiteral("--to ") + limit + words);
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,1,0\r\n2,1,2,0\r\n"));
    m_folder->run(QStringLiteral("--from %1 --to %1").arg(limit) + words);
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,2,0\r\n"));
}

void TestConverterProgram::partWithoutSamples()
{
    writePair("a");
    const auto outcome = m_folder->run(QStringLiteral("--from 1.2 --to 1.8 @a.cfg -o @out"));
    QCOMPARE(outcome.errors, QByteArray("a.cfg: no sample is in the range\n"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->names().size(), 2);
}

void TestConverterProgram::partOfATableKeepsItsTimes()
{
    writePair("a");
    QCOMPARE(m_folder->run(QStringLiteral("--csv --from 1 --to 2 @a.cfg")).errors, QByteArray());
    QCOMPARE(m_folder->read("a.csv"),
        QByteArray("Time (ms),IL1 (A),Trip\r\n1,10.25,1\r\n2,15.25,1\r\n"));
}

void TestConverterProgram::sidesOfTheTransformers_data()
{
    QTest::addColumn<QByteArray>("ratio");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("written"); // a, b, and all behind them
    QTest::addColumn<QByteArray>("cell"); // of the sample 10
    const QString primary = QStringLiteral("--primary");
    const QString secondary = QStringLiteral("--secondary");
    QTest::newRow("secondary as read")
        << QByteArray("400,1,S") << QString() << QByteArray("0.5,0.25,0,-32767,32767,400,1,S")
        << QByteArray("5.25");
    QTest::newRow("secondary to primary")
        << QByteArray("400,1,S") << primary << QByteArray("200,100,0,-32767,32767,400,1,P")
        << QByteArray("2100");
    QTest::newRow("secondary to secondary")
        << QByteArray("400,1,S") << secondary << QByteArray("0.5,0.25,0,-32767,32767,400,1,S")
        << QByteArray("5.25");
    QTest::newRow("primary to secondary")
        << QByteArray("400,100,p") << secondary
        << QByteArray("0.125,0.0625,0,-32767,32767,400,100,S") << QByteArray("1.3125");
    QTest::newRow("primary to primary")
        << QByteArray("0,0,P") << primary << QByteArray("0.5,0.25,0,-32767,32767,0,0,P")
        << QByteArray("5.25");
}

void TestConverterProgram::sidesOfTheTransformers()
{
    QFETCH(QByteArray, ratio);
    QFETCH(QString, option);
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, cell);
    PublishedRecording made = recording();
    made.ratio = ratio;
    writePair("a", made);
    QCOMPARE(m_folder->run(option + QStringLiteral(" @a.cfg -o @out")).errors, QByteArray());
    QVERIFY(m_folder->read("out.cfg").contains("\r\n1,IL1,A,Bay,A," + written + "\r\n"));
    QCOMPARE(m_folder->read("out.dat"), whole);
    QCOMPARE(m_folder->run(option + QStringLiteral(" --csv @a.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.csv").split('\n').at(1), "0," + cell + ",0\r");
}

void TestConverterProgram::sideOfARecordingWithoutRatios_data()
{
    QTest::addColumn<int>("revision");
    QTest::addColumn<QByteArray>("ratio");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("1991") << 1991 << QByteArray()
                          << QByteArray("a recording of 1991 has no ratios of instrument "
                                        "transformers");
    QTest::newRow("secondary 0") << 1999 << QByteArray("400,0,S")
                                 << QByteArray("analog channel 1 has no ratio");
    QTest::newRow("primary 0") << 1999 << QByteArray("0,1,S")
                               << QByteArray("analog channel 1 has no ratio");
}

void TestConverterProgram::sideOfARecordingWithoutRatios()
{
    QFETCH(int, revision);
    QFETCH(QByteArray, ratio);
    QFETCH(QByteArray, message);
    PublishedRecording made = recording();
    made.ratio = ratio;
    m_folder->write("a.cfg", made.configuration({revision, "ASCII"}));
    m_folder->write("a.dat", made.data({revision, "ASCII"}));
    const auto outcome = m_folder->run(QStringLiteral("--primary @a.cfg -o @out"));
    QCOMPARE(outcome.errors, "a.cfg: " + message + '\n');
    QCOMPARE(outcome.status, 1);
}

void TestConverterProgram::sideThatIsBeyondAllNumbers_data()
{
    QTest::addColumn<QByteArray>("factors");
    QTest::newRow("a") << QByteArray("1e306,0");
    QTest::newRow("b") << QByteArray("1,-1e306");
}

void TestConverterProgram::sideThatIsBeyondAllNumbers()
{
    QFETCH(QByteArray, factors);
    PublishedRecording made = recording();
    made.analog = QByteArrayList{"1,IL1,A,Bay,A," + factors + ",0,-32767,32767"};
    writePair("a", made);
    const auto outcome = m_folder->run(QStringLiteral("--primary @a.cfg -o @out"));
    QCOMPARE(outcome.errors,
        QByteArray("a.cfg: a or b of analog channel 1 is too large for its ratio\n"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->names().size(), 2);
}

void TestConverterProgram::encodings_data()
{
    QTest::addColumn<QByteArray>("name"); // of a channel, as it is read
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("inPair");
    QTest::addColumn<QByteArray>("inTable");
    const auto row = [](const char *name, const char *read, const char *option, const char *inPair,
                         const char *inTable) {
        QTest::newRow(name) << QByteArray(read) << QString::fromLatin1(option) << QByteArray(inPair)
                            << QByteArray(inTable);
    };
    row("ASCII", "IL1", "", "IL1", "IL1");
    row("Latin-1 by itself", "h\xe4iri\xf6", "", "h\xe4iri\xf6", "h\xc3\xa4iri\xc3\xb6");
    row("UTF-8 by itself", "h\xc3\xa4iri\xc3\xb6", "", "h\xc3\xa4iri\xc3\xb6",
        "h\xc3\xa4iri\xc3\xb6");
    row("UTF-8 by name, letters of Latin-1", "h\xc3\xa4iri\xc3\xb6", "--encoding UTF-8",
        "h\xe4iri\xf6", "h\xc3\xa4iri\xc3\xb6");
    row("GBK", "\xb9\xca\xd5\xcf", "--encoding GBK", "\xe6\x95\x85\xe9\x9a\x9c",
        "\xe6\x95\x85\xe9\x9a\x9c");
    row("IBM 866", "\x92\xae\xaa", "--encoding IBM866", "\xd0\xa2\xd0\xbe\xd0\xba",
        "\xd0\xa2\xd0\xbe\xd0\xba");
    row("Windows-1251", "\xd2\xee\xea", "--encoding windows-1251", "\xd0\xa2\xd0\xbe\xd0\xba",
        "\xd0\xa2\xd0\xbe\xd0\xba");
}

void TestConverterProgram::encodings()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, option);
    QFETCH(QByteArray, inPair);
    QFETCH(QByteArray, inTable);
    PublishedRecording made = recording();
    made.analog[0].replace("IL1", name);
    writePair("a", made);
    QCOMPARE(m_folder->run(option + QStringLiteral(" @a.cfg -o @out")).errors, QByteArray());
    QVERIFY(m_folder->read("out.cfg").contains("\r\n1," + inPair + ",A,Bay,A,"));
    QCOMPARE(m_folder->run(option + QStringLiteral(" --csv @a.cfg -o @out")).errors, QByteArray());
    QVERIFY(m_folder->read("out.csv").startsWith("Time (ms)," + inTable + " (A),Trip\r\n"));
}

void TestConverterProgram::textsOfAnotherEncoding()
{
    PublishedRecording made = recording();
    made.analog[0].replace("IL1", "h\xe4iri\xf6");
    writePair("a", made);
    const auto outcome = m_folder->run(QStringLiteral("--encoding UTF-8 @a.cfg -o @out"));
    QCOMPARE(
        outcome.errors, QByteArray("a.cfg: the texts are not in the encoding that is named\n"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->names().size(), 2);
}

void TestConverterProgram::namesOfColumns()
{
    PublishedRecording made = recording();
    made.analog = QByteArrayList{"1, I \"L1\" ,A,,,1,0,0,-9,9", "7,  ,A,, kV ,1,0,0,-9,9"};
    made.digital = QByteArrayList{""};
    made.samples = {{0, {1, 2}, "1"}};
    writePair("a", made);
    m_folder->run(QStringLiteral("--csv @a.cfg"));
    QCOMPARE(
        m_folder->read("a.csv"), QByteArray("Time (ms),\"I \"\"L1\"\"\",7 (kV),1\r\n0,1,2,1\r\n"));
}

void TestConverterProgram::inputIsNeverReplaced_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("place");
    const auto row = [](const char *name, const char *words, const char *place) {
        QTest::newRow(name) << QString::fromLatin1(words) << QByteArray(place);
    };
    row("pair beside its input", "@a.cfg", "a.cfg");
    row("by name", "@a.cfg -o @a", "a.cfg");
    row("by another path", "@a.cfg -o @sub/../a.cfg", "sub/../a.cfg");
    row("folder of the input", "@a.cfg -o @", "a.cfg");
    row("data alone", "--csv @a.cfg -o @a.dat", "a.dat");
    row("another input of the run", "@s.cff @a.cfg @s.cfg -o @", "s.cfg");
}

void TestConverterProgram::inputIsNeverReplaced()
{
    QFETCH(QString, words);
    QFETCH(QByteArray, place);
    writePair("a");
    writePair("s");
    m_folder->write("s.cff", recording().singleFile({2013, "ASCII"}));
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("sub"));
    const QByteArray configuration = m_folder->read("a.cfg");
    const QByteArray data = m_folder->read("a.dat");
    const auto outcome = m_folder->run(QStringLiteral("--force ") + words);
    QVERIFY2(outcome.errors.startsWith(place + ": this would replace an input or another"),
        outcome.errors.constData());
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->read("a.cfg"), configuration);
    QCOMPARE(m_folder->read("a.dat"), data);
    QCOMPARE(m_folder->read("s.dat"), data);
}

// Whether the file system takes the two names for one, or not.
void TestConverterProgram::inputInOtherLettersIsNeverReplaced()
{
    writePair("a");
    const QByteArray configuration = m_folder->read("a.cfg");
    const QByteArray data = m_folder->read("a.dat");
    const bool isOneFile = QFile::exists(m_folder->path(QStringLiteral("A.CFG")));
    const auto outcome = m_folder->run(QStringLiteral("--force @a.cfg -o @A"));
    QCOMPARE(outcome.status, isOneFile ? 3 : 0);
    QCOMPARE(m_folder->read("a.cfg"), configuration);
    QCOMPARE(m_folder->read("a.dat"), data);
}

void TestConverterProgram::otherOutputOfTheSameRunIsNotReplaced()
{
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("one"));
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("two"));
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("out"));
    writePair("one/a");
    PublishedRecording other = recording();
    other.samples[0].values[0] = 99;
    writePair("two/a", other);
    const auto outcome = m_folder->run(QStringLiteral("--force @one/a.cfg @two/a.cfg -o @out"));
    QCOMPARE(outcome.errors,
        QByteArray("out/a.cfg: this would replace an input or another output, see -o\n"));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->read("out/a.dat"), whole);
}

void TestConverterProgram::existingFilesNeedForce()
{
    writePair("a");
    m_folder->write("out.dat", "old");
    const auto outcome = m_folder->run(QStringLiteral("@a.cfg -o @out"));
    QCOMPARE(outcome.errors, QByteArray("out.dat: the file exists already, see --force\n"));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->read("out.dat"), QByteArray("old"));
    QVERIFY(!QFile::exists(m_folder->path(QStringLiteral("out.cfg"))));
    QCOMPARE(m_folder->run(QStringLiteral("--force @a.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), whole);
    QCOMPARE(m_folder->names().size(), 4);
}

void TestConverterProgram::batchGoesOnAfterAFault()
{
    writePair("a");
    writePair("c");
    m_folder->write("b.cfg", "nonsense");
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("out"));
    const auto outcome
        = m_folder->run(QStringLiteral("@a.cfg @b.cfg @a.dat @nosuch.cff @c.cfg -o @out"));
    QCOMPARE(outcome.errors.count('\n'), 3);
    QVERIFY(outcome.errors.startsWith("b.cfg:1: the first line is not station"));
    QVERIFY(outcome.errors.contains(
        "\na.dat: a recording is named by its .cfg or .cff file\nnosuch.cff: "));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->read("out/a.dat"), whole);
    QCOMPARE(m_folder->read("out/c.dat"), whole);
    QCOMPARE(QDir(m_folder->path(QStringLiteral("out"))).count(), 4U + 2U);
}

void TestConverterProgram::highestStatusCounts_data()
{
    QTest::addColumn<QString>("inputs");
    QTest::newRow("first") << QStringLiteral("@a.cfg @b.cfg @c.cfg");
    QTest::newRow("last") << QStringLiteral("@c.cfg @b.cfg @a.cfg");
}

void TestConverterProgram::highestStatusCounts()
{
    QFETCH(QString, inputs);
    writePair("a");
    m_folder->write("a.csv", "old");
    m_folder->write("b.cfg", "nonsense");
    writePair("c");
    const auto outcome = m_folder->run(QStringLiteral("--csv ") + inputs);
    QCOMPARE(outcome.errors.count('\n'), 2);
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->read("a.csv"), QByteArray("old"));
    QVERIFY(m_folder->read("c.csv").startsWith("Time (ms)"));
}

void TestConverterProgram::dataFileThatIsNotThere()
{
    writePair("a");
    QFile::remove(m_folder->path(QStringLiteral("a.dat")));
    const auto outcome = m_folder->run(QStringLiteral("@a.cfg -o @out"));
#ifdef Q_OS_WIN
    // The system's own words differ between Windows and Wine.
    QVERIFY2(QRegularExpression(QStringLiteral("^a\\.dat: [^\r\n]+\r?\n$"))
                 .match(QString::fromLocal8Bit(outcome.errors))
                 .hasMatch(),
        outcome.errors.constData());
#else
    QCOMPARE(outcome.errors, QByteArray("a.dat: No such file or directory\n"));
#endif
    QCOMPARE(outcome.status, 1);
    QCOMPARE(m_folder->names(), QStringList(QStringLiteral("a.cfg")));
}

void TestConverterProgram::patternIsResolved()
{
    for (const char *name : {"a1", "a2", "b1"})
        writePair(name);
    QDir(m_folder->path(QString())).mkdir(QStringLiteral("out"));
    QCOMPARE(m_folder->run(QStringLiteral("@a?.cfg @b*.cfg -o @out")).errors, QByteArray());
    for (const char *name : {"out/a1.dat", "out/a2.dat", "out/b1.dat"})
        QCOMPARE(m_folder->read(name), whole);
}

QTEST_GUILESS_MAIN(TestConverterProgram)
#include "tst_converterprogram.moc"
