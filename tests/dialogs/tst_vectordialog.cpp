// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cursorplotter.h"
#include "drawingcounter.h"
#include "fakedialoghost.h"
#include "phasorrecording.h"
#include "pseudotranslator.h"
#include "vectordialog.h"
#include "vectorwidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

class TestVectorDialog : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsItsTexts();
    void startsWithOnePanel();
    void startsWithoutNames();
    void offersTheNamesAsReference();
    void resetsTheReferenceWithNewNames();
    void keepsTheReferenceWithANewPlotter();
    void addsPanelsLeftToRight();
    void givesAnAddedPanelEverything();
    void removesAPanel();
    void handsTheFocusOnWithARemovedPanel_data();
    void handsTheFocusOnWithARemovedPanel();
    void keepsTheFocusElsewhere();
    void keepsTheFirstPanel();
    void handsThePlotterToEveryPanel();
    void redrawsEveryPanelWhenTheReferenceChanges();
    void turnsEveryPanelByTheReference();
    void refreshesWhileVisible();
    void refreshesNothingWhileHidden();
    void retranslatesOnALanguageChange();
    void survivesCallsBeforeTheMainWindowIsSet();
    void survivesAStrangerAsMainWindow();

private:
    QList<VectorWidget *> panels() const;
    QComboBox *references() const
    {
        return dialog->findChild<QComboBox *>(QStringLiteral("comboBox_reference"));
    }
    void addPanel();
    void show();

    PhasorRecording recording;
    std::unique_ptr<FakeDialogHost> host;
    VectorDialog *dialog = nullptr; // the host's
    std::unique_ptr<CursorPlotter> plotter;
};

namespace {

QToolButton *removeButton(const VectorWidget *panel)
{
    return panel->findChild<QToolButton *>(QStringLiteral("toolButton"));
}

QImage pictureOf(const VectorWidget *panel)
{
    return panel->findChild<QLabel *>(QStringLiteral("labelVector"))
        ->pixmap(Qt::ReturnByValue)
        .toImage();
}

bool isWaiting(const VectorWidget *panel)
{
    const auto *timer = panel->findChild<QTimer *>();
    return timer->isActive() && timer->interval() == 10;
}

} // namespace

void TestVectorDialog::init()
{
    recording = PhasorRecording();
    recording.add(QStringLiteral("IL1"), 1, 50, 95);
    recording.add(QStringLiteral("IL2"), 2, 50, 95);
    host = std::make_unique<FakeDialogHost>();
    host->shown = recording.properties.get();
    dialog = new VectorDialog(host.get());
    dialog->setMainWindow(host.get());
    plotter = std::make_unique<CursorPlotter>(QList<double>{50}, host.get());
}

void TestVectorDialog::cleanup()
{
    plotter.reset();
    host.reset();
}

// Left to right.
QList<VectorWidget *> TestVectorDialog::panels() const
{
    const auto *layout
        = dialog->findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout_vectors"));
    QList<VectorWidget *> widgets;
    for (int i = 0; i < layout->count(); ++i)
        widgets.append(qobject_cast<VectorWidget *>(layout->itemAt(i)->widget()));
    return widgets;
}

void TestVectorDialog::addPanel()
{
    QTest::mouseClick(
        dialog->findChild<QToolButton *>(QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly),
        Qt::LeftButton);
}

// With the recording's names, waiting until all panels have drawn.
void TestVectorDialog::show()
{
    dialog->setPlotter(plotter.get());
    dialog->setChannelNames(recording.properties->analogIds);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    for (const VectorWidget *panel : panels())
        QTRY_VERIFY(!pictureOf(panel).isNull());
}

void TestVectorDialog::showsItsTexts()
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Vectors"));
    QCOMPARE(dialog->findChild<QLabel *>(QStringLiteral("label"))->text(),
        QStringLiteral("Reference: "));
    QVERIFY(!dialog->isModal());
}

void TestVectorDialog::startsWithOnePanel()
{
    QCOMPARE(VectorDialog().findChildren<VectorWidget *>().size(), 0);
    QCOMPARE(panels().size(), 1);
    QVERIFY(!removeButton(panels().at(0))->isEnabled());
}

void TestVectorDialog::startsWithoutNames()
{
    QCOMPARE(references()->count(), 0);
    QCOMPARE(dialog->referenceName(), QString());
    addPanel();
    QCOMPARE(panels().size(), 2);
    QVERIFY(dialog->findChildren<QCheckBox *>().isEmpty());
}

void TestVectorDialog::offersTheNamesAsReference()
{
    dialog->setChannelNames({QStringLiteral("B"), QStringLiteral("A")});
    QCOMPARE(references()->count(), 3);
    QCOMPARE(references()->itemText(0), QStringLiteral("-"));
    QCOMPARE(references()->itemText(1), QStringLiteral("B"));
    QCOMPARE(references()->itemText(2), QStringLiteral("A"));
    QCOMPARE(dialog->referenceName(), QStringLiteral("-"));
    references()->setCurrentIndex(2);
    QCOMPARE(dialog->referenceName(), QStringLiteral("A"));
}

