// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "memoryfile.h"
#include "recentrecordings.h"
#include "windowtest.h"

#include <QJsonArray>
#include <QTemporaryDir>

namespace {

const QString key = QStringLiteral("recordings");

QString root(const QString &path)
{
    return QDir::rootPath() + path;
}

QString rooted(int number)
{
    return root(QStringLiteral("rec/%1.cfg").arg(number));
}

} // namespace

class TestRecentRecordings : public QObject {
    Q_OBJECT

private slots:
    void init() { startAsMaker(); }

    void latestFirst();
    void tenAtMost();
    void noneTwice();
    void plainPaths_data();
    void plainPaths();
    void whatOthersWroteIsSifted();
    void whatAnotherInstanceAddedStays();
    void goneOrNot();
};

void TestRecentRecordings::latestFirst()
{
    QVERIFY(recentRecordings().isEmpty());
    for (int i = 1; i <= 3; ++i)
        rememberRecording(rooted(i));
    QCOMPARE(recentRecordings(), QStringList({rooted(3), rooted(2), rooted(1)}));
}

void TestRecentRecordings::tenAtMost()
{
    for (int i = 1; i <= 12; ++i)
        rememberRecording(rooted(i));
    QCOMPARE(recentRecordings().size(), 10);
    QCOMPARE(recentRecordings().constFirst(), rooted(12));
    QCOMPARE(recentRecordings().constLast(), rooted(3));
    QCOMPARE(remembered(key).toArray().size(), 10);
}

void TestRecentRecordings::noneTwice()
{
    for (const int i : {1, 2, 1, 1, 3, 2})
        rememberRecording(rooted(i));
    QCOMPARE(recentRecordings(), QStringList({rooted(2), rooted(3), rooted(1)}));
    rememberRecording(root(QStringLiteral("rec/3.CFG")));
#ifdef Q_OS_WIN
    QCOMPARE(recentRecordings().size(), 3);
#else
    QCOMPARE(recentRecordings().size(), 4);
#endif
    QCOMPARE(recentRecordings().constFirst(), root(QStringLiteral("rec/3.CFG")));
}

void TestRecentRecordings::plainPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a detour") << root(QStringLiteral("rec/../rec//./1.cfg")) << rooted(1);
    QTest::newRow("from the working folder")
        << QStringLiteral("1.cfg") << QDir::current().absoluteFilePath(QStringLiteral("1.cfg"));
    const QString odd = root(QStringLiteral("häiriöt/\"1\" & 短路 \\.zip"));
    QTest::newRow("letters of all kinds") << odd << QDir::cleanPath(odd);
}

void TestRecentRecordings::plainPaths()
{
    QFETCH(QString, path);
    rememberRecording(path);
    QTEST(recentRecordings().value(0), "expected");
    QCOMPARE(recentRecordings().size(), 1);
}

void TestRecentRecordings::whatOthersWroteIsSifted()
{
    QJsonArray written{1, true, QJsonValue(), QJsonArray{rooted(4)}, QString(),
        QStringLiteral("1.cfg"), rooted(1), rooted(1), root(QString(5000, QLatin1Char('x')))};
    for (int i = 2; i < 200; ++i)
        written.append(rooted(i));
    remember(key, written);
    QCOMPARE(recentRecordings().size(), 10);
    for (int i = 1; i <= 10; ++i)
        QCOMPARE(recentRecordings().at(i - 1), rooted(i));
    remember(key, QStringLiteral("no list"));
    QVERIFY(recentRecordings().isEmpty());
}

void TestRecentRecordings::whatAnotherInstanceAddedStays()
{
    rememberRecording(rooted(1));
    remember(key, QJsonArray{rooted(2), rooted(1)}); // by the other one
    rememberRecording(rooted(3));
    QCOMPARE(recentRecordings(), QStringList({rooted(3), rooted(2), rooted(1)}));
}

void TestRecentRecordings::goneOrNot()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("1.cfg")));
    QVERIFY(!isStillThere(file.fileName()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(isStillThere(file.fileName()));
    file.close();
    QVERIFY(file.remove());
    QVERIFY(!isStillThere(file.fileName()));
    QVERIFY(!isStillThere(folder.path())); // a folder is none
    QVERIFY(isStillThere(QStringLiteral("//server/share/1.cfg"))); // which is not asked
}

QTEST_MAIN(TestRecentRecordings)
#include "tst_recentrecordings.moc"
