// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotswindow.h"
#include "plotterdg.h"

#include <QLabel>
#include <QScrollBar>

namespace {

// How often each widget has changed its size.
class ResizeCounter : public QObject {
public:
    QMap<const QObject *, int> counts;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        counts[watched] += event->type() == QEvent::Resize ? 1 : 0;
        return false;
    }
};

// How often the pointer has entered plots, and whether one of these was still linked to the plot
// that goes.
class EntryCounter : public QObject {
public:
    explicit EntryCounter(Plotter *gone) : m_gone(gone) { }

    int entered = 0;
    bool isLinked = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Enter) {
            ++entered;
            isLinked = isLinked || static_cast<Plotter *>(watched)->linked().contains(m_gone);
        }
        return false;
    }

private:
    Plotter *m_gone; // for its address alone
};

} // namespace

// Plots that the user composes, and their removal.
class TestOwnPlots : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void namesOfferedForANewPlot_data();
    void namesOfferedForANewPlot();
    void aPlotIsComposed();
    void aPlotOfSpectraOnly();
    void equalNamesAddTheirOwnChannels();
    void equalNamesInAPlainListAddTheFirst();
    void namesThatDifferBeyondTheCutAddTheirOwnChannels();
    void namesOfNoChannelAddNothing();
    void pendingEventsRunBeforeTheColumnIsScrolled();
    void anotherRecordingEndsTheDialog();
    void aCancelledDialogAddsNothing();
    void nothingChosenAddsNothing();
    void plotsWithoutANameAreNumbered();
    void plotsAreRemovedNewestFirst();
    void plotsOfOneNameAreRemovedOneByOne();
    void removingWithoutAnAddedPlotDisablesTheAction();
    void aRemovedPlotHoldsTheKeyboardNoMore();
    void aRemovedPlotTakesItsTitleEditorAlong();
    void aSiblingGoesOnDraggingACursor();
    void aSiblingGoesOnWithItsBand();
    void aSiblingGoesOnEditingItsTitle();
    void anAddedPlotStartsAtTheFirstPlotsTime();
    void anAddedPlotStartsWhereTheFirstOneWasScrolledTo();
    void anAddedPlotScrollsWithTheOthers();
    void aRemovedPlotTakesItsReadoutAway();
    void anAddedPlotIsScrolledIntoView();
    void thePointerEntersPlotsAsTheOthersGo_data();
    void thePointerEntersPlotsAsTheOthersGo();
    void aRemovalMovesTheOthersAtOnce_data();
    void aRemovalMovesTheOthersAtOnce();

private:
    // With a plot "Currents" beside the first one and the digital one.
    void addToBeRemoved()
    {
        open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
        compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
        QApplication::setActiveWindow(window.get());
    }
    static void move(Plotter *plot, const QPoint &position)
    {
        QMouseEvent event(QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(plot, &event);
    }
};

void TestOwnPlots::namesOfferedForANewPlot_data()
{
    QTest::addColumn<QStringList>("channels");
    QTest::addColumn<QStringList>("names");
    const auto list
        = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(',')); };
    QTest::newRow("waveforms first, then spectra") << list("Ia,Ib") << list("Ia,Ib,Ia_FFT,Ib_FFT");
    QTest::newRow("no spectra of measurements") << list("Ia,MEAS f") << list("Ia,MEAS f,Ia_FFT");
    QTest::newRow("only measurements") << list("MEAS f,MEASP") << list("MEAS f,MEASP");
    QTest::newRow("small letters are no measurement")
        << list("Meas f") << list("Meas f,Meas f_FFT");
}

void TestOwnPlots::namesOfferedForANewPlot()
{
    QFETCH(QStringList, channels);
    open(channels, {});
    compose({}, {}, false);
    QTEST(offered, "names");
}

void TestOwnPlots::aPlotIsComposed()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ib"), QStringLiteral("Ia_FFT"), QStringLiteral("Ia")},
        QStringLiteral("Currents"));
    Plotter *added = plot(QStringLiteral("Currents"));
    QVERIFY(added);
    QCOMPARE(added->channels(), QList<int>({1, 2, 0})); // in the order of the choice
    QCOMPARE(plots(), QList<Plotter *>({analog(), added, digital()}));
    QCOMPARE(added->minimumHeight(), 200);
    QVERIFY(added->isVisible());
    QVERIFY(action("&Remove Plotter")->isEnabled());
    QCOMPARE(analog()->linked(), QList<Plotter *>({digital(), added}));
    QCOMPARE(added->linked(), QList<Plotter *>({digital(), analog()}));
}

