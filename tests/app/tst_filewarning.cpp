// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filewarning.h"

#include <QtTest>

class TestFileWarning : public QObject {
    Q_OBJECT

private slots:
    void endsWithOnePoint_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("warning");
        const auto row = [](const char *name, const QString &reason, const QString &ending) {
            QTest::newRow(name) << reason << QLatin1String("Cannot read file C:/a.cfg:\n") + ending;
        };
        row("reason of the toolkit", QStringLiteral("Permission denied"),
            QStringLiteral("Permission denied."));
        row("reason with a point", QStringLiteral("Path not found."),
            QStringLiteral("Path not found."));
        row("white space behind the point", QStringLiteral("Access is denied. \r\n"),
            QStringLiteral("Access is denied."));
        row("Chinese point", QStringLiteral("系统找不到指定的路径。"),
            QStringLiteral("系统找不到指定的路径."));
        row("points inside stay", QStringLiteral("Not found. Try again"),
            QStringLiteral("Not found. Try again."));
        row("no reason", QString(), QStringLiteral("."));
    }

    void endsWithOnePoint()
    {
        QFETCH(QString, reason);
        QTEST(fileWarning(
                  QStringLiteral("Cannot read file %1:\n%2."), QStringLiteral("C:/a.cfg"), reason),
            "warning");
    }

    void signsInThePathStay()
    {
        QCOMPARE(fileWarning(QStringLiteral("%1:\n%2."), QStringLiteral("100%2."),
                     QStringLiteral("Path not found.")),
            QStringLiteral("100%2.:\nPath not found."));
    }
};

QTEST_GUILESS_MAIN(TestFileWarning)
#include "tst_filewarning.moc"