void TestVectorDialog::resetsTheReferenceWithNewNames()
{
    addPanel();
    dialog->setChannelNames({QStringLiteral("A"), QStringLiteral("B")});
    references()->setCurrentIndex(1);
    for (QCheckBox *box : dialog->findChildren<QCheckBox *>())
        box->setChecked(true);

    dialog->setChannelNames({QStringLiteral("A")});

    QCOMPARE(references()->count(), 2);
    QCOMPARE(dialog->referenceName(), QStringLiteral("-"));
    for (const VectorWidget *panel : panels()) {
        const auto boxes = panel->findChildren<QCheckBox *>();
        QCOMPARE(boxes.size(), 1);
        QVERIFY(!boxes.at(0)->isChecked());
    }
}

void TestVectorDialog::keepsTheReferenceWithANewPlotter()
{
    dialog->setChannelNames({QStringLiteral("A"), QStringLiteral("B")});
    references()->setCurrentIndex(2);
    dialog->setPlotter(plotter.get());
    QCOMPARE(dialog->referenceName(), QStringLiteral("B"));
}

void TestVectorDialog::addsPanelsLeftToRight()
{
    VectorWidget *first = panels().at(0);
    addPanel();
    VectorWidget *second = panels().at(1);
    addPanel();
    QCOMPARE(panels().size(), 3);
    QCOMPARE(panels().at(0), first);
    QCOMPARE(panels().at(1), second);
    QVERIFY(removeButton(second)->isEnabled());
}

void TestVectorDialog::givesAnAddedPanelEverything()
{
    show();
    addPanel();
    VectorWidget *added = panels().at(1);
    QTRY_VERIFY(!pictureOf(added).isNull());
    const auto boxes = added->findChildren<QCheckBox *>();
    QCOMPARE(boxes.size(), 2);
    QCOMPARE(boxes.at(1)->text(), QStringLiteral("IL2"));
    boxes.at(0)->setChecked(true);
    panels().at(0)->findChildren<QCheckBox *>().at(0)->setChecked(true);
    QCOMPARE(pictureOf(added), pictureOf(panels().at(0)));
}

void TestVectorDialog::removesAPanel()
{
    show();
    addPanel();
    addPanel();
    references()->setCurrentIndex(1);
    VectorWidget *last = panels().at(2);
    last->findChildren<QCheckBox *>().at(1)->setChecked(true);
    QPointer<VectorWidget> middle = panels().at(1);

    QTest::mouseClick(removeButton(middle), Qt::LeftButton);

    QVERIFY(!middle);
    QCOMPARE(panels().size(), 2);
    QCOMPARE(panels().at(1), last);
    QVERIFY(last->findChildren<QCheckBox *>().at(1)->isChecked());
    QCOMPARE(dialog->referenceName(), QStringLiteral("IL1"));
    references()->setCurrentIndex(2); // reaches the remaining panels only
    QVERIFY(isWaiting(last));
}

void TestVectorDialog::handsTheFocusOnWithARemovedPanel_data()
{
    QTest::addColumn<int>("count"); // of all panels
    QTest::addColumn<QVector<int>>("removed"); // one after the other
    QTest::addColumn<QVector<int>>("focus"); // then, on the button of which; 0 for the one to add
    QTest::newRow("the only one that can be") << 2 << QVector<int>{1} << QVector<int>{0};
    QTest::newRow("the next one moves up") << 3 << QVector<int>{1, 1} << QVector<int>{1, 0};
    QTest::newRow("the last ones") << 4 << QVector<int>{3, 2, 1} << QVector<int>{2, 1, 0};
    QTest::newRow("one between") << 4 << QVector<int>{2, 2, 1} << QVector<int>{2, 1, 0};
}

// All by the keys.
void TestVectorDialog::handsTheFocusOnWithARemovedPanel()
{
    QFETCH(int, count);
    QFETCH(QVector<int>, removed);
    QFETCH(QVector<int>, focus);
    show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    auto *add = dialog->findChild<QToolButton *>(
        QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly);
    QWindow *window = dialog->windowHandle();
    add->setFocus();
    for (int time = 0; time < 2; ++time) { // the last one leaves the focus where it began
        while (panels().size() < count)
            QTest::keyClick(window, Qt::Key_Space);
        for (int i = 0; i < removed.size(); ++i) {
            const QToolButton *minus = removeButton(panels().at(removed.at(i)));
            for (int tab = 0; tab < 30 && !minus->hasFocus(); ++tab)
                QTest::keyClick(window, Qt::Key_Tab);
            QVERIFY(minus->hasFocus());
            QTest::keyClick(window, Qt::Key_Space);
            QCOMPARE(panels().size(), count - 1 - i);
            const QToolButton *expected
                = focus.at(i) == 0 ? add : removeButton(panels().at(focus.at(i)));
            QVERIFY(expected->hasFocus());
            QTest::qWait(20); // the removed button goes now
            QVERIFY(expected->hasFocus());
        }
    }
}

