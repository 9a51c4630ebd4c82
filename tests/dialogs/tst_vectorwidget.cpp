// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "drawingcounter.h"
#include "vectorpanel.h"

#include <QColorDialog>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QMenu>
#include <QScreen>
#include <QToolButton>

namespace {

using namespace vectorpanel;

// Answers the colour dialog that is about to open; an invalid colour cancels it.
void answerColorDialog(const QColor &color, QColor *initial = nullptr)
{
    QTimer::singleShot(100, qApp, [color, initial] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        if (initial)
            *initial = dialog->currentColor();
        dialog->setCurrentColor(color);
        if (color.isValid())
            dialog->accept();
        else
            dialog->reject();
    });
}

// The context menu that the Menu key opens on a widget.
QMenu *menuByKey(QWidget *widget)
{
    widget->setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, widget->rect().center());
    QApplication::sendEvent(widget, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

} // namespace

class TestVectorWidget : public QObject, private VectorPanelFixture {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void showsItsForm();
    void offersThreeCheckBoxesARow();
    void makesVeryManyCheckBoxesLittleByLittle();
    void colorsTheCheckBoxes_data();
    void colorsTheCheckBoxes();
    void replacesTheCheckBoxes();
    void staysAsWideWithLongNames();
    void tellsANameOfTagsAsItStands();
    void showsAnAmpersandInAName();
    void drawsAfterBeingShown();
    void staysTransparentWithoutAPlotter();
    void drawsTheGridAloneWithoutCursors();
    void drawsUnnumberedAxesWithoutAChannel();
    void turnsByTheReference_data();
    void turnsByTheReference();
    void scalesToTheLargestCheckedChannel();
    void printsMagnitudesInThreeColumns();
    void printsZeroOutsideTheRecordedSpan();
    void drawsAnUnknownNameInEntryEight();
    void printsZeroForANameWithoutARecord();
    void survivesAMissingRecording();
    void survivesAStrangerAsMainWindow();
    void survivesADeletedPlotter();
    void changesAColor();
    void keepsTheColorOnCancel();
    void keepsTheSheetOfABoxThatSharesTheColor();
    void offersTheColorByKeysOverACheckBoxAlone();
    void offersNoColorOfARemovedCheckBox();
    void asksForAColorOnlyOverACheckBox();
    void drawsOnceForManyRequests();
    void drawsAnewOnAScreenOfAnotherFactor();
    void drawsWhileRequestsKeepComing();
    void drawsLaterWhatIsAskedWhileItWaits();
    void asksToBeRemoved();
    void survivesItsRemovalWhileItWaits_data();
    void survivesItsRemovalWhileItWaits();
    void drawsPanelsOutOfView();
    void drawsAtTheScreensScale();
};

void TestVectorWidget::showsItsForm()
{
    QCOMPARE(label("labelVector")->size(), QSize(365, 365));
    QCOMPARE(label("labelMagnitudes")->size(), QSize(365, 85));
    QCOMPARE(panel->minimumWidth(), panel->maximumWidth());
    QCOMPARE(
        panel->findChild<QFrame *>(QStringLiteral("frame"))->frameShape(), QFrame::StyledPanel);
    QCOMPARE(panel->windowTitle(), QStringLiteral("Form"));
    show();
    QVERIFY(panel->rect().contains(
        QRect(label("labelVector")->mapTo(panel, QPoint(0, 0)), QSize(365, 365))));
}

void TestVectorWidget::offersThreeCheckBoxesARow()
{
    panel->setChannelNames({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
        QStringLiteral("D"), QStringLiteral("E")});
    const auto *grid = panel->findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    const QStringList names{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
        QStringLiteral("D"), QStringLiteral("E")};
    QCOMPARE(checkBoxes().size(), 5);
    for (int i = 0; i < 5; ++i) {
        const int row = i < 3 ? 0 : 1;
        const int column = i < 3 ? i : i - 3;
        auto *box = qobject_cast<QCheckBox *>(grid->itemAtPosition(row, column)->widget());
        QVERIFY(box);
        QCOMPARE(box->text(), names.at(i));
        QVERIFY(!box->isChecked());
    }
}

