// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "ctvtdialog.h"
#include "fakedialoghost.h"
#include "pseudotranslator.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>
#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

QStringList repeated(const char *text, int count)
{
    return QVector<QString>(count, QLatin1String(text)).toList();
}

} // namespace

class TestCTVTDialog : public QObject {
    Q_OBJECT

private slots:
    void init();
    void showsItsTexts();
    void showsARowPerChannel();
    void showsNamesAsPlainText();
    void cutsEndlessNames();
    void setsTheFactors_data();
    void setsTheFactors();
    void setsEachChannelByItsRow();
    void announcesTheScaleBeforeThePlotsAreRefreshed();
    void keepsAppliedTexts();
    void dropsEditsThatWereNotSet();
    void keepsEditsWhileItIsOnlyUncovered();
    void onlyAnnouncesWithoutChannels();
    void survivesARecordingWithFewerChannels();
    void survivesAMissingRecording();
    void survivesAStrangerAsParent();
    void clearsItsRows();
    void fitsTheScreenWithAHundredChannels();
    void makesRowsAsTheyComeIntoSight();
    void setsTheChannelsWhoseRowsAreNotMade();
    void tabsThroughRowsThatAreNotMadeYet();
    void retranslatesOnALanguageChange();

private:
    void addChannel(const QString &flag);
    void setRow(int row, const QString &primary, const QString &secondary);
    QWidget *cell(int row, int column) const;
    QLineEdit *edit(int row, int column) const
    {
        return qobject_cast<QLineEdit *>(cell(row, column));
    }
    template <typename T> T *child(const char *name) const
    {
        return dialog->findChild<T *>(QLatin1String(name));
    }
    void click(const char *button)
    {
        QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
    }

    std::unique_ptr<CFGProperties> recording;
    std::vector<std::unique_ptr<AnalogChannel>> channels;
    std::unique_ptr<FakeDialogHost> host;
    CTVTDialog *dialog = nullptr; // the host's
};

void TestCTVTDialog::init()
{
    recording = std::make_unique<CFGProperties>();
    channels.clear();
    host = std::make_unique<FakeDialogHost>();
    host->shown = recording.get();
    dialog = new CTVTDialog(host.get());
}

void TestCTVTDialog::addChannel(const QString &flag)
{
    channels.push_back(std::make_unique<AnalogChannel>());
    channels.back()->ps = flag;
    channels.back()->toPrimary = 7;
    channels.back()->toSecondary = 9;
    recording->analogChannels.append(channels.back().get());
}

// Types both ratings over what is there.
void TestCTVTDialog::setRow(int row, const QString &primary, const QString &secondary)
{
    edit(row, 1)->clear();
    QTest::keyClicks(edit(row, 1), primary);
    edit(row, 2)->clear();
    QTest::keyClicks(edit(row, 2), secondary);
}

// Row 0 is the first channel's.
QWidget *TestCTVTDialog::cell(int row, int column) const
{
    QLayoutItem *item = child<QGridLayout>("gridLayout")->itemAtPosition(row + 1, column);
    return item ? item->widget() : nullptr;
}

void TestCTVTDialog::showsItsTexts()
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Rescale CTVT"));
    auto *grid = child<QGridLayout>("gridLayout");
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), child<QLabel>("label"));
    QCOMPARE(grid->itemAtPosition(0, 1)->widget(), child<QLabel>("label_2"));
    QCOMPARE(grid->itemAtPosition(0, 2)->widget(), child<QLabel>("label_3"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("Signal"));
    QCOMPARE(child<QLabel>("label_2")->text(), QStringLiteral("Primary"));
    QCOMPARE(child<QLabel>("label_3")->text(), QStringLiteral("Secondary"));
    QCOMPARE(child<QPushButton>("pushButton_Set")->text(), QStringLiteral("Set"));
    QCOMPARE(child<QPushButton>("pushButton_Close")->text(), QStringLiteral("Close"));
}

