// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "recordingwriter.h"

#include "ownfilesystem.h"
#include "writtenpair.h"

#include <QtTest>

#include <limits>

#ifdef Q_OS_UNIX
#include "filesizelimit.h"

#include <sys/stat.h>
#include <unistd.h>
#endif

Q_DECLARE_METATYPE(ConfigurationText)

namespace {

const double infinite = std::numeric_limits<double>::infinity();

#ifdef Q_OS_UNIX
// While it lives, the administrator has the rights of an ordinary user.
class OrdinaryUser {
public:
    static constexpr uid_t id = 65534;

    OrdinaryUser() : m_wasRoot(geteuid() == 0 && setresuid(id, id, 0) == 0) { }
    ~OrdinaryUser()
    {
        if (m_wasRoot && setresuid(0, 0, 0) != 0)
            qFatal("The rights of the administrator are gone.");
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    const bool m_wasRoot;
};
#else
// A file that is read-only is so for the administrator there, too.
class OrdinaryUser {
public:
    OrdinaryUser() { }
    ~OrdinaryUser() { }
};
#endif

// Rights of everybody, whoever the owner is.
const int readable = int(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
const int writable = readable | int(QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther);
const int enterable = writable | int(QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);

} // namespace

class TestWrittenFiles : public QObject {
    Q_OBJECT

private slots:
    void targetNames_data();
    void targetNames();
    void whatWasThereIsReplaced();
    void longNames_data();
    void longNames();
    void filesThatCannotBeOpenedAreSilent_data();
    void filesThatCannotBeOpenedAreSilent();
    void aFolderWithoutPermissionKeepsItsFiles();
    void aFullFileSystemKeepsItsFiles_data();
    void aFullFileSystemKeepsItsFiles();
    void aProtectedFileKeepsItsPair_data();
    void aProtectedFileKeepsItsPair();
#ifdef Q_OS_UNIX
    void aFolderThatTakesNoNewFilesHasItsFilesReplaced_data();
    void aFolderThatTakesNoNewFilesHasItsFilesReplaced();
    void aFileThatCannotBeReadKeepsItsPair();
    void aFileThatMayNotBeReplacedKeepsItsPair_data();
    void aFileThatMayNotBeReplacedKeepsItsPair();
    void linksAreFollowedToFilesAlone();
    void aFileThatCannotBeWrittenInFullIsTold_data();
    void aFileThatCannotBeWrittenInFullIsTold();
#endif
    void aCopyReadsAsTheOriginalAndCopiesToTheSameBytes_data();
    void aCopyReadsAsTheOriginalAndCopiesToTheSameBytes();
};

void TestWrittenFiles::targetNames_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("files");
    const auto row = [](const char *name, const char *target, const char *files) {
        QTest::newRow(name) << QString::fromUtf8(target)
                            << QString::fromUtf8(files).split(QLatin1Char('|'));
    };
    row("no extension", "out", "out.cfg|out.dat");
    row("the extension", "out.cfg", "out.cfg|out.dat");
    row("the extension in capitals", "out.CFG", "out.CFG.cfg|out.CFG.dat");
    row("the extension of the data", "out.dat", "out.dat.cfg|out.dat.dat");
    row("the extension twice", "out.cfg.cfg", "out.cfg.cfg|out.cfg.dat");
    row("the extension inside", "out.cfg.old", "out.cfg.old.cfg|out.cfg.old.dat");
    row("letters of many scripts", "h\u00e4iri\u00f6 \u6545\u969c.cfg",
        "h\u00e4iri\u00f6 \u6545\u969c.cfg|h\u00e4iri\u00f6 \u6545\u969c.dat");
    row("blanks", " a b ", " a b .cfg| a b .dat");
    row("a blank behind the extension", "out.cfg ", "out.cfg .cfg|out.cfg .dat");
    row("a name of the extension alone", ".cfg", ".cfg|.dat");
    row("a point at the end", "out.", "out..cfg|out..dat");
}

void TestWrittenFiles::targetNames()
{
    QFETCH(QString, target);
    QFETCH(QStringList, files);
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const RecordingWriter writer(recording, {}, {});
    const QTemporaryDir folder;
    writer.write(folder.filePath(target), 0, 3);
    const QDir::Filters everyFile = QDir::Files | QDir::Hidden;
    QCOMPARE(QDir(folder.path()).entryList(everyFile, QDir::Name), files);
    const QTemporaryDir other;
    writer.writeAsPrimary(other.filePath(target));
    QCOMPARE(QDir(other.path()).entryList(everyFile, QDir::Name), files);
}

void TestWrittenFiles::whatWasThereIsReplaced()
{
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, configurationText().text(), dataUpTo(3));
    QVERIFY(writeTextFile(folder.path("out.cfg"), QByteArray(100000, 'x')));
    QVERIFY(writeTextFile(folder.path("out.dat"), QByteArray(100000, 'x')));
    const auto outcome = RecordingWriter(recording, {}, {}).write(folder.path("out"), 1, 1);
    QVERIFY(!outcome.hasFailed());
    QCOMPARE(contents(folder.path("out.dat")), QByteArray("2,0,1,-1,1"));
    QVERIFY(contents(folder.path("out.cfg")).startsWith("Harju,"));
    QVERIFY(contents(folder.path("out.cfg")).endsWith("\nASCII\n1"));
}