void TestVectorWidget::makesVeryManyCheckBoxesLittleByLittle()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names.append(QStringLiteral("I%1").arg(i));
    dialog->setChannelNames(names);
    QCOMPARE(checkBoxes().size(), 36);
    dialog->show();
    QCOMPARE(checkBoxes().size(), 240);
    QCoreApplication::processEvents();
    dialog->hide();
    QCoreApplication::processEvents();
    const int made = checkBoxes().size();
    QVERIFY(made < 1000);
    QTest::qWait(50);
    QCOMPARE(checkBoxes().size(), made);
    dialog->show();
    QTRY_COMPARE(checkBoxes().size(), 1000);
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(checkBoxes().at(i)->text(), names.at(i));
    const auto *grid = panel->findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    QCOMPARE(grid->itemAtPosition(333, 0)->widget(), checkBoxes().last());

    dialog->setChannelNames(names.mid(0, 2));
    QCOMPARE(checkBoxes().size(), 2);
    QTest::qWait(50);
    QCOMPARE(checkBoxes().size(), 2);
}

void TestVectorWidget::colorsTheCheckBoxes_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("sheet");

    const auto row = [](int box, const char *components) {
        QTest::addRow("check box %d", box)
            << box << QStringLiteral("QCheckBox{color: rgb(%1);}").arg(QLatin1String(components));
    };
    row(0, "250,140,20");
    row(1, "0,255,0");
    row(2, "100,150,255");
    row(3, "223,105,209");
    row(4, "60,150,0");
    row(5, "80,150,180");
    row(6, "193,137,62");
    row(7, "0,255,255");
    row(8, "245,30,18");
    row(9, "112,146,190");
    row(10, "0,0,0");
    row(11, "200,191,231");
    row(12, "177,177,177");
    row(13, "250,140,20");
}

void TestVectorWidget::colorsTheCheckBoxes()
{
    QFETCH(int, box);
    panel->setChannelNames(QVector<QString>(14, QStringLiteral("I")).toList());
    QTEST(checkBoxes().at(box)->styleSheet(), "sheet");
}

void TestVectorWidget::replacesTheCheckBoxes()
{
    panel->setChannelNames({QStringLiteral("A"), QStringLiteral("B")});
    check(0);
    panel->setChannelNames({QStringLiteral("C")});
    QCOMPARE(checkBoxes().size(), 1);
    QCOMPARE(checkBoxes().at(0)->text(), QStringLiteral("C"));
    QVERIFY(!checkBoxes().at(0)->isChecked());
}

void TestVectorWidget::staysAsWideWithLongNames()
{
    const int width = panel->width();
    recording.add(QString(60, QLatin1Char('W')), 0, 50, extremeOf100);
    recording.add(QStringLiteral("B"), 0, 50, extremeOf100);
    show();
    QCOMPARE(panel->width(), width);
    QVERIFY(!checkBoxes().at(1)->visibleRegion().isEmpty());
    QCOMPARE(checkBoxes().at(0)->toolTip(), QString(60, QLatin1Char('W')));
}

void TestVectorWidget::tellsANameOfTagsAsItStands()
{
    recording.add(QStringLiteral("<b>x</b>"), 0, 50, extremeOf100);
    show();
    QCOMPARE(checkBoxes().at(0)->toolTip(), QStringLiteral("&lt;b&gt;x&lt;/b&gt;"));
}

void TestVectorWidget::showsAnAmpersandInAName()
{
    recording.add(QStringLiteral("I&N"), 0, 50, extremeOf100);
    show();
    QCOMPARE(checkBoxes().at(0)->text(), QStringLiteral("I&&N"));
    check(0);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, orange, QStringLiteral("I&N: 50")}}));
}

void TestVectorWidget::drawsAfterBeingShown()
{
    QElapsedTimer elapsed;
    elapsed.start();
    dialog->show();
    QVERIFY(diagram().isNull());
    QTRY_VERIFY(!diagram().isNull());
    QVERIFY(elapsed.elapsed() >= 100);
}

void TestVectorWidget::staysTransparentWithoutAPlotter()
{
    recording.add(QStringLiteral("I"), 0, 50, extremeOf100);
    show();
    check(0);
    QVERIFY(!isTransparent(diagram()));
    dialog->setPlotter(nullptr);
    panel->drawAll();
    QVERIFY(isTransparent(diagram()));
    QVERIFY(isTransparent(magnitudes()));
}