void TestVectorDialog::keepsTheFocusElsewhere()
{
    show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    addPanel();
    addPanel();
    references()->setFocus();
    QTest::mouseClick(removeButton(panels().at(2)), Qt::LeftButton);
    QVERIFY(references()->hasFocus());
    panels().at(1)->findChildren<QCheckBox *>().at(1)->setFocus(); // goes with its panel
    QTest::mouseClick(removeButton(panels().at(1)), Qt::LeftButton);
    QCOMPARE(panels().size(), 1);
    QCOMPARE(dialog->focusWidget(),
        dialog->findChild<QWidget *>(QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly));
}

void TestVectorDialog::keepsTheFirstPanel()
{
    dialog->deleteWidgetSlot(panels().at(0));
    dialog->deleteWidgetSlot(nullptr);
    QCOMPARE(panels().size(), 1);
}

void TestVectorDialog::handsThePlotterToEveryPanel()
{
    addPanel();
    show();
    for (const VectorWidget *panel : panels())
        QVERIFY(pictureOf(panel).pixelColor(30, 21).alpha() != 0); // the grid
    dialog->setPlotter(nullptr);
    for (VectorWidget *panel : panels()) {
        panel->drawAll();
        QCOMPARE(pictureOf(panel).pixelColor(30, 21).alpha(), 0);
    }
}

void TestVectorDialog::redrawsEveryPanelWhenTheReferenceChanges()
{
    addPanel();
    addPanel();
    show();
    QTest::qWait(200); // for the drawings that being shown brings
    std::vector<std::unique_ptr<DrawingCounter>> counters;
    for (const VectorWidget *panel : panels())
        counters.push_back(std::make_unique<DrawingCounter>(panel));
    references()->setCurrentIndex(1);
    for (const VectorWidget *panel : panels())
        QVERIFY(isWaiting(panel));
    for (const auto &counter : counters)
        QTRY_COMPARE(counter->count(), 1);
    QTest::qWait(100);
    for (const auto &counter : counters)
        QCOMPARE(counter->count(), 1);
}

void TestVectorDialog::turnsEveryPanelByTheReference()
{
    addPanel();
    show();
    for (VectorWidget *panel : panels())
        panel->findChildren<QCheckBox *>().at(0)->setChecked(true);
    const QImage before = pictureOf(panels().at(0));
    QCOMPARE(pictureOf(panels().at(1)), before);
    references()->setCurrentIndex(1);
    // IL1 at 50 of 100 lies on the positive horizontal axis: 76 pixels from (182, 172).
    const QColor orange(250, 140, 20);
    for (const VectorWidget *panel : panels()) {
        const auto lies = [panel, orange] {
            const QImage image = pictureOf(panel);
            return image.pixelColor(183, 171) == orange || image.pixelColor(183, 172) == orange;
        };
        QTRY_VERIFY(lies());
    }
}

void TestVectorDialog::refreshesWhileVisible()
{
    addPanel();
    show();
    QTRY_VERIFY(!isWaiting(panels().at(0)) && !isWaiting(panels().at(1)));
    dialog->refresh();
    QVERIFY(isWaiting(panels().at(0)));
    QVERIFY(isWaiting(panels().at(1)));
}

void TestVectorDialog::refreshesNothingWhileHidden()
{
    dialog->refresh();
    QVERIFY(!isWaiting(panels().at(0)));
    dialog->setChannelNames({QStringLiteral("A"), QStringLiteral("B")});
    QVERIFY(!isWaiting(panels().at(0)));
}

void TestVectorDialog::retranslatesOnALanguageChange()
{
    dialog->setChannelNames({QStringLiteral("A")});
    references()->setCurrentIndex(1);
    PseudoTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("<VectorDialog>Vectors"));
    QCOMPARE(dialog->findChild<QLabel *>(QStringLiteral("label"))->text(),
        QStringLiteral("<VectorDialog>Reference: "));
    QCOMPARE(dialog->referenceName(), QStringLiteral("A"));
}

void TestVectorDialog::survivesCallsBeforeTheMainWindowIsSet()
{
    VectorDialog early;
    early.setPlotter(plotter.get());
    early.setChannelNames({QStringLiteral("A")});
    early.show();
    early.refresh();
    QCOMPARE(early.referenceName(), QStringLiteral("-"));
}

void TestVectorDialog::survivesAStrangerAsMainWindow()
{
    QObject stranger;
    dialog = new VectorDialog(host.get());
    dialog->setMainWindow(&stranger);
    show();
    QCOMPARE(panels().size(), 1);
}

QTEST_MAIN(TestVectorDialog)
#include "tst_vectordialog.moc"