void TestOwnPlots::aPlotOfSpectraOnly()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    compose({QStringLiteral("Ib_FFT")}, QStringLiteral("Spectra"));
    const Plotter *added = plot(QStringLiteral("Spectra"));
    QCOMPARE(added->channels(), QList<int>{3});
    QVERIFY(added->showsSpectrum());
    QCOMPARE(added->home().minY, 0.0);
}

// All entries are chosen; the spectra follow the waveforms.
void TestOwnPlots::equalNamesAddTheirOwnChannels()
{
    const QString name = QStringLiteral("Ia");
    open({name, QStringLiteral("MEAS"), name, QStringLiteral("Ia_FFT")}, {});
    compose({name}, QStringLiteral("Waves"));
    QCOMPARE(plot(QStringLiteral("Waves"))->channels(), QList<int>({0, 2}));
    // The channel of that name and the spectra of both others; the first is the first one's.
    compose({QStringLiteral("Ia_FFT")}, QStringLiteral("Spectra"));
    QCOMPARE(plot(QStringLiteral("Spectra"))->channels(), QList<int>({4, 6}));
    compose({QStringLiteral("Ia_FFT_FFT"), name}, QStringLiteral("Both"));
    QCOMPARE(plot(QStringLiteral("Both"))->channels(), QList<int>({7, 0, 2}));
}

void TestOwnPlots::equalNamesInAPlainListAddTheFirst()
{
    const QString name = QStringLiteral("Ia");
    open({QStringLiteral("Ib"), name, name}, {});
    window->addPlotter({name, QStringLiteral("Ia_FFT")});
    QCOMPARE(plot(QStringLiteral("Graph 1"))->channels(), QList<int>({1, 4}));
    window->addPlotter({name, name});
    QCOMPARE(plot(QStringLiteral("Graph 2"))->channels(), QList<int>({1}));
}

void TestOwnPlots::namesThatDifferBeyondTheCutAddTheirOwnChannels()
{
    const QString same(1000, QLatin1Char('W'));
    open({same + QLatin1Char('1'), same + QLatin1Char('2')}, {});
    compose({}, {}, false);
    QCOMPARE(offered, QStringList({same, same, same, same}));
    QTimer::singleShot(0, window.get(), [&] {
        auto *dialog = qobject_cast<AddPlotterDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        auto *left = dialog->findChild<QListWidget *>(QStringLiteral("listWidget_unSelected"));
        for (const int row : {3, 1}) {
            const int y = left->visualItemRect(left->item(row)).center().y();
            QTest::mouseClick(left->viewport(), Qt::LeftButton, Qt::ControlModifier, {5, y});
        }
        QTest::mouseClick(
            dialog->findChild<QPushButton *>(QStringLiteral("pushButton_add")), Qt::LeftButton);
        dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_graphName"))
            ->setText(QStringLiteral("Second"));
        dialog->accept();
    });
    action("&Add Plotter")->trigger();
    QVERIFY(plot(QStringLiteral("Second")));
    QCOMPARE(plot(QStringLiteral("Second"))->channels(), QList<int>({3, 1}));
    QStringList tips;
    for (const QLabel *label :
        plot(QStringLiteral("Second"))->findChildren<QLabel *>(QStringLiteral("channelLabel")))
        tips.append(label->toolTip());
    QCOMPARE(tips,
        QStringList(
            {same + QStringLiteral("(A)_FFT\nA\nline"), same + QStringLiteral("(A)\nA\nline")}));
}

// A name that ends with "_FFT" is the spectrum of a channel, of which there is none here.
void TestOwnPlots::namesOfNoChannelAddNothing()
{
    open({QStringLiteral("Ia_FFT"), QStringLiteral("Ib")}, {});
    compose({QStringLiteral("Ia_FFT")}, QStringLiteral("Currents"));
    QCOMPARE(plots().size(), 2);
    QVERIFY(!action("&Remove Plotter")->isEnabled());
}