void TestWrittenFiles::longNames_data()
{
    QTest::addColumn<QString>("name"); // with an ending of four bytes more
    QTest::addColumn<bool>("isWritten");
    const auto name = [](int letters) { return QString(letters, QLatin1Char('n')); };
    const QString wide = QString(81, QChar(0x7535)); // of three bytes each
    QTest::newRow("that leave room for a temporary name") << name(244) << true;
    QTest::newRow("that leave none") << name(245) << false;
    QTest::newRow("as long as may be") << name(251) << false;
    QTest::newRow("too long") << name(252) << false;
    QTest::newRow("that leave room by their bytes") << wide + name(1) << true;
    QTest::newRow("that leave none by their bytes") << wide + name(2) << false;
    QTest::newRow("too long by their bytes") << wide + name(9) << false;
}

void TestWrittenFiles::longNames()
{
    QFETCH(QString, name);
    QFETCH(bool, isWritten);
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const RecordingWriter writer(recording, {}, {});
    const QTemporaryDir folder;
    const QString target = folder.filePath(name);
    for (const QByteArray &data : QByteArrayList{"2,0,1,-1,1", "3,0,2,-2,0"}) {
        const double time = data.left(1).toDouble() - 1;
        const auto outcome = writer.write(target, time, time);
        QVERIFY2(!outcome.hasFailed(), qPrintable(outcome.error));
        QCOMPARE(contents(target + QLatin1String(".dat")), isWritten ? data : "no file");
        QCOMPARE(contents(target + QLatin1String(".cfg")).startsWith("Harju,"), isWritten);
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), isWritten ? 2 : 0);
}

void TestWrittenFiles::filesThatCannotBeOpenedAreSilent_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("hasConfiguration");
    QTest::addColumn<bool>("hasData");
    QTest::newRow("a folder that is not there") << QStringLiteral("missing/out") << false << false;
#ifdef Q_OS_UNIX
    QTest::newRow("through a folder that is not there")
        << QStringLiteral("missing/../out") << false << false;
#endif
    QTest::newRow("a folder in the configuration's place")
        << QStringLiteral("cfg-taken") << false << true;
    QTest::newRow("a folder in the data's place") << QStringLiteral("dat-taken") << true << false;
    QTest::newRow("a file in the folder's place") << QStringLiteral("file/out") << false << false;
}