void TestVectorWidget::drawsTheGridAloneWithoutCursors()
{
    setPlotter({});
    recording.add(QStringLiteral("I"), 0, 50, extremeOf100);
    show();
    check(0);
    const QImage image = diagram();
    // Dashed lines at 30 + 0, 30, 60, ... 304 and 20 + 0, 30, 60, ... 304, and nothing outside.
    const QVector<int> lines{0, 30, 60, 91, 121, 152, 182, 213, 243, 274, 304};
    for (const int line : lines) {
        QVERIFY(image.pixelColor(30 + line, 20 + 1).alpha() != 0);
        QVERIFY(image.pixelColor(30 + 1, 20 + line).alpha() != 0);
    }
    QCOMPARE(image.pixelColor(30 + 15, 20 + 15).alpha(), 0);
    QVERIFY(isTransparent(image.copy(0, 0, 29, 365)));
    QVERIFY(isTransparent(image.copy(0, 327, 365, 38)));
    QVERIFY(isTransparent(magnitudes()));
}

void TestVectorWidget::drawsUnnumberedAxesWithoutAChannel()
{
    recording.add(QStringLiteral("I"), 0, 50, extremeOf100);
    show();
    const QImage image = diagram();
    QVERIFY(image.pixelColor(30 + 61, 20 + 1).alpha() != 0); // the grid of an axis of 0
    QVERIFY(!isTransparent(image.copy(0, 20 - 4, 29, 10))); // "nan" at the top left
    QVERIFY(boundsOf(image, orange).isNull());
    QVERIFY(isTransparent(magnitudes()));
}

void TestVectorWidget::turnsByTheReference_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<bool>("referenceChecked");
    QTest::addColumn<QPoint>("end"); // of channel A, from the origin, y upwards

    QTest::newRow("absolute without a reference") << QStringLiteral("-") << false << QPoint(0, 76);
    QTest::newRow("on the axis as its own reference")
        << QStringLiteral("A") << false << QPoint(76, 0);
    QTest::newRow("against a channel that is checked")
        << QStringLiteral("B") << true << QPoint(0, -76);
    QTest::newRow("against a channel that is not checked")
        << QStringLiteral("B") << false << QPoint(0, -76);
}

void TestVectorWidget::turnsByTheReference()
{
    QFETCH(QString, reference);
    QFETCH(bool, referenceChecked);
    QFETCH(QPoint, end);
    recording.add(QStringLiteral("A"), pi / 2, 50, extremeOf100);
    recording.add(QStringLiteral("B"), pi, 50, extremeOf100);
    show();
    check(0);
    if (referenceChecked)
        check(1);
    setReference(reference);
    panel->drawAll();

    const QRect expected = QRect(origin, origin + QPoint(end.x(), -end.y())).normalized();
    const QRect actual = boundsOf(diagram(), orange);
    QVERIFY(expected.adjusted(-1, -1, 1, 1).contains(actual));
    QVERIFY(actual.adjusted(-3, -3, 3, 3).contains(expected));
    const QRect other = boundsOf(diagram(), green);
    QCOMPARE(other.isNull(), !referenceChecked);
    if (referenceChecked)
        QVERIFY(QRect(origin, origin + QPoint(76, 0)).adjusted(-1, -1, 1, 1).contains(other));
}

void TestVectorWidget::scalesToTheLargestCheckedChannel()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    recording.add(QStringLiteral("B"), pi / 2, 500, 950); // axes to 1000
    show();
    check(0);
    const int alone = boundsOf(diagram(), orange).right();
    QVERIFY(alone >= origin.x() + 73);
    check(1);
    QVERIFY(boundsOf(diagram(), orange).right() <= origin.x() + 7);
    QVERIFY(boundsOf(diagram(), green).top() <= origin.y() - 73);
}

