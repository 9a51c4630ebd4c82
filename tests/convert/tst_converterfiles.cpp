// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "addressspacelimit.h"
#include "converterrun.h"
#include "failure.h"
#include "filesizelimit.h"
#include "outputfile.h"
#include "publishedforms.h"

#include <QProcess>
#include <QtTest>

#include <memory>
#include <unistd.h>

namespace {

using convert::OutputFile;
using Form = PublishedRecording::Form;

PublishedRecording recording(int samples)
{
    PublishedRecording made;
    made.rates = QByteArrayList{"1000," + QByteArray::number(samples)};
    for (int i = 0; i < samples; ++i)
        made.samples.append({i * qint64(1000), {double(i % 30000)}, "1"});
    return made;
}

// Runs something that must fail; the message.
template <typename Work> QByteArray failureOf(Work &&work)
{
    try {
        work();
    } catch (const convert::Failure &failure) {
        return failure.what();
    }
    return "no failure";
}

const QString nonAscii = QString::fromUtf8("h\xc3\xa4iri\xc3\xb6 \xe6\x95\x85\xe9\x9a\x9c");

} // namespace

// What becomes of files when something comes between, with the program as a process of its own.
class TestConverterFiles : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ConverterFolder> m_folder;

    QString path(const char *name) const { return m_folder->path(QString::fromUtf8(name)); }
    void writeRecording(const QString &name, const PublishedRecording &made) const
    {
        const Form form{1999, "BINARY"};
        QVERIFY(writeBytes(m_folder->path(name + QLatin1String(".cfg")), made.configuration(form)));
        QVERIFY(writeBytes(m_folder->path(name + QLatin1String(".dat")), made.data(form)));
    }
    void start(QProcess &process, const QStringList &arguments) const
    {
        process.setWorkingDirectory(path(""));
        process.start(QStringLiteral(CONVERTER), arguments);
        QVERIFY(process.waitForStarted());
    }

private slots:
    void init() { m_folder = std::make_unique<ConverterFolder>(); }

    void fileThatAppearsMeanwhileIsKept();
    void pairIsReplacedAsAWhole();
    void newPairIsWrittenAsAWhole();
    void abandonedFileIsRemoved();
    void linkStaysALink();
    void inputBehindALinkIsNeverReplaced();
    void inputIsALink();
    void linkedFolder_data();
    void linkedFolder();
    void otherNameOfAnInputIsReplacedAlone();
    void folderThatIsNotThere();
    void folderInThePlaceOfAFile();
    void fullDiskLeavesOldFiles();
    void killedProcessLeavesOldFiles();
    void processTakesNamesInEveryLetter();
    void documentedBatch_data();
    void documentedBatch();
    void memoryDoesNotGrowWithTheSamples_data();
    void memoryDoesNotGrowWithTheSamples();
};

void TestConverterFiles::fileThatAppearsMeanwhileIsKept()
{
    OutputFile file(path("out"), OutputFile::Existing::Keep);
    file.append("new");
    file.complete();
    m_folder->write("out", "other");
    QVERIFY(failureOf([&] {
        file.putInPlace();
    }).endsWith("out: the file exists already, see --force"));
    QCOMPARE(m_folder->read("out"), QByteArray("other"));
}

