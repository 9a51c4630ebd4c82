// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "addplotterdialog.h"
#include "pseudotranslator.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

class TestAddPlotterDialog : public QObject {
    Q_OBJECT

private slots:
    void init();
    void showsItsTexts();
    void offersTheNamesInOrder();
    void movesNothingWithoutASelection();
    void movesASelectedItem();
    void movesSeveralItemsAtOnce();
    void movesSeveralItemsInTheOrderOfTheirSelection();
    void movesANameByADoubleClick();
    void putsAReturnedNameLast();
    void givesTheRightListInItsOrder();
    void givesNamesOfEveryKind();
    void tellsEqualNamesApart();
    void givesWholeTheNamesThatItCuts();
    void showsBothEndsOfLongNames();
    void acceptsAnEmptyChoice();
    void rejectsOnCancel();
    void keepsItsListsUntilNamesAreGivenAgain();
    void beginsWithTheNameToBeTypedOver();
    void retranslatesOnALanguageChange();

private:
    void select(QListWidget *list, const QStringList &names);
    void add(const QStringList &names);
    void remove(const QStringList &names);
    QStringList left() const;
    template <typename T> T *child(const char *name) const
    {
        return dialog->findChild<T *>(QLatin1String(name));
    }

    std::unique_ptr<AddPlotterDialog> dialog;
};

void TestAddPlotterDialog::init()
{
    dialog = std::make_unique<AddPlotterDialog>();
    dialog->setChannelNames({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
}

// Clicks the items as a person would: the first one alone, the others with Ctrl.
void TestAddPlotterDialog::select(QListWidget *list, const QStringList &names)
{
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const QString &name : names) {
        const QListWidgetItem *item = list->findItems(name, Qt::MatchExactly).value(0);
        QVERIFY2(item, qPrintable(name));
        QTest::mouseClick(
            list->viewport(), Qt::LeftButton, modifiers, list->visualItemRect(item).center());
        modifiers = Qt::ControlModifier;
    }
}

void TestAddPlotterDialog::add(const QStringList &names)
{
    select(child<QListWidget>("listWidget_unSelected"), names);
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
}

void TestAddPlotterDialog::remove(const QStringList &names)
{
    select(child<QListWidget>("listWidget_Selected"), names);
    QTest::mouseClick(child<QPushButton>("pushButton_remove"), Qt::LeftButton);
}

QStringList TestAddPlotterDialog::left() const
{
    QStringList names;
    const auto *list = child<QListWidget>("listWidget_unSelected");
    for (int row = 0; row < list->count(); ++row)
        names.append(list->item(row)->text());
    return names;
}

void TestAddPlotterDialog::showsItsTexts()
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Add Graph"));
    QCOMPARE(child<QLabel>("GraphNameLabel")->text(), QStringLiteral("Graph name: "));
    QCOMPARE(child<QPushButton>("pushButton_add")->text(), QStringLiteral(">>"));
    QCOMPARE(child<QPushButton>("pushButton_remove")->text(), QStringLiteral("<<"));
}

void TestAddPlotterDialog::offersTheNamesInOrder()
{
    QCOMPARE(left(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(dialog->selectedChannels(), QStringList());
}

void TestAddPlotterDialog::movesNothingWithoutASelection()
{
    add({});
    remove({});
    QCOMPARE(left(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
    QCOMPARE(dialog->selectedChannels(), QStringList());
}

void TestAddPlotterDialog::movesASelectedItem()
{
    add({QStringLiteral("B")});
    QCOMPARE(left(), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("B")}));
}

void TestAddPlotterDialog::movesSeveralItemsAtOnce()
{
    add({QStringLiteral("A"), QStringLiteral("C")});
    QCOMPARE(left(), QStringList({QStringLiteral("B")}));
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
}

void TestAddPlotterDialog::movesSeveralItemsInTheOrderOfTheirSelection()
{
    dialog->show();
    auto *list = child<QListWidget>("listWidget_unSelected");
    for (const int row : {2, 0}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
            list->visualItemRect(list->item(row)).center());
    }
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("C"), QStringLiteral("A")}));
}

void TestAddPlotterDialog::movesANameByADoubleClick()
{
    const auto doubleClick = [](QListWidget *list, int row) {
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    };
    auto *unselected = child<QListWidget>("listWidget_unSelected");
    doubleClick(unselected, 1);
    doubleClick(unselected, 1);
    QCOMPARE(left(), QStringList({QStringLiteral("A")}));
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("B"), QStringLiteral("C")}));
    doubleClick(child<QListWidget>("listWidget_Selected"), 0);
    QCOMPARE(left(), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("C")}));
}

void TestAddPlotterDialog::putsAReturnedNameLast()
{
    add({QStringLiteral("A")});
    add({QStringLiteral("B")});
    add({QStringLiteral("C")});
    remove({QStringLiteral("B")});
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
    remove({QStringLiteral("A")});
    QCOMPARE(left(), QStringList({QStringLiteral("B"), QStringLiteral("A")}));
}

void TestAddPlotterDialog::givesTheRightListInItsOrder()
{
    add({QStringLiteral("C")});
    add({QStringLiteral("A")});
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("C"), QStringLiteral("A")}));
}

void TestAddPlotterDialog::givesNamesOfEveryKind()
{
    const QStringList names{QStringLiteral("U0/3I0"), QStringLiteral("U0/3I0"), QStringLiteral("*"),
        QStringLiteral("I[1]"), QStringLiteral("&U"), QString()};
    dialog->setChannelNames(names);
    child<QListWidget>("listWidget_unSelected")->selectAll();
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
    QCOMPARE(dialog->selectedChannels(), names);
}