void TestVectorWidget::printsMagnitudesInThreeColumns()
{
    recording.add(QStringLiteral("A"), 0, 1.5F, extremeOf100);
    recording.add(QStringLiteral("B"), 0, 1234567, extremeOf100);
    recording.add(QStringLiteral("C"), 0, 3, extremeOf100);
    recording.add(QStringLiteral("D"), 0, 4, extremeOf100);
    setPlotter({50, 20});
    show();
    for (int box = 0; box < 4; ++box)
        check(box);
    QCOMPARE(magnitudes(),
        pictureOf({{{0, 15}, orange, QStringLiteral("A: 1.5")},
            {{121, 15}, green, QStringLiteral("B: 1.23457e+06")},
            {{242, 15}, blue, QStringLiteral("C: 3")}, {{0, 30}, violet, QStringLiteral("D: 4")},
            {{121, 30}, orange, QStringLiteral("A: 1.5")},
            {{242, 30}, green, QStringLiteral("B: 1.23457e+06")},
            {{0, 45}, blue, QStringLiteral("C: 3")}, {{121, 45}, violet, QStringLiteral("D: 4")}}));
}

void TestVectorWidget::printsZeroOutsideTheRecordedSpan()
{
    recording.add(QStringLiteral("A"), 1, 50, extremeOf100);
    setPlotter({-0.5, 100.5});
    show();
    check(0);
    QCOMPARE(magnitudes(),
        pictureOf({{{0, 15}, orange, QStringLiteral("A: 0")},
            {{121, 15}, orange, QStringLiteral("A: 0")}}));
    QVERIFY(boundsOf(diagram(), orange).width() <= 1);
}

void TestVectorWidget::drawsAnUnknownNameInEntryEight()
{
    recording.add(QStringLiteral("A"), 1, 50, extremeOf100);
    show();
    panel->setChannelNames({QStringLiteral("X")});
    check(0);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, QColor(245, 30, 18), QStringLiteral(": 0")}}));
}

void TestVectorWidget::printsZeroForANameWithoutARecord()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    recording.properties->analogIds.append(QStringLiteral("B"));
    show();
    check(1);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, green, QStringLiteral("B: 0")}}));
}

void TestVectorWidget::survivesAMissingRecording()
{
    recording.add(QStringLiteral("A"), 1, 50, extremeOf100);
    show();
    host->shown = nullptr;
    check(0);
    QVERIFY(!isTransparent(diagram()));
}

void TestVectorWidget::survivesAStrangerAsMainWindow()
{
    QObject stranger;
    VectorWidget alone;
    alone.setMainWindow(&stranger);
    alone.setPlotter(plotter.get());
    alone.setChannelNames({QStringLiteral("A")});
    alone.findChild<QCheckBox *>()->setChecked(true);
    alone.show();
    auto *shown = alone.findChild<QLabel *>(QStringLiteral("labelVector"));
    QTRY_VERIFY(!shown->pixmap(Qt::ReturnByValue).isNull());
}

void TestVectorWidget::survivesADeletedPlotter()
{
    recording.add(QStringLiteral("A"), 1, 50, extremeOf100);
    show();
    plotter.reset();
    check(0);
    QVERIFY(isTransparent(diagram()));
}

void TestVectorWidget::changesAColor()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    check(0);
    QColor initial;
    const QColor chosen(1, 2, 3);
    answerColorDialog(chosen, &initial);
    QTest::mouseClick(checkBoxes().at(0), Qt::RightButton);
    QCOMPARE(initial, QColor(Qt::white));
    QCOMPARE(checkBoxes().at(0)->styleSheet(), QStringLiteral("QCheckBox{color: rgb(1,2,3);}"));
    QVERIFY(!boundsOf(diagram(), chosen).isNull());
    QVERIFY(boundsOf(diagram(), orange).isNull());
    QVERIFY(checkBoxes().at(0)->isChecked());
}

void TestVectorWidget::keepsTheColorOnCancel()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    check(0);
    answerColorDialog(QColor());
    QTest::mouseClick(checkBoxes().at(0), Qt::RightButton);
    QCOMPARE(
        checkBoxes().at(0)->styleSheet(), QStringLiteral("QCheckBox{color: rgb(250,140,20);}"));
    QVERIFY(!boundsOf(diagram(), orange).isNull());
}