void TestOwnPlots::pendingEventsRunBeforeTheColumnIsScrolled()
{
    open({QStringLiteral("Ia")}, {});
    bool hasRun = false;
    QTimer::singleShot(0, window.get(), [&] { hasRun = true; });
    window->addPlotter({QStringLiteral("Ia")});
    QVERIFY(hasRun);
}

void TestOwnPlots::anotherRecordingEndsTheDialog()
{
    open({QStringLiteral("Ia")}, {});
    bool wasShown = false;
    QTimer::singleShot(0, window.get(), [&] {
        wasShown = qobject_cast<AddPlotterDialog *>(QApplication::activeModalWidget());
        open({QStringLiteral("Ib")}, {});
    });
    action("&Add Plotter")->trigger();
    QVERIFY(wasShown);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(plots().size(), 2);
}

void TestOwnPlots::aCancelledDialogAddsNothing()
{
    open({QStringLiteral("Ia")}, {});
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"), false);
    QCOMPARE(plots().size(), 2);
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    compose({QStringLiteral("Ia")}, QStringLiteral("More"), false);
    QCOMPARE(plots().size(), 3);
    QVERIFY(action("&Remove Plotter")->isEnabled());
}

void TestOwnPlots::nothingChosenAddsNothing()
{
    open({QStringLiteral("Ia")}, {});
    compose({}, QStringLiteral("Currents"));
    QCOMPARE(plots().size(), 2);
    QVERIFY(!action("&Remove Plotter")->isEnabled());
}

void TestOwnPlots::plotsWithoutANameAreNumbered()
{
    open({QStringLiteral("Ia")}, {});
    compose({QStringLiteral("Ia")});
    compose({QStringLiteral("Ia")}, QStringLiteral("  "));
    QVERIFY(plot(QStringLiteral("Graph 1")));
    QVERIFY(plot(QStringLiteral("Graph 2")));
}

void TestOwnPlots::plotsAreRemovedNewestFirst()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    compose({QStringLiteral("Ia")}, QStringLiteral("first"));
    compose({QStringLiteral("Ia")}, QStringLiteral("second"));
    action("&Remove Plotter")->trigger();
    QVERIFY(plot(QStringLiteral("first")));
    QVERIFY(!plot(QStringLiteral("second")));
    QCOMPARE(analog()->linked(), QList<Plotter *>({digital(), plot(QStringLiteral("first"))}));
    QVERIFY(action("&Remove Plotter")->isEnabled());
    action("&Remove Plotter")->trigger();
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QCOMPARE(plots(), QList<Plotter *>({analog(), digital()}));
    QCOMPARE(analog()->linked(), QList<Plotter *>{digital()});
    action("Zoom In")->trigger();
    QCOMPARE(digital()->view().maxX, 50.0);
}

void TestOwnPlots::plotsOfOneNameAreRemovedOneByOne()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    for (int i = 0; i < 2; ++i)
        compose({QStringLiteral("Ia")}, QStringLiteral("Digital"));
    for (int left = 3; left >= 2; --left) {
        action("&Remove Plotter")->trigger();
        QCOMPARE(plots().size(), left);
        for (const Plotter *each : plots()) {
            for (const Plotter *linked : each->linked())
                QVERIFY(plots().contains(const_cast<Plotter *>(linked)));
        }
        action("Zoom In")->trigger();
    }
}

void TestOwnPlots::removingWithoutAnAddedPlotDisablesTheAction()
{
    open({QStringLiteral("Ia")}, {});
    action("&Remove Plotter")->setEnabled(true);
    window->removePlotter();
    QVERIFY(!action("&Remove Plotter")->isEnabled());
    QCOMPARE(plots().size(), 2);
}