// There and back, and again.
void TestAddPlotterDialog::tellsEqualNamesApart()
{
    const QStringList names{QStringLiteral("I"), QStringLiteral("U"), QStringLiteral("I")};
    dialog->setChannelNames(names);
    auto *offered = child<QListWidget>("listWidget_unSelected");
    auto *chosen = child<QListWidget>("listWidget_Selected");
    const auto click = [](QListWidget *list, int row) {
        QTest::mouseClick(
            list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    };
    click(offered, 2);
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
    QCOMPARE(dialog->selectedNumbers(), QList<int>({2}));
    click(offered, 0);
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
    QCOMPARE(dialog->selectedNumbers(), QList<int>({2, 0}));
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("I"), QStringLiteral("I")}));
    click(chosen, 0);
    QTest::mouseClick(child<QPushButton>("pushButton_remove"), Qt::LeftButton);
    QCOMPARE(dialog->selectedNumbers(), QList<int>({0}));
    click(offered, 1); // moved back, it is the last one
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
    QCOMPARE(dialog->selectedNumbers(), QList<int>({0, 2}));
    dialog->setChannelNames(names);
    QCOMPARE(dialog->selectedNumbers(), QList<int>());
}

void TestAddPlotterDialog::givesWholeTheNamesThatItCuts()
{
    const QString same(1000, QLatin1Char('W'));
    const QStringList names{same + QLatin1Char('1'), same + QLatin1Char('2')};
    dialog->setChannelNames(names);
    QCOMPARE(left(), QStringList({same, same}));
    auto *list = child<QListWidget>("listWidget_unSelected");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
        QPoint(5, list->visualItemRect(list->item(1)).y() + 5));
    QTest::mouseClick(child<QPushButton>("pushButton_add"), Qt::LeftButton);
    QCOMPARE(dialog->selectedChannels(), QStringList({same + QLatin1Char('2')}));
    QCOMPARE(dialog->selectedNumbers(), QList<int>({1}));
}

// Each name differs from the next at one end; what of them does not differ looks the same.
void TestAddPlotterDialog::showsBothEndsOfLongNames()
{
    const QString middle(300, QLatin1Char('m'));
    const QStringList names{QStringLiteral("AA ") + middle + QStringLiteral(" ZZ"),
        QStringLiteral("AA ") + middle + QStringLiteral(" YY"),
        QStringLiteral("BB ") + middle + QStringLiteral(" YY")};
    const auto *list = child<QListWidget>("listWidget_unSelected");
    for (int twice = 0; twice < 2; ++twice) {
        dialog->setChannelNames(names);
        QCoreApplication::processEvents();
        QVERIFY(!list->horizontalScrollBar()->isVisible());
        const QImage image = dialog->grab().toImage();
        const QPoint corner = list->viewport()->mapTo(dialog.get(), QPoint());
        const auto row = [&](int i) {
            return image.copy(list->visualItemRect(list->item(i)).translated(corner));
        };
        const int width = row(0).width();
        const auto start = [&](int i) { return row(i).copy(0, 0, 20, 14); };
        const auto end = [&](int i) { return row(i).copy(width / 2, 0, width / 2, 14); };
        QCOMPARE(start(0), start(1));
        QVERIFY(end(0) != end(1));
        QVERIFY(start(1) != start(2));
        QCOMPARE(list->item(1)->toolTip(), names.at(1));
        dialog->resize(dialog->width() + 100, dialog->height());
    }
}

void TestAddPlotterDialog::acceptsAnEmptyChoice()
{
    QTest::mouseClick(
        child<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->graphName(), QString());
    QCOMPARE(dialog->selectedChannels(), QStringList());
}

void TestAddPlotterDialog::rejectsOnCancel()
{
    QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    QTest::mouseClick(
        child<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!dialog->isVisible());
}

void TestAddPlotterDialog::keepsItsListsUntilNamesAreGivenAgain()
{
    QTest::keyClicks(child<QLineEdit>("lineEdit_graphName"), QStringLiteral("Feeder 2"));
    add({QStringLiteral("B")});
    dialog->close();
    dialog->show();
    QCOMPARE(dialog->graphName(), QStringLiteral("Feeder 2"));
    QCOMPARE(left(), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
    QCOMPARE(dialog->selectedChannels(), QStringList({QStringLiteral("B")}));

    dialog->setChannelNames({QStringLiteral("X")});
    QCOMPARE(left(), QStringList({QStringLiteral("X")}));
    QCOMPARE(dialog->selectedChannels(), QStringList());
}

void TestAddPlotterDialog::beginsWithTheNameToBeTypedOver()
{
    auto *name = child<QLineEdit>("lineEdit_graphName");
    name->setText(QStringLiteral("Currents"));
    child<QPushButton>("pushButton_add")->setFocus();
    dialog->setChannelNames({QStringLiteral("A")});
    QCOMPARE(dialog->focusWidget(), name);
    QCOMPARE(name->selectedText(), QStringLiteral("Currents"));
}

void TestAddPlotterDialog::retranslatesOnALanguageChange()
{
    PseudoTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("<AddPlotterDialog>Add Graph"));
    QCOMPARE(
        child<QLabel>("GraphNameLabel")->text(), QStringLiteral("<AddPlotterDialog>Graph name: "));
    QCOMPARE(child<QPushButton>("pushButton_add")->text(), QStringLiteral("<AddPlotterDialog>>>"));
    QCOMPARE(
        child<QPushButton>("pushButton_remove")->text(), QStringLiteral("<AddPlotterDialog><<"));
    QCOMPARE(left(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
}

QTEST_MAIN(TestAddPlotterDialog)
#include "tst_addplotterdialog.moc"