void TestVectorWidget::keepsTheSheetOfABoxThatSharesTheColor()
{
    for (int i = 0; i < 14; ++i)
        recording.add(QString::number(i), 0, 50, extremeOf100);
    show();
    answerColorDialog(QColor(1, 2, 3));
    QTest::mouseClick(checkBoxes().at(13), Qt::RightButton);
    QCOMPARE(checkBoxes().at(13)->styleSheet(), QStringLiteral("QCheckBox{color: rgb(1,2,3);}"));
    QCOMPARE(
        checkBoxes().at(0)->styleSheet(), QStringLiteral("QCheckBox{color: rgb(250,140,20);}"));
    check(0);
    QVERIFY(!boundsOf(diagram(), QColor(1, 2, 3)).isNull());
    QVERIFY(boundsOf(diagram(), orange).isNull());
}

void TestVectorWidget::offersTheColorByKeysOverACheckBoxAlone()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    recording.add(QStringLiteral("B"), 1, 50, extremeOf100);
    addPanel(); // the second panel has a button that takes the focus
    show();
    panel = dialog->findChildren<VectorWidget *>().at(1);
    check(1);
    const auto entries = [](QMenu *menu) {
        QStringList texts;
        for (const QAction *entry : menu->actions())
            texts.append(entry->text());
        return texts.join(QLatin1Char('|'));
    };
    for (int time = 0; time < 2; ++time) {
        auto *button = panel->findChild<QToolButton *>(QStringLiteral("toolButton"));
        QCOMPARE(entries(menuByKey(button)), QStringLiteral("Measurements..."));
        QApplication::activePopupWidget()->close();
        QMenu *menu = menuByKey(checkBoxes().at(1));
        QCOMPARE(entries(menu), QStringLiteral("Measurements...|Color..."));
        const QColor chosen(1, 2, time);
        QColor initial;
        answerColorDialog(chosen, &initial);
        QTest::keyClick(menu, Qt::Key_Up); // the last entry
        QTest::keyPress(menu, Qt::Key_Return); // it is gone before a release
        QTRY_COMPARE(checkBoxes().at(1)->styleSheet(),
            QStringLiteral("QCheckBox{color: rgb(1,2,%1);}").arg(time));
        QCOMPARE(initial, QColor(Qt::white));
        QTRY_VERIFY(!boundsOf(diagram(), chosen).isNull());
        QCOMPARE(
            checkBoxes().at(0)->styleSheet(), QStringLiteral("QCheckBox{color: rgb(250,140,20);}"));
    }
}

// As by a recording that is opened meanwhile.
void TestVectorWidget::offersNoColorOfARemovedCheckBox()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    QMenu *menu = menuByKey(checkBoxes().at(0));
    dialog->setChannelNames({QStringLiteral("B")});
    QTest::keyClick(menu, Qt::Key_Up);
    QTest::keyPress(menu, Qt::Key_Return); // it is gone before a release
    QTest::qWait(50);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(
        checkBoxes().at(0)->styleSheet(), QStringLiteral("QCheckBox{color: rgb(250,140,20);}"));
}

void TestVectorWidget::asksForAColorOnlyOverACheckBox()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    bool opened = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            opened = true;
            modal->close();
        }
    });
    watch.start(10);
    QTest::mouseClick(label("labelVector"), Qt::RightButton);
    QTest::mouseClick(panel, Qt::RightButton, Qt::NoModifier, QPoint(2, 2));
    QTest::mouseClick(checkBoxes().at(0), Qt::MiddleButton);
    QTest::mouseClick(checkBoxes().at(0), Qt::LeftButton, Qt::NoModifier,
        QPoint(8, checkBoxes().at(0)->height() / 2));
    QTest::qWait(50);
    QVERIFY(!opened);
    QVERIFY(checkBoxes().at(0)->isChecked());
}

void TestVectorWidget::drawsOnceForManyRequests()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    QTest::qWait(200); // for the drawing that being shown brings
    DrawingCounter drawings(panel);
    for (int i = 0; i < 5; ++i)
        panel->requestRedraw();
    QTest::qWait(150);
    QCOMPARE(drawings.count(), 1);
}