void TestConverterFiles::pairIsReplacedAsAWhole()
{
    m_folder->write("one", "old");
    {
        OutputFile one(path("one"), OutputFile::Existing::Replace);
        OutputFile two(path("two"), OutputFile::Existing::Replace);
        one.append("new");
        two.append("new");
        QDir(path("")).mkpath(QStringLiteral("two/full")); // no file replaces it
        QVERIFY(failureOf([&] { convert::putInPlace(one, two); }).contains("two: "));
    }
    QCOMPARE(m_folder->read("one"), QByteArray("old"));
    QCOMPARE(m_folder->names(), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
}

void TestConverterFiles::newPairIsWrittenAsAWhole()
{
    {
        OutputFile one(path("one"), OutputFile::Existing::Keep);
        OutputFile two(path("two"), OutputFile::Existing::Keep);
        m_folder->write("two", "other");
        QVERIFY(failureOf([&] { convert::putInPlace(one, two); }).contains("two: the file exists"));
    }
    QCOMPARE(m_folder->names(), QStringList(QStringLiteral("two")));
    QCOMPARE(m_folder->read("two"), QByteArray("other"));
}

void TestConverterFiles::abandonedFileIsRemoved()
{
    {
        OutputFile file(path("out"), OutputFile::Existing::Keep);
        file.append("new");
        file.flush();
        QCOMPARE(m_folder->names().size(), 1);
    }
    QCOMPARE(m_folder->names(), QStringList());
}

void TestConverterFiles::linkStaysALink()
{
    writeRecording(QStringLiteral("a"), recording(3));
    m_folder->write("elsewhere.csv", "old");
    QVERIFY(QFile::link(path("elsewhere.csv"), path("out.csv")));
    QCOMPARE(
        m_folder->run(QStringLiteral("--force --csv @a.cfg -o @out.csv")).errors, QByteArray());
    QVERIFY(QFileInfo(path("out.csv")).isSymLink());
    QVERIFY(m_folder->read("elsewhere.csv").startsWith("Time (ms)"));
}

void TestConverterFiles::inputBehindALinkIsNeverReplaced()
{
    writeRecording(QStringLiteral("a"), recording(3));
    QVERIFY(QFile::link(path("a.dat"), path("out.dat")));
    const QByteArray data = m_folder->read("a.dat");
    const auto outcome = m_folder->run(QStringLiteral("--force @a.cfg -o @out"));
    QCOMPARE(outcome.errors,
        QByteArray("out.dat: this would replace an input or another output, see -o\n"));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->read("a.dat"), data);
}

void TestConverterFiles::inputIsALink()
{
    writeRecording(QStringLiteral("a"), recording(3));
    const QByteArray configuration = m_folder->read("a.cfg");
    const QByteArray data = m_folder->read("a.dat");
    QVERIFY(QFile::link(path("a.cfg"), path("link.cfg")));
    QVERIFY(QFile::link(path("a.dat"), path("link.dat")));
    for (const char *words : {"--force @link.cfg", "--force @link.cfg -o @a"}) {
        const auto outcome = m_folder->run(QString::fromLatin1(words));
        QVERIFY2(outcome.errors.contains(".cfg: this would replace an input or another output"),
            outcome.errors.constData());
        QCOMPARE(outcome.status, 3);
    }
    QCOMPARE(m_folder->run(QStringLiteral("@link.cfg -o @out")).errors, QByteArray());
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,0,1\r\n2,1000,1,1\r\n3,2000,2,1\r\n"));
    QCOMPARE(m_folder->read("a.cfg"), configuration);
    QCOMPARE(m_folder->read("a.dat"), data);
    QVERIFY(QFileInfo(path("link.cfg")).isSymLink());
    QVERIFY(QFileInfo(path("link.dat")).isSymLink());
}

void TestConverterFiles::linkedFolder_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("of the input") << QStringLiteral("--force @link/a.cfg -o @real");
    QTest::newRow("of the output") << QStringLiteral("--force @real/a.cfg -o @link");
    QTest::newRow("of both") << QStringLiteral("--force @link/a.cfg");
    QTest::newRow("of a table by the name of the data")
        << QStringLiteral("--force --csv @real/a.cfg -o @link/a.dat");
}

void TestConverterFiles::linkedFolder()
{
    QFETCH(QString, words);
    QVERIFY(QDir(path("")).mkdir(QStringLiteral("real")));
    writeRecording(QStringLiteral("real/a"), recording(3));
    const QByteArray configuration = m_folder->read("real/a.cfg");
    const QByteArray data = m_folder->read("real/a.dat");
    QVERIFY(QFile::link(path("real"), path("link")));
    const auto outcome = m_folder->run(words);
    QVERIFY2(outcome.errors.contains(": this would replace an input or another output, see -o\n"),
        outcome.errors.constData());
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->read("real/a.cfg"), configuration);
    QCOMPARE(m_folder->read("real/a.dat"), data);
    QCOMPARE(QDir(path("real")).count(), 2U + 2U);
}

// A second name of the same file is another place: the file stays under its first name.
void TestConverterFiles::otherNameOfAnInputIsReplacedAlone()
{
    writeRecording(QStringLiteral("a"), recording(3));
    const QByteArray configuration = m_folder->read("a.cfg");
    const QByteArray data = m_folder->read("a.dat");
    QCOMPARE(::link(path("a.cfg").toUtf8().constData(), path("out.cfg").toUtf8().constData()), 0);
    QCOMPARE(::link(path("a.dat").toUtf8().constData(), path("out.dat").toUtf8().constData()), 0);
    const auto outcome = m_folder->run(QStringLiteral("--force @a.cfg -o @out"));
    QCOMPARE(outcome.errors, QByteArray());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(m_folder->read("out.dat"), QByteArray("1,0,0,1\r\n2,1000,1,1\r\n3,2000,2,1\r\n"));
    QCOMPARE(m_folder->read("a.cfg"), configuration);
    QCOMPARE(m_folder->read("a.dat"), data);
    QCOMPARE(m_folder->names().size(), 4);
}