void TestWrittenFiles::filesThatCannotBeOpenedAreSilent()
{
    QFETCH(QString, target);
    QFETCH(bool, hasConfiguration);
    QFETCH(bool, hasData);
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    QVERIFY(dir.mkdir(QStringLiteral("cfg-taken.cfg")));
    QVERIFY(dir.mkdir(QStringLiteral("dat-taken.dat")));
    QVERIFY(writeTextFile(folder.filePath(QStringLiteral("file")), "a file"));
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const auto outcome = RecordingWriter(recording, {}, {}).write(folder.filePath(target), 0, 3);
    QVERIFY2(!outcome.hasFailed(), qPrintable(outcome.error));
    QCOMPARE(QFileInfo(folder.filePath(target + QLatin1String(".cfg"))).isFile(), hasConfiguration);
    QCOMPARE(QFileInfo(folder.filePath(target + QLatin1String(".dat"))).isFile(), hasData);
}

void TestWrittenFiles::aFolderWithoutPermissionKeepsItsFiles()
{
    const OwnFileSystem readOnly(1 << 20);
    if (!readOnly.isMounted())
        QSKIP("This system mounts no file system for a test.");
    const QString configuration = readOnly.path("out.cfg");
    const QString data = readOnly.path("out.dat");
    QVERIFY(writeTextFile(configuration, "as before"));
    QVERIFY(writeTextFile(data, "as before"));
    QVERIFY(readOnly.makeReadOnly());
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const RecordingWriter writer(recording, {}, {});
    for (const char *name : {"out", "new"}) {
        const auto outcome = writer.write(readOnly.path(name), 0, 3);
        QVERIFY2(!outcome.hasFailed(), qPrintable(outcome.error));
    }
    QCOMPARE(contents(configuration), QByteArray("as before"));
    QCOMPARE(contents(data), QByteArray("as before"));
    QCOMPARE(QDir(readOnly.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestWrittenFiles::aFullFileSystemKeepsItsFiles_data()
{
    QTest::addColumn<int>("fill"); // bytes of another file, of 64 kB
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("failed");
    const QString data = QStringLiteral("out.dat");
    QTest::newRow("no room") << 65536 - 2 * 4096 << 30000 << QStringLiteral("out.cfg");
    QTest::newRow("room for the configuration alone") << 65536 - 3 * 4096 << 30000 << data;
    QTest::newRow("room for the first part of the data") << 16384 << 30000 << data;
    QTest::newRow("room for all but the end of the data") << 16384 << 2500 << data;
}

void TestWrittenFiles::aFullFileSystemKeepsItsFiles()
{
    QFETCH(int, fill);
    QFETCH(int, last);
    QFETCH(QString, failed);
    const OwnFileSystem full(65536);
    if (!full.isMounted())
        QSKIP("This system mounts no file system for a test.");
    const QString configuration = full.path("out.cfg");
    const QString data = full.path("out.dat");
    QVERIFY(writeTextFile(configuration, "as before"));
    QVERIFY(writeTextFile(data, "as before"));
    QVERIFY(writeTextFile(full.path("other"), QByteArray(fill, 'x')));
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(last));
    const RecordingWriter writer(recording, {}, {});
    for (int attempt = 0; attempt < 2; ++attempt) {
        const auto outcome = writer.write(configuration, -infinite, infinite);
        QVERIFY(outcome.hasFailed());
        QCOMPARE(outcome.failedFile, full.path(qPrintable(failed)));
        QCOMPARE(outcome.error, QStringLiteral("No space left on device"));
        QCOMPARE(contents(configuration), QByteArray("as before"));
        QCOMPARE(contents(data), QByteArray("as before"));
        QCOMPARE(QDir(full.path()).entryList(QDir::Files | QDir::Hidden).size(), 3);
    }
}

void TestWrittenFiles::aProtectedFileKeepsItsPair_data()
{
    QTest::addColumn<int>("configurationRights"); // 0: there is no such file
    QTest::addColumn<int>("dataRights");
    QTest::addColumn<bool>("isConfigurationWritten");
    QTest::addColumn<bool>("isDataWritten");
    QTest::newRow("none is protected") << writable << writable << true << true;
    QTest::newRow("the configuration") << readable << writable << false << false;
    QTest::newRow("the data") << writable << readable << false << false;
    QTest::newRow("both") << readable << readable << false << false;
    QTest::newRow("a configuration without data") << readable << 0 << false << true;
    QTest::newRow("data without a configuration") << 0 << readable << true << false;
}

void TestWrittenFiles::aProtectedFileKeepsItsPair()
{
    QFETCH(int, configurationRights);
    QFETCH(int, dataRights);
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("protected-XXXXXX")));
    const auto allow = [](const QString &path, int rights) {
        return QFile::setPermissions(path, QFile::Permissions(rights));
    };
    QVERIFY(allow(folder.path(), enterable));
    const QString configuration = folder.filePath(QStringLiteral("out.cfg"));
    const QString data = folder.filePath(QStringLiteral("out.dat"));
    const auto makeFile = [&allow](const QString &path, int rights) {
        return rights == 0 || (writeTextFile(path, "as before") && allow(path, rights));
    };
    QVERIFY(makeFile(configuration, configurationRights));
    QVERIFY(makeFile(data, dataRights));
    bool isReached = false;
    for (int attempt = 0; attempt < 2; ++attempt) {
        const OrdinaryUser user;
        isReached = QFileInfo(folder.path()).isWritable();
        const auto outcome = RecordingWriter(recording, {}, {}).write(configuration, 1, 1);
        QVERIFY2(!outcome.hasFailed(), qPrintable(outcome.error)); // no word of it
    }
    for (const QString &path : {configuration, data})
        QVERIFY(allow(path, writable)); // or Windows would not remove them
    if (!isReached)
        QSKIP("The folder for tests cannot be entered by an ordinary user.");
    QTEST(contents(configuration).startsWith("Harju,"), "isConfigurationWritten");
    QTEST(contents(data) == "2,0,1,-1,1", "isDataWritten");
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

#ifdef Q_OS_UNIX
void TestWrittenFiles::aFolderThatTakesNoNewFilesHasItsFilesReplaced_data()
{
    QTest::addColumn<int>("room"); // bytes that a file may have
    QTest::addColumn<QString>("error");
    QTest::newRow("both fit") << 100000 << QString();
    QTest::newRow("the data do not fit") << 1000 << QStringLiteral("File too large");
}

void TestWrittenFiles::aFolderThatTakesNoNewFilesHasItsFilesReplaced()
{
    QFETCH(int, room);
    QFETCH(QString, error);
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(300));
    QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("replaced-XXXXXX")));
    for (const char *name : {"out.cfg", "out.dat"}) {
        const QString path = folder.filePath(QLatin1String(name));
        QVERIFY(writeTextFile(path, "as before"));
        QCOMPARE(chmod(qPrintable(path), 0666), 0);
    }
    QCOMPARE(chmod(qPrintable(folder.path()), 0555), 0);
    bool isReached = false;
    RecordingWriter::Outcome outcome;
    {
        // What a folder does not allow, it does not allow to ordinary users alone.
        const OrdinaryUser user;
        isReached = QFile(folder.filePath(QStringLiteral("out.cfg"))).open(QIODevice::ReadWrite);
        const FileSizeLimit limit(static_cast<rlim_t>(room));
        outcome = RecordingWriter(recording, {}, {})
                      .write(folder.filePath(QStringLiteral("out")), 0, infinite);
    }
    QCOMPARE(chmod(qPrintable(folder.path()), 0755), 0);
    if (!isReached)
        QSKIP("The folder for tests cannot be entered by an ordinary user.");
    QCOMPARE(outcome.error, error);
    QCOMPARE(outcome.failedFile,
        error.isEmpty() ? QString() : folder.filePath(QStringLiteral("out.dat")));
    for (const char *name : {"out.cfg", "out.dat"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().startsWith("as before"));
    }
}