void TestCTVTDialog::showsARowPerChannel()
{
    dialog->setChannels({QStringLiteral("IL1"), QStringLiteral("UL1")},
        {QStringLiteral("600"), QStringLiteral("20000")},
        {QStringLiteral("5"), QStringLiteral("100")});
    dialog->show();
    QCOMPARE(qobject_cast<QLabel *>(cell(0, 0))->text(), QStringLiteral("IL1"));
    QCOMPARE(edit(0, 1)->text(), QStringLiteral("600"));
    QCOMPARE(edit(0, 2)->text(), QStringLiteral("5"));
    QCOMPARE(qobject_cast<QLabel *>(cell(1, 0))->text(), QStringLiteral("UL1"));
    QCOMPARE(edit(1, 1)->text(), QStringLiteral("20000"));
    QCOMPARE(edit(1, 2)->text(), QStringLiteral("100"));
    QVERIFY(!cell(2, 0));
}

void TestCTVTDialog::showsNamesAsPlainText()
{
    dialog->setChannels({QStringLiteral("<b>I</b>")}, {QString()}, {QString()});
    QCOMPARE(qobject_cast<QLabel *>(cell(0, 0))->textFormat(), Qt::PlainText);
}

void TestCTVTDialog::cutsEndlessNames()
{
    dialog->setChannels({QString(1001, QLatin1Char('W'))}, {QString()}, {QString()});
    QCOMPARE(qobject_cast<QLabel *>(cell(0, 0))->text(), QString(1000, QLatin1Char('W')));
}

void TestCTVTDialog::setsTheFactors_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<QString>("primary");
    QTest::addColumn<QString>("secondary");
    QTest::addColumn<double>("toPrimary");
    QTest::addColumn<double>("toSecondary");

    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto row = [](const char *name, const char *flag, const char *primary,
                         const char *secondary, double toPrimary, double toSecondary) {
        QTest::newRow(name) << QString::fromLatin1(flag) << QString::fromLatin1(primary)
                            << QString::fromLatin1(secondary) << toPrimary << toSecondary;
    };
    row("secondary samples", "S", "600", "5", 120, 5);
    row("primary samples", "P", "600", "5", 600, 5.0 / 600);
    row("decimals and exponents", "S", "2.5e3", "0.5", 5000, 0.5);
    row("a secondary of 0 makes the primary factor infinite", "S", "600", "0", infinity, 0);
    row("a primary of 0 makes the secondary factor infinite", "P", "0", "5", 0, infinity);
    row("0 to 0 is stored as it is", "S", "0", "0", none, 0);
    row("text counts as 0", "P", "abc", "5", 0, infinity);
    row("an empty field counts as 0", "S", "600", "", infinity, 0);
    row("a decimal comma counts as 0", "S", "600,5", "5", 0, 5);
    row("a negative primary of secondary samples", "S", "-600", "5", -120, 5);
    row("a negative secondary of primary samples", "P", "600", "-5", 600, -5.0 / 600);
    row("huge ratings", "S", "1e308", "1", 1e308, 1);
    row("a factor beyond all bounds", "S", "1e300", "1e-300", infinity, 1e-300);
    row("a factor below all bounds", "P", "1e300", "1e-300", 1e300, 0);
    row("any other flag keeps the factors", "X", "600", "5", 7, 9);
    row("an empty flag keeps the factors", "", "600", "5", 7, 9);
    row("a small letter is another flag", "s", "600", "5", 7, 9);
    row("and so is a small p", "p", "600", "5", 7, 9);
}

void TestCTVTDialog::setsTheFactors()
{
    QFETCH(QString, flag);
    QFETCH(QString, primary);
    QFETCH(QString, secondary);
    QFETCH(double, toPrimary);
    QFETCH(double, toSecondary);
    addChannel(flag);
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("1")}, {QStringLiteral("1")});
    dialog->show();
    setRow(0, primary, secondary);

    click("pushButton_Set");

    QCOMPARE(channels[0]->toPrimary, toPrimary);
    QCOMPARE(channels[0]->toSecondary, toSecondary);
    QCOMPARE(dialog->primaryTexts(), QStringList(primary));
    QCOMPARE(dialog->secondaryTexts(), QStringList(secondary));
}

void TestCTVTDialog::setsEachChannelByItsRow()
{
    addChannel(QStringLiteral("S"));
    addChannel(QStringLiteral("P"));
    dialog->setChannels({QStringLiteral("I"), QStringLiteral("U")},
        {QStringLiteral("600"), QStringLiteral("200")},
        {QStringLiteral("5"), QStringLiteral("100")});
    dialog->show();

    click("pushButton_Set");

    QCOMPARE(channels[0]->toPrimary, 120.0);
    QCOMPARE(channels[1]->toPrimary, 200.0);
    QCOMPARE(channels[1]->toSecondary, 0.5);
}