void TestConverterFiles::folderThatIsNotThere()
{
    writeRecording(QStringLiteral("a"), recording(3));
    const auto outcome = m_folder->run(QStringLiteral("@a.cfg -o @nowhere/out"));
    QCOMPARE(outcome.errors, QByteArray("nowhere/out.cfg: No such file or directory\n"));
    QCOMPARE(outcome.status, 3);
}

void TestConverterFiles::folderInThePlaceOfAFile()
{
    writeRecording(QStringLiteral("a"), recording(3));
    QDir(path("")).mkdir(QStringLiteral("out.dat"));
    const auto outcome = m_folder->run(QStringLiteral("--force @a.cfg -o @out"));
    QCOMPARE(outcome.errors, QByteArray("out.dat: this is no file that can be replaced\n"));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(m_folder->names().size(), 3);
}

void TestConverterFiles::fullDiskLeavesOldFiles()
{
    writeRecording(QStringLiteral("a"), recording(20000));
    m_folder->write("out.cfg", "old");
    m_folder->write("out.dat", "old");
    {
        const FileSizeLimit limit(100000); // bytes; there are twice as many and more
        const auto outcome = m_folder->run(QStringLiteral("--force @a.cfg -o @out"));
        QCOMPARE(outcome.errors, QByteArray("out.dat: File too large\n"));
        QCOMPARE(outcome.status, 3);
    }
    QCOMPARE(m_folder->read("out.cfg"), QByteArray("old"));
    QCOMPARE(m_folder->read("out.dat"), QByteArray("old"));
    QCOMPARE(m_folder->names().size(), 4);
}