// It could not come back where the data do not fit.
void TestWrittenFiles::aFileThatCannotBeReadKeepsItsPair()
{
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("unread-XXXXXX")));
    QCOMPARE(chmod(qPrintable(folder.path()), 0777), 0);
    const QString configuration = folder.filePath(QStringLiteral("out.cfg"));
    const QString data = folder.filePath(QStringLiteral("out.dat"));
    for (const QString &path : {configuration, data}) {
        QVERIFY(writeTextFile(path, "as before"));
        QCOMPARE(chmod(qPrintable(path), 0222), 0);
    }
    for (int attempt = 0; attempt < 2; ++attempt) {
        const OrdinaryUser user;
        if (!QFileInfo(folder.path()).isWritable() || QFileInfo(data).isReadable())
            QSKIP("Permissions do not count here.");
        const auto outcome = RecordingWriter(recording, {}, {}).write(configuration, 1, 1);
        QCOMPARE(outcome.failedFile, configuration);
        QCOMPARE(outcome.error, QStringLiteral("Permission denied"));
    }
    QCOMPARE(chmod(qPrintable(configuration), 0666), 0);
    QCOMPARE(chmod(qPrintable(data), 0666), 0);
    QCOMPARE(contents(configuration), QByteArray("as before"));
    QCOMPARE(contents(data), QByteArray("as before"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void TestWrittenFiles::aFileThatMayNotBeReplacedKeepsItsPair_data()
{
    QTest::addColumn<QByteArray>("configuration"); // whose file it is
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("failed");
    const QString configuration = QStringLiteral("out.cfg");
    const QString data = QStringLiteral("out.dat");
    QTest::newRow("the data") << QByteArray("own") << QByteArray("other") << data;
    QTest::newRow("the data, no configuration") << QByteArray() << QByteArray("other") << data;
    QTest::newRow("the configuration") << QByteArray("other") << QByteArray("own") << configuration;
    QTest::newRow("both") << QByteArray("other") << QByteArray("other") << configuration;
}

// In a folder shared by all, everybody may make files and write to these, but only replace their
// own.
void TestWrittenFiles::aFileThatMayNotBeReplacedKeepsItsPair()
{
    QFETCH(QByteArray, configuration);
    QFETCH(QByteArray, data);
    QFETCH(QString, failed);
    if (geteuid() != 0)
        QSKIP("Only the administrator can make files of other users.");
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("shared-XXXXXX")));
    const auto makeFile = [&folder](const char *name, const QByteArray &owner) {
        const QString path = folder.filePath(QLatin1String(name));
        const uid_t user = owner == "own" ? OrdinaryUser::id : 0;
        return owner.isEmpty()
            || (writeTextFile(path, "as before") && chmod(qPrintable(path), 0666) == 0
                && chown(qPrintable(path), user, user) == 0);
    };
    QVERIFY(makeFile("out.cfg", configuration));
    QVERIFY(makeFile("out.dat", data));
    QCOMPARE(chmod(qPrintable(folder.path()), 01777), 0);
    bool isReached = false;
    RecordingWriter::Outcome outcome;
    {
        const OrdinaryUser user;
        isReached = QFileInfo(folder.path()).isWritable();
        const QString path = folder.filePath(QStringLiteral("out"));
        outcome = RecordingWriter(recording, {}, {}).write(path, 1, 1);
    }
    if (!isReached)
        QSKIP("The folder for tests cannot be entered by an ordinary user.");
    QCOMPARE(outcome.failedFile, folder.filePath(failed));
    QCOMPARE(outcome.error, QStringLiteral("Operation not permitted"));
    const QStringList files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(files.size(), configuration.isEmpty() ? 1 : 2);
    for (const QString &name : files)
        QCOMPARE(contents(folder.filePath(name)), QByteArray("as before"));
}

