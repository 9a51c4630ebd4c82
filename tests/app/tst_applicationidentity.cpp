// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "applicationidentity.h"

#include <QtTest>

class TestApplicationIdentity : public QObject {
    Q_OBJECT

private slots:
    void beginsAsTheMakersWithoutNames();
    void keepsWhatWasSet();
};

void TestApplicationIdentity::beginsAsTheMakersWithoutNames()
{
    QCOMPARE(ApplicationIdentity::brand(), 0);
    QCOMPARE(ApplicationIdentity::organisationName(), QString());
    QCOMPARE(ApplicationIdentity::applicationName(), QString());
}

void TestApplicationIdentity::keepsWhatWasSet()
{
    ApplicationIdentity::setBrand(3);
    ApplicationIdentity::setOrganisationName(QStringLiteral("Norvale"));
    ApplicationIdentity::setApplicationName(QStringLiteral("Wavorin"));
    QCOMPARE(ApplicationIdentity::brand(), 3);
    QCOMPARE(ApplicationIdentity::organisationName(), QStringLiteral("Norvale"));
    QCOMPARE(ApplicationIdentity::applicationName(), QStringLiteral("Wavorin"));
}

QTEST_GUILESS_MAIN(TestApplicationIdentity)
#include "tst_applicationidentity.moc"