void TestConverterFiles::killedProcessLeavesOldFiles()
{
    // The data are a pipe that stays open, so that the process is in the middle of them.
    writeRecording(QStringLiteral("a"), recording(1));
    QFile::remove(path("a.dat"));
    QCOMPARE(QProcess::execute(QStringLiteral("mkfifo"), {path("a.dat")}), 0);
    m_folder->write("out.cfg", "old");
    m_folder->write("out.dat", "old");
    QFile pipe(path("a.dat"));
    QVERIFY(pipe.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QProcess process;
    start(process,
        {QStringLiteral("--force"), QStringLiteral("a.cfg"), QStringLiteral("-o"),
            QStringLiteral("out")});
    const QByteArray data = recording(5000).data({1999, "BINARY"});
    QVERIFY(pipe.write(data.left(60000)) > 0);
    QTRY_COMPARE(m_folder->names().size(), 5); // without the pipe, two files more
    process.kill();
    QVERIFY(process.waitForFinished());
    QCOMPARE(m_folder->read("out.cfg"), QByteArray("old"));
    QCOMPARE(m_folder->read("out.dat"), QByteArray("old"));
}

void TestConverterFiles::processTakesNamesInEveryLetter()
{
    writeRecording(nonAscii, recording(2));
    QProcess process;
    start(process,
        {nonAscii + QLatin1String(".cfg"), QStringLiteral("-o"), nonAscii + QLatin1Char('2')});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(m_folder->read((nonAscii + QLatin1String("2.dat")).toUtf8().constData()),
        QByteArray("1,0,0,1\r\n2,1000,1,1\r\n"));
    QProcess failing;
    start(failing, {nonAscii + QLatin1String(".cfg")});
    QVERIFY(failing.waitForFinished());
    QCOMPARE(failing.readAllStandardError(),
        nonAscii.toUtf8() + ".cfg: this would replace an input or another output, see -o\n");
    QCOMPARE(failing.exitCode(), 3);
}

void TestConverterFiles::documentedBatch_data()
{
    QTest::addColumn<QByteArray>("pattern"); // of the names that the commands look for
    QTest::addColumn<QByteArrayList>("inputs"); // b breaks the standard
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("errors");
    QTest::addColumn<QByteArrayList>("outputs");
    const QByteArrayList three{"archive/a", "archive/bay 1/b", "archive/bay 1/c"};
    const QByteArray pairs = "'*.cff'";
    const QByteArray tables = "'*.cfg'";
    QTest::newRow("pairs of no file")
        << pairs << QByteArrayList() << 0 << QByteArray() << QByteArrayList();
    QTest::newRow("pairs") << pairs << QByteArrayList{"archive/a", "archive/bay 1/c"} << 0
                           << QByteArray() << QByteArrayList{"converted/a.dat", "converted/c.dat"};
    QTest::newRow("pairs, and a bad file")
        << pairs << three << 123
        << QByteArray("archive/bay 1/b.cff:1: the file does not begin with the section CFG\n")
        << QByteArrayList{"converted/a.dat", "converted/c.dat"};
    QTest::newRow("tables of no file")
        << tables << QByteArrayList() << 0 << QByteArray() << QByteArrayList();
    QTest::newRow("tables, and a bad file")
        << tables << three << 123
        << QByteArray("archive/bay 1/b.cfg:1: the first line is not station, device and, since "
                      "1999, revision year\n")
        << QByteArrayList{"archive/a.csv", "archive/bay 1/c.csv"};
}

// The commands are those of the manual.
void TestConverterFiles::documentedBatch()
{
    QFETCH(QByteArray, pattern);
    QFETCH(QByteArrayList, inputs);
    QFETCH(int, status);
    QFETCH(QByteArray, errors);
    QFETCH(QByteArrayList, outputs);
    QVERIFY(QDir(path("")).mkpath(QStringLiteral("archive/bay 1")));
    for (const QByteArray &input : inputs) {
        const bool isBad = input.endsWith('b');
        const Form form{2013, "ASCII"};
        m_folder->write(input + ".cff", isBad ? "nonsense" : recording(2).singleFile(form));
        m_folder->write(input + ".cfg", isBad ? "nonsense" : recording(2).configuration(form));
        m_folder->write(input + ".dat", recording(2).data(form));
    }
    QByteArray commands;
    QByteArray block; // of indented lines
    for (const QByteArray &line :
        bytesOf(QStringLiteral(SOURCE_DIR "/docs/convert.md")).split('\n')) {
        block = line.startsWith("    ") ? block + line.trimmed() + '\n' : QByteArray();
        if (line.contains("xargs") && block.contains(pattern))
            commands = block;
    }
    QVERIFY(!commands.isEmpty());
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
        QFileInfo(QStringLiteral(CONVERTER)).path() + QLatin1Char(':')
            + environment.value(QStringLiteral("PATH")));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(path(""));
    shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), QString::fromUtf8(commands)});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.readAllStandardError(), errors);
    QCOMPARE(shell.exitCode(), status);
    for (const QByteArray &output : outputs)
        QVERIFY2(m_folder->read(output).contains(
                     output.endsWith(".csv") ? "\n1,0.75,1\r\n" : "\n2,1000,1,1\r\n"),
            output);
    QVERIFY(!QFile::exists(path("converted/b.cfg")) && !QFile::exists(path("archive/bay 1/b.csv")));
}

void TestConverterFiles::memoryDoesNotGrowWithTheSamples_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("options");
    const QString table = QStringLiteral("--csv");
    QTest::newRow("BINARY to a pair") << QByteArray("BINARY") << QString();
    QTest::newRow("FLOAT32 to a table") << QByteArray("FLOAT32") << table;
    QTest::newRow("ASCII to a pair") << QByteArray("ASCII") << QString();
    QTest::newRow("ASCII to a table") << QByteArray("ASCII") << table;
}

// Each of the files has more bytes than the converter may take.
void TestConverterFiles::memoryDoesNotGrowWithTheSamples()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizer needs address space without end.");
#endif
    QFETCH(QByteArray, type);
    QFETCH(QString, options);
    constexpr qint64 mostBytes = 8000000;
    const Form form{2013, type};
    constexpr int samples = 4000;
    constexpr int parts = 300;
    PublishedRecording made = recording(samples);
    made.rates = QByteArrayList{"1000," + QByteArray::number(parts * samples)};
    m_folder->write("a.cfg", made.configuration(form));
    {
        const QByteArray part = made.data(form);
        QFile file(path("a.dat"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (int k = 0; k < parts; ++k)
            QCOMPARE(file.write(part), qint64(part.size()));
    }
    QVERIFY(QFileInfo(path("a.dat")).size() > mostBytes * 3 / 2);
    const AddressSpaceLimit limit(mostBytes);
    QVERIFY(limit.isSet());
    QCOMPARE(m_folder->run(options + QStringLiteral(" @a.cfg -o @out")).errors, QByteArray());
}

QTEST_GUILESS_MAIN(TestConverterFiles)
#include "tst_converterfiles.moc"