void TestWrittenFiles::linksAreFollowedToFilesAlone()
{
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    const auto path = [&dir](const char *name) { return dir.filePath(QLatin1String(name)); };
    QVERIFY(dir.mkdir(QStringLiteral("folder")));
    QVERIFY(writeTextFile(path("file"), "as before"));
    // A pipe stands for the devices: it is none of the machine's own.
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    for (const char *name : {"file", "missing", "folder", "pipe"}) {
        const QString link = path("to-") + QLatin1String(name);
        QVERIFY(QFile::link(path(name), link + QLatin1String(".cfg")));
        QVERIFY(QFile::link(path(name), link + QLatin1String(".dat")));
    }
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(3));
    const RecordingWriter writer(recording, {}, {});

    for (const char *name : {"to-file", "to-missing", "to-folder", "to-pipe"}) {
        QVERIFY(!writer.write(path(name), 1, 1).hasFailed());
        for (const char *ending : {".cfg", ".dat"})
            QVERIFY2(QFileInfo(path(name) + QLatin1String(ending)).isSymLink(), name);
    }
    // Of the two that point to the same file, the data came last.
    QCOMPARE(contents(path("file")), QByteArray("2,0,1,-1,1"));
    QCOMPARE(contents(path("missing")), QByteArray("2,0,1,-1,1"));
    QVERIFY(QFileInfo(path("folder")).isDir());
    QVERIFY(QDir(path("folder")).isEmpty());
    QVERIFY(QFileInfo::exists(path("pipe")) && !QFileInfo(path("pipe")).isFile());

    QVERIFY(!writer.write(path("pipe"), 1, 1).hasFailed()); // as pipe.cfg
    QVERIFY(QFile::rename(path("pipe"), path("direct.cfg")));
    QVERIFY(!writer.write(path("direct"), 1, 1).hasFailed());
    QVERIFY(!QFileInfo(path("direct.cfg")).isFile());
}

