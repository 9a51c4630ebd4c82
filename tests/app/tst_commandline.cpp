// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "commandline.h"

#include <QtTest>

#include <array>

class TestCommandLine : public QObject {
    Q_OBJECT

private slots:
    void readsArgumentOne_data();
    void readsArgumentOne();
    void missingArgumentIsNull();
    void furtherArgumentsAreIgnored();
    void eightBitTextIsLatin1();
    void knowsQuestions_data();
    void knowsQuestions();
};

void TestCommandLine::readsArgumentOne_data()
{
    QTest::addColumn<QByteArray>("argument"); // in the encoding of the system
    QTest::addColumn<QString>("path");
    QTest::newRow("plain letters")
        << QByteArray("/rec/fault.cfg") << QStringLiteral("/rec/fault.cfg");
#ifdef Q_OS_WIN
    QTest::newRow("letters of Latin-1 arrive whole")
        << QByteArray("h\xe4iri\xf6.cfg") << QStringLiteral("h\u00e4iri\u00f6.cfg");
    QTest::newRow("letters of a Chinese system arrive altered")
        << QByteArray("\xb9\xca.cfg") << QStringLiteral("\u00b9\u00ca.cfg");
#else
    QTest::newRow("letters of Latin-1 arrive whole")
        << QByteArray("h\xc3\xa4iri\xc3\xb6.cfg") << QStringLiteral("h\u00e4iri\u00f6.cfg");
    QTest::newRow("letters outside Latin-1 arrive altered")
        << QByteArray("\xe6\x95\x85.cfg") << QStringLiteral("?.cfg");
#endif
    QTest::newRow("an empty argument") << QByteArray("") << QStringLiteral("");
}

void TestCommandLine::readsArgumentOne()
{
    QFETCH(QByteArray, argument);
    const std::array<const char *, 2> argv{"wavorin", argument.constData()};
    QTEST(pathArgument(2, argv.data()), "path");
}

void TestCommandLine::missingArgumentIsNull()
{
    const std::array<const char *, 2> argv{"wavorin", nullptr};
    QVERIFY(pathArgument(1, argv.data()).isNull());
    QVERIFY(pathArgument(0, argv.data() + 1).isNull());
}

void TestCommandLine::furtherArgumentsAreIgnored()
{
    const std::array<const char *, 3> argv{"wavorin", "one.cfg", "two.cfg"};
    QCOMPARE(pathArgument(3, argv.data()), QStringLiteral("one.cfg"));
}

void TestCommandLine::eightBitTextIsLatin1()
{
#ifdef Q_OS_WIN
    QSKIP("Arguments are not read as UTF-8 there.");
#endif
    QCOMPARE(latin1Argument("h\xc3\xa4iri\xc3\xb6"), QByteArray("h\xe4iri\xf6"));
}

void TestCommandLine::knowsQuestions_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<bool>("known");
    for (const char *question : {"-h", "--help", "-v", "--version"})
        QTest::newRow(question) << QByteArray(question) << true;
    for (const char *other : {"", "help", "--helpless", "--version.cfg", "-platform"})
        QTest::newRow(*other ? other : "nothing") << QByteArray(other) << false;
}

void TestCommandLine::knowsQuestions()
{
    QFETCH(QByteArray, argument);
    const std::array<const char *, 3> argv{"wavorin", argument.constData(), "--help"};
    QTEST(isQuestion(2, argv.data()), "known");
    QTEST(isQuestion(3, argv.data()), "known");
    QVERIFY(!isQuestion(1, argv.data()));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