void TestOwnPlots::aRemovedPlotHoldsTheKeyboardNoMore()
{
    addToBeRemoved();
    move(plot(QStringLiteral("Currents")), {300, 100});
    QCOMPARE(QWidget::keyboardGrabber(), plot(QStringLiteral("Currents")));
    action("&Remove Plotter")->trigger();
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestOwnPlots::aRemovedPlotTakesItsTitleEditorAlong()
{
    addToBeRemoved();
    QTest::mouseDClick(plot(QStringLiteral("Currents")), Qt::LeftButton, {}, {90, 25});
    QVERIFY(qobject_cast<QLineEdit *>(QWidget::keyboardGrabber()));
    action("&Remove Plotter")->trigger();
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestOwnPlots::aSiblingGoesOnDraggingACursor()
{
    addToBeRemoved();
    QTest::mouseDClick(analog(), Qt::LeftButton, {}, {300, 150});
    const auto *label = analog()->findChild<QLabel *>(QStringLiteral("lineLabel"));
    QTest::mousePress(analog(), Qt::LeftButton, {}, label->geometry().center());
    move(analog(), {330, 100});
    const double before = analog()->cursors().first();
    action("&Remove Plotter")->trigger();
    move(analog(), {400, 100});
    QTest::mouseRelease(analog(), Qt::LeftButton, {}, {400, 100});
    QVERIFY(analog()->cursors().first() > before);
    QCOMPARE(digital()->cursors(), analog()->cursors());
}

void TestOwnPlots::aSiblingGoesOnWithItsBand()
{
    addToBeRemoved();
    QTest::mousePress(analog(), Qt::LeftButton, {}, {300, 100});
    move(analog(), {400, 130});
    QCOMPARE(QWidget::keyboardGrabber(), analog());
    action("&Remove Plotter")->trigger();
    QCOMPARE(QWidget::keyboardGrabber(), analog());
    move(analog(), {500, 150});
    QTest::mouseRelease(analog(), Qt::LeftButton, {}, {500, 150});
    QVERIFY(analog()->view().maxX < 100);
    QCOMPARE(digital()->view().maxX, analog()->view().maxX);
}

void TestOwnPlots::aSiblingGoesOnEditingItsTitle()
{
    addToBeRemoved();
    QTest::mouseDClick(analog(), Qt::LeftButton, {}, {90, 25});
    QWidget *editor = QWidget::keyboardGrabber();
    action("&Remove Plotter")->trigger();
    QCOMPARE(QWidget::keyboardGrabber(), editor);
    QTest::keyClicks(editor, QStringLiteral("Feeder"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(analog()->findChild<QLabel *>(QStringLiteral("Plotter Label"))->text(),
        QStringLiteral("Feeder"));
    QVERIFY(!QWidget::keyboardGrabber());
}

void TestOwnPlots::anAddedPlotStartsAtTheFirstPlotsTime()
{
    open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {});
    action("Zoom In")->trigger();
    compose({QStringLiteral("Ib")}, QStringLiteral("Currents"));
    QCOMPARE(plot(QStringLiteral("Currents"))->view().maxX, 50.0);
    action("Zoom In")->trigger();
    QCOMPARE(plot(QStringLiteral("Currents"))->view().maxX, analog()->view().maxX);
}

// Alone, by a wheel, two intervals of 10 ms to the right; the digital plot stays.
void TestOwnPlots::anAddedPlotStartsWhereTheFirstOneWasScrolledTo()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    const QPoint position(400, 100);
    QWheelEvent sideways(position, analog()->mapToGlobal(position), {}, {120, 240}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(analog(), &sideways);
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    QCOMPARE(plot(QStringLiteral("Currents"))->view().minX, 20.0);
    QCOMPARE(plot(QStringLiteral("Currents"))->view().maxX, 120.0);
    QCOMPARE(digital()->view().minX, 0.0);
}

// The bar goes to 2, where the views begin at 20 ms; the zoom sets it to 4, at intervals of 5 ms.
// Then it is turned to 2, which moves the views by two intervals.
void TestOwnPlots::anAddedPlotScrollsWithTheOthers()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    action("Zoom In")->trigger();
    window->horizontalScrollBar()->setValue(2);
    compose({QStringLiteral("Ia")}, QStringLiteral("Currents"));
    action("Zoom In")->trigger();
    window->horizontalScrollBar()->setValue(2);
    for (const Plotter *each : plots())
        QCOMPARE(each->view().minX, 30.0);
}

void TestOwnPlots::aRemovedPlotTakesItsReadoutAway()
{
    open({QStringLiteral("Ia"), QStringLiteral("a name that needs much room")}, {});
    click(list("listWidget"), 1); // out of the first plot
    QTest::mouseDClick(analog(), Qt::LeftButton, {}, {300, 150});
    const int width = analog()->geometryOfView().readoutWidth();
    for (int i = 0; i < 2; ++i) {
        compose({QStringLiteral("a name that needs much room")});
        QVERIFY(analog()->geometryOfView().readoutWidth() > width);
        action("&Remove Plotter")->trigger();
        QCOMPARE(analog()->geometryOfView().readoutWidth(), width);
    }
}

void TestOwnPlots::anAddedPlotIsScrolledIntoView()
{
    open({QStringLiteral("Ia")}, {QStringLiteral("D1")});
    for (int i = 0; i < 4; ++i)
        compose({QStringLiteral("Ia")});
    const Plotter *newest = plot(QStringLiteral("Graph 4"));
    QCOMPARE(newest->visibleRegion().boundingRect().size(), newest->size());
}

void TestOwnPlots::thePointerEntersPlotsAsTheOthersGo_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("another recording") << "load";
    QTest::newRow("removal") << "removal";
    QTest::newRow("the end of the window") << "end";
}

// The toolkit tells the plot below a deleted one that the pointer is over it, in mid-deletion.
void TestOwnPlots::thePointerEntersPlotsAsTheOthersGo()
{
    QFETCH(QString, way);
    for (int twice = 0; twice < 2; ++twice) {
        open({QStringLiteral("Ia"), QStringLiteral("Ib")}, {QStringLiteral("D1")});
        window->resize(1200, 1500); // none is out of sight
        for (int i = 0; i < 2; ++i)
            compose({QStringLiteral("Ib")});
        QCoreApplication::processEvents();
        const bool byRemoval = way == QLatin1String("removal");
        Plotter *gone = byRemoval ? plot(QStringLiteral("Graph 2")) : analog();
        const QPoint place = gone->mapTo(window.get(), gone->rect().center());
        QTest::mouseMove(window->windowHandle(), {1, 1});
        QCursor::setPos(window->mapToGlobal(place));
        QTest::mouseMove(window->windowHandle(), place);
        QCoreApplication::processEvents();
        QVERIFY(gone->underMouse());
        // The others come to stand where it stands.
        for (Plotter *plot : plots()) {
            if (plot != gone)
                plot->setGeometry(gone->geometry());
        }
        EntryCounter entries(gone);
        for (Plotter *plot : plots())
            plot->installEventFilter(&entries);
        if (byRemoval)
            trigger("&Remove Plotter");
        else if (way == QLatin1String("load"))
            openUsual();
        else
            closeWindow();
        QVERIFY(entries.entered > 0);
        QVERIFY(!entries.isLinked);
        if (!window)
            openWindow();
    }
}

void TestOwnPlots::aRemovalMovesTheOthersAtOnce_data()
{
    QTest::addColumn<QStringList>("rows"); // of the digital plot
    QTest::newRow("few rows") << QStringList{QStringLiteral("D1")};
    QStringList many;
    for (int i = 1; i <= 30; ++i)
        many.append(QStringLiteral("D%1a").arg(i));
    QTest::newRow("many rows") << many;
}

// Each change of its size has a plot drawn again.
void TestOwnPlots::aRemovalMovesTheOthersAtOnce()
{
    QFETCH(QStringList, rows);
    open({QStringLiteral("Ia")}, rows);
    for (int i = 0; i < 4; ++i)
        compose({QStringLiteral("Ia")}); // the last two of them need a scroll bar
    for (int left = 4; left > 2; --left) {
        QCoreApplication::processEvents();
        ResizeCounter counter;
        for (Plotter *each : plots())
            each->installEventFilter(&counter);
        action("&Remove Plotter")->trigger();
        QTest::qWait(20);
        QCOMPARE(plots().size(), left + 1);
        for (const Plotter *each : plots())
            QVERIFY2(counter.counts.value(each) <= 1, qPrintable(each->name()));
    }
}

QTEST_MAIN(TestOwnPlots)
#include "tst_ownplots.moc"