void TestCTVTDialog::announcesTheScaleBeforeThePlotsAreRefreshed()
{
    addChannel(QStringLiteral("S"));
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    dialog->show();
    int announcements = 0;
    connect(dialog, &CTVTDialog::scaleChanged, this, [&] {
        ++announcements;
        QCOMPARE(channels[0]->toPrimary, 120.0);
        QCOMPARE(host->refreshes, 0);
    });

    click("pushButton_Set");

    QCOMPARE(announcements, 1);
    QCOMPARE(host->refreshes, 1);
    QVERIFY(dialog->isVisible());
}

void TestCTVTDialog::keepsAppliedTexts()
{
    addChannel(QStringLiteral("S"));
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    QCOMPARE(dialog->primaryTexts(), QStringList(QStringLiteral("600")));
    dialog->show();
    setRow(0, QStringLiteral("800"), QStringLiteral("1"));
    QCOMPARE(dialog->primaryTexts(), QStringList(QStringLiteral("600")));
    click("pushButton_Set");
    click("pushButton_Close");
    QVERIFY(!dialog->isVisible());
    dialog->show();
    QCOMPARE(edit(0, 1)->text(), QStringLiteral("800"));
    QCOMPARE(edit(0, 2)->text(), QStringLiteral("1"));
    QCOMPARE(dialog->primaryTexts(), QStringList(QStringLiteral("800")));
    QCOMPARE(dialog->secondaryTexts(), QStringList(QStringLiteral("1")));
}

void TestCTVTDialog::dropsEditsThatWereNotSet()
{
    addChannel(QStringLiteral("S"));
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    dialog->show();
    setRow(0, QStringLiteral("800"), QStringLiteral("1"));
    click("pushButton_Close");
    dialog->show();
    QCOMPARE(edit(0, 1)->text(), QStringLiteral("600"));
    QCOMPARE(edit(0, 2)->text(), QStringLiteral("5"));
    QCOMPARE(channels[0]->toPrimary, 7.0);
}

void TestCTVTDialog::keepsEditsWhileItIsOnlyUncovered()
{
    addChannel(QStringLiteral("S"));
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    dialog->show();
    setRow(0, QStringLiteral("800"), QStringLiteral("1"));
    QShowEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(dialog, &event); // which leaves the event as it is
    QCOMPARE(edit(0, 1)->text(), QStringLiteral("800"));
}

void TestCTVTDialog::onlyAnnouncesWithoutChannels()
{
    dialog->setChannels({}, {}, {});
    dialog->show();
    QVERIFY(!cell(0, 0));
    QSignalSpy changed(dialog, &CTVTDialog::scaleChanged);
    click("pushButton_Set");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(host->refreshes, 1);
}

