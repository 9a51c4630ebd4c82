#include "applicationidentity.h"

#include <QtTest>

class tst_ApplicationIdentity : public QObject {
    Q_OBJECT

private slots:
    void beginsAsTheMakersWithoutNames();
    void keepsWhatWasSet();
};

void tst_ApplicationIdentity::beginsAsTheMakersWithoutNames()
{
    QCOMPARE(ApplicationIdentity::brand(), 0);
    QCOMPARE(ApplicationIdentity::organisationName(), QString());
    QCOMPARE(ApplicationIdentity::applicationName(), QString());
}

void tst_ApplicationIdentity::keepsWhatWasSet()
{
    ApplicationIdentity::setBrand(3);
    ApplicationIdentity::setOrganisationName(QStringLiteral("Norvale"));
    ApplicationIdentity::setApplicationName(QStringLiteral("Wavorin"));
    QCOMPARE(ApplicationIdentity::brand(), 3);
    QCOMPARE(ApplicationIdentity::organisationName(), QStringLiteral("Norvale"));
    QCOMPARE(ApplicationIdentity::applicationName(), QStringLiteral("Wavorin"));
}

QTEST_GUILESS_MAIN(tst_ApplicationIdentity)
#include "tst_applicationidentity.moc"