void TestWrittenFiles::aFileThatCannotBeWrittenInFullIsTold_data()
{
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("room"); // bytes a file may have
    QTest::addColumn<QString>("failed");
    QTest::newRow("the configuration does not fit") << 3 << 50 << QStringLiteral("out.cfg");
    QTest::newRow("the last bytes of the data do not fit")
        << 300 << 1000 << QStringLiteral("out.dat");
    QTest::newRow("the only block of the data does not fit")
        << 2000 << 20000 << QStringLiteral("out.dat");
    QTest::newRow("the last block of the data does not fit")
        << 20000 << 300000 << QStringLiteral("out.dat");
    QTest::newRow("data of several blocks do not fit")
        << 60000 << 700000 << QStringLiteral("out.dat");
}

void TestWrittenFiles::aFileThatCannotBeWrittenInFullIsTold()
{
    QFETCH(int, samples);
    QFETCH(int, room);
    QFETCH(QString, failed);
    const QTemporaryDir folder;
    const QString configuration = folder.filePath(QStringLiteral("out.cfg"));
    const QString data = folder.filePath(QStringLiteral("out.dat"));
    QVERIFY(writeTextFile(configuration, "as before"));
    QVERIFY(writeTextFile(data, "as before"));
    const RecordingFolder source;
    CFGProperties recording;
    source.load(recording, configurationText().text(), dataUpTo(samples));

    const RecordingWriter writer(recording, {}, {});
    RecordingWriter::Outcome outcome;
    {
        const FileSizeLimit limit(static_cast<rlim_t>(room));
        outcome = writer.write(configuration, -infinite, infinite);
    }
    QVERIFY(outcome.hasFailed());
    QCOMPARE(outcome.failedFile, folder.filePath(failed));
    QCOMPARE(outcome.error, QStringLiteral("File too large"));
    // What was there stays, both of it, and nothing half-written is left beside it.
    QCOMPARE(contents(configuration), QByteArray("as before"));
    QCOMPARE(contents(data), QByteArray("as before"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}
#endif

void TestWrittenFiles::aCopyReadsAsTheOriginalAndCopiesToTheSameBytes_data()
{
    QTest::addColumn<ConfigurationText>("text");
    QTest::addColumn<int>("last");
    ConfigurationText text = configurationText();
    QTest::newRow("a recording of both kinds") << text << 400;
    text.start = "15/03/2024,10:00:00.123456";
    text.rates = QByteArrayList{"1000,10", "7680.25,401"};
    text.analog[0] = "1,IL1,A,Bay,A,3.2e-7,-1.25e9,3.25,-32767,32767,400,1,S";
    text.fileType = "BINARY";
    text.timeMultiplier = "0.001";
    QTest::newRow("numbers with exponents, two rates") << text << 400;
    text.analog[1] = "2,UL1,B,,V,2,0,0,-100,100,20000,100,s";
    QTest::newRow("a flag that is none") << text << 400;
    text.digital.clear();
    QTest::newRow("no digital channels") << text << 400;
    QTest::newRow("one sample") << text << 0;
    QTest::newRow("several blocks of data") << configurationText() << 60000;
}

void TestWrittenFiles::aCopyReadsAsTheOriginalAndCopiesToTheSameBytes()
{
    QFETCH(ConfigurationText, text);
    QFETCH(int, last);
    const RecordingFolder folder;
    CFGProperties recording;
    folder.load(recording, text.text(), dataUpTo(last));
    const Written first = written(recording, -infinite, infinite);
    QVERIFY(!first.outcome.hasFailed());

    CFGProperties copy;
    folder.load(copy, first.configuration + '\n', first.data, "first");
    QCOMPARE(copy.loaded, 1);
    QCOMPARE(copy.stationName, recording.stationName);
    QCOMPARE(copy.recordingDeviceId, recording.recordingDeviceId);
    QCOMPARE(copy.revisionYear, recording.revisionYear);
    QCOMPARE(copy.analogIds, recording.analogIds);
    QCOMPARE(copy.analogA, recording.analogA);
    QCOMPARE(copy.analogB, recording.analogB);
    QCOMPARE(copy.analogSkews, recording.analogSkews);
    QCOMPARE(copy.analogMins, recording.analogMins);
    QCOMPARE(copy.psFlags, recording.psFlags);
    QCOMPARE(copy.toPrimary, recording.toPrimary);
    QCOMPARE(copy.digitalIds, recording.digitalIds);
    QCOMPARE(copy.digitalNormalStates, recording.digitalNormalStates);
    QCOMPARE(copy.sampleRate, recording.sampleRate);
    QCOMPARE(copy.lineFrequency, recording.lineFrequency);
    QCOMPARE(copy.lastSampleNumber, last + 1);
    QCOMPARE(copy.startTime, recording.startTime);
    QCOMPARE(copy.fileType, recording.fileType);
    QCOMPARE(copy.timeMultiplier, recording.timeMultiplier);
    QCOMPARE(copy.sampleTimes, recording.sampleTimes);
    QCOMPARE(copy.analogChannels.size(), recording.analogChannels.size());
    for (int k = 0; k < copy.analogChannels.size(); ++k) {
        QCOMPARE(copy.analogChannels.at(k)->rawValues, recording.analogChannels.at(k)->rawValues);
        QCOMPARE(copy.analogChannels.at(k)->values, recording.analogChannels.at(k)->values);
    }
    QCOMPARE(copy.digitalChannels.size(), recording.digitalChannels.size());
    for (int j = 0; j < copy.digitalChannels.size(); ++j)
        QCOMPARE(copy.digitalChannels.at(j)->values, recording.digitalChannels.at(j)->values);

    // The copy lacks the last line end, as every copy does, and nothing is lost by that.
    CFGProperties again;
    folder.load(again, first.configuration, first.data, "again");
    const Written second = written(again, -infinite, infinite);
    QCOMPARE(second.configuration, first.configuration);
    QVERIFY(second.data == first.data);
}

QTEST_GUILESS_MAIN(TestWrittenFiles)
#include "tst_writtenfiles.moc"