void TestCTVTDialog::survivesARecordingWithFewerChannels()
{
    addChannel(QStringLiteral("S"));
    dialog->setChannels(
        {QStringLiteral("I"), QStringLiteral("U")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    dialog->show();
    click("pushButton_Set");
    QCOMPARE(channels[0]->toPrimary, 120.0);
    QCOMPARE(dialog->primaryTexts(), QStringList({QStringLiteral("600"), QString()}));
}

void TestCTVTDialog::survivesAMissingRecording()
{
    host->shown = nullptr;
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    dialog->show();
    click("pushButton_Set");
    QCOMPARE(host->refreshes, 1);
}

void TestCTVTDialog::survivesAStrangerAsParent()
{
    QWidget stranger;
    dialog = new CTVTDialog(&stranger);
    dialog->setChannels({QStringLiteral("I")}, {QStringLiteral("600")}, {QStringLiteral("5")});
    dialog->show();
    QSignalSpy changed(dialog, &CTVTDialog::scaleChanged);
    click("pushButton_Set");
    QCOMPARE(changed.count(), 1);
}

void TestCTVTDialog::clearsItsRows()
{
    addChannel(QStringLiteral("S"));
    dialog->setChannels({QStringLiteral("I"), QStringLiteral("U")},
        {QStringLiteral("600"), QStringLiteral("200")},
        {QStringLiteral("5"), QStringLiteral("100")});
    dialog->clearChannels();
    QVERIFY(!cell(0, 0));
    QVERIFY(dialog->findChildren<QLineEdit *>().isEmpty());
    QCOMPARE(dialog->primaryTexts(), QStringList());
    QCOMPARE(dialog->secondaryTexts(), QStringList());

    dialog->setChannels({QStringLiteral("X")}, {QStringLiteral("10")}, {QStringLiteral("2")});
    dialog->show();
    click("pushButton_Set");
    QCOMPARE(channels[0]->toPrimary, 5.0);
    QVERIFY(!cell(1, 0));
}

void TestCTVTDialog::fitsTheScreenWithAHundredChannels()
{
    dialog->setChannels(repeated("IL1", 5), repeated("600", 5), repeated("5", 5));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    const int low = dialog->height();
    QVERIFY(!edit(4, 2)->visibleRegion().isEmpty());
    dialog->close();

    dialog->clearChannels();
    dialog->setChannels(repeated("IL1", 100), repeated("600", 100), repeated("5", 100));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QTRY_VERIFY(dialog->height() > low);
    QVERIFY(dialog->height() <= dialog->screen()->availableSize().height());
    QVERIFY(!child<QPushButton>("pushButton_Set")->visibleRegion().isEmpty());
    QVERIFY(edit(99, 2)->visibleRegion().isEmpty()); // to be scrolled to
}

void TestCTVTDialog::makesRowsAsTheyComeIntoSight()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names.append(QStringLiteral("I%1").arg(i));
    const auto rows = [this] { return dialog->findChildren<QLineEdit *>().size() / 2; };
    dialog->setChannels(names, repeated("600", 1000), repeated("5", 1000));
    QCOMPARE(rows(), 32);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QCOMPARE(rows(), 256);
    dialog->close();
    dialog->show();
    QCOMPARE(rows(), 256);

    QScrollBar *bar = child<QScrollArea>("scrollArea")->verticalScrollBar();
    for (int made : {512, 768, 1000}) {
        QTRY_VERIFY((bar->setValue(bar->maximum()), rows() == made));
    }
    bar->setValue(0);
    bar->setValue(bar->maximum());
    QCOMPARE(rows(), 1000);
    QCOMPARE(qobject_cast<QLabel *>(cell(999, 0))->text(), QStringLiteral("I999"));
    QVERIFY(!cell(1000, 0));

    dialog->close();
    dialog->clearChannels();
    QCOMPARE(rows(), 0);
    dialog->setChannels(names.mid(0, 2), repeated("600", 2), repeated("5", 2));
    dialog->show();
    QCOMPARE(rows(), 2);
}

void TestCTVTDialog::setsTheChannelsWhoseRowsAreNotMade()
{
    for (int i = 0; i < 300; ++i)
        addChannel(QStringLiteral("S"));
    dialog->setChannels(QVector<QString>(300, QStringLiteral("I")).toList(), repeated("600", 300),
        repeated("5", 300));
    dialog->show();
    setRow(0, QStringLiteral("800"), QStringLiteral("2"));
    QVERIFY(!cell(299, 0));
    click("pushButton_Set");
    QCOMPARE(channels[0]->toPrimary, 400.0);
    QCOMPARE(channels[299]->toPrimary, 120.0);
    QCOMPARE(channels[299]->toSecondary, 5.0);
    QCOMPARE(dialog->primaryTexts().size(), 300);
    QCOMPARE(dialog->primaryTexts().first(), QStringLiteral("800"));
    QCOMPARE(dialog->primaryTexts().last(), QStringLiteral("600"));
}

void TestCTVTDialog::tabsThroughRowsThatAreNotMadeYet()
{
    dialog->setChannels(repeated("I", 300), repeated("600", 300), repeated("5", 300));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    edit(0, 1)->setFocus();
    for (int i = 1; i < 600; ++i) {
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    QCOMPARE(dialog->focusWidget(), edit(299, 2));
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog->focusWidget(), child<QPushButton>("pushButton_Set"));
}

void TestCTVTDialog::retranslatesOnALanguageChange()
{
    PseudoTranslator translator;
    dialog->show();
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("<CTVTDialog>Rescale CTVT"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("<CTVTDialog>Signal"));
    QCOMPARE(child<QPushButton>("pushButton_Set")->text(), QStringLiteral("<CTVTDialog>Set"));
}

QTEST_MAIN(TestCTVTDialog)
#include "tst_ctvtdialog.moc"
