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
    void folderThatIsNotThere();
    void folderInThePlaceOfAFile();
    void fullDiskLeavesOldFiles();
    void killedProcessLeavesOldFiles();
    void processTakesNamesInEveryLetter();
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