void TestVectorWidget::drawsAnewOnAScreenOfAnotherFactor()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    QTest::qWait(200); // for the drawing that being shown brings
    DrawingCounter drawings(panel);
    const auto moveToScreen = [this] {
        QEvent event(QEvent::ScreenChangeInternal);
        QCoreApplication::sendEvent(panel, &event);
        QTest::qWait(150);
    };
    moveToScreen();
    QCOMPARE(drawings.count(), 1);
    panel->hide();
    moveToScreen();
    QCOMPARE(drawings.count(), 1); // it is drawn when it is shown again
}

// As from a cursor that is dragged: the pause between two requests is shorter than the delay.
void TestVectorWidget::drawsWhileRequestsKeepComing()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    QTest::qWait(200); // for the drawing that being shown brings
    DrawingCounter drawings(panel);
    QTimer requests;
    connect(&requests, &QTimer::timeout, panel, &VectorWidget::requestRedraw);
    requests.start(2);
    QTRY_VERIFY_WITH_TIMEOUT(drawings.count() >= 2, 1000);
    QVERIFY(requests.isActive());
}

void TestVectorWidget::drawsLaterWhatIsAskedWhileItWaits()
{
    AnalogChannel &channel = recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    check(0);
    QTimer::singleShot(5, panel, [&] { // the paint event is over by then
        channel.fftMagnitudes.fill(20);
        panel->drawAll();
    });
    panel->drawAll();
    QTRY_COMPARE(magnitudes(), pictureOf({{{0, 15}, orange, QStringLiteral("A: 20")}}));
}

void TestVectorWidget::asksToBeRemoved()
{
    VectorWidget alone;
    QSignalSpy asked(&alone, &VectorWidget::deleteSignal);
    auto *button = alone.findChild<QToolButton *>(QStringLiteral("toolButton"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).value<VectorWidget *>(), &alone);

    alone.disableRemoval();
    QVERIFY(!button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(asked.count(), 1);
}

void TestVectorWidget::survivesItsRemovalWhileItWaits_data()
{
    QTest::addColumn<bool>("wholeDialog");
    QTest::addColumn<bool>("byToggle");

    QTest::newRow("of the panel, in a direct call") << false << false;
    QTest::newRow("of the panel, in a toggled check box") << false << true;
    QTest::newRow("of the dialog, in a direct call") << true << false;
    QTest::newRow("of the dialog, in a toggled check box") << true << true;
}

void TestVectorWidget::survivesItsRemovalWhileItWaits()
{
    QFETCH(bool, wholeDialog);
    QFETCH(bool, byToggle);
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    addPanel();
    panel = dialog->findChildren<VectorWidget *>().last();
    QTRY_VERIFY(!diagram().isNull());
    QTimer::singleShot(0, this, [&] {
        if (wholeDialog)
            delete dialog;
        else
            dialog->deleteWidgetSlot(panel);
    });
    if (byToggle)
        check(0);
    else
        panel->drawAll();
    QTRY_VERIFY(!panel);
    QCOMPARE(dialog.isNull(), wholeDialog);
}

void TestVectorWidget::drawsPanelsOutOfView()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    for (int i = 0; i < 4; ++i)
        addPanel();
    panel = dialog->findChildren<VectorWidget *>().last();
    QTRY_VERIFY(!diagram().isNull());
    QVERIFY(dialog->width() <= dialog->screen()->availableSize().width());
    QVERIFY(panel->visibleRegion().isEmpty());
    check(0);
    QCOMPARE(magnitudes(), pictureOf({{{0, 15}, orange, QStringLiteral("A: 50")}}));
}

void TestVectorWidget::drawsAtTheScreensScale()
{
    recording.add(QStringLiteral("A"), 0, 50, extremeOf100);
    show();
    check(0);
    const qreal scale = qApp->devicePixelRatio();
    const QPixmap pixmap = label("labelVector")->pixmap(Qt::ReturnByValue);
    QCOMPARE(pixmap.devicePixelRatio(), scale);
    QCOMPARE(pixmap.size(), QSize(365, 365) * scale);
    const QRect bounds = boundsOf(pixmap.toImage(), orange);
    QVERIFY(bounds.right() >= (182 + 73) * scale);
    QVERIFY(bounds.right() <= (182 + 77) * scale);
}

QTEST_MAIN(TestVectorWidget)
#include "tst_vectorwidget.moc"
