// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "drops.h"
#include "plotmenus.h"
#include "plotswindow.h"
#include "screenshot.h"
#include "startup.h"

#include <QFileDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QWindow>

#include <functional>

// How often a widget is told of the mouse.
class MoveCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::MouseMove ? 1 : 0;
        return false;
    }
};

using Change = std::function<void()>;
Q_DECLARE_METATYPE(Change)

// The recording lasts from 0 to 99 ms, its whole view to 100; it starts at 10 o'clock and its
// trigger lies at 50 ms. "Trip" is 1 from there on.
class TestStatusField : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void nothingIsShownWithoutARecording();
    void whatWasNotOpenedIsSaidUntilARecordingIs();
    void whatWasNotOpenedIsSaidInTheLanguageOfTheWindow();
    void aSingleFileIsForTheConverter_data();
    void aSingleFileIsForTheConverter();
    void aSingleFileIsForTheConverterInEachLanguage();
    void aSingleFileBesideARecording();
    void theTipTellsTheWholePath();
    void thePointerInAnAnalogPlot();
    void thePointerOverTheTitle();
    void thePointerLeavesUnderAMenu();
    void thePointerOverARow_data();
    void thePointerOverARow();
    void theSideOfTheValues();
    void aSideThatIsMultiplied_data();
    void aSideThatIsMultiplied();
    void aViewThatChangesUnderThePointer();
    void anotherRecordingAndNone();
    void aLongNameLeavesRoomForMessages();
    void aLongRowKeepsItsState();
    void aResizeUnderThePointer_data();
    void aResizeUnderThePointer();
    void plotsThatMoveUnderThePointer_data();
    void plotsThatMoveUnderThePointer();
    void theKeyboardFollowsThePlotUnderThePointer();
    void thePointerLeavesAPlotThatCameUnderIt();
    void aButtonThatIsHeldKeepsItsPlot();
    void thePointerMovesBehindAMenu_data();
    void thePointerMovesBehindAMenu();
    void aMoveIsRepeatedOnlyWhereSomethingElseIs();
    void messagesHaveTheRoomThatThePointerLeft();
    void messagesLeaveNothingBehind();
    void marksInTheOtherPlots();
    void marksFollowTheView();
    void noMarkOutOfView();

private:
    QLabel *field() const { return child<QLabel>("statusField"); }
    static void point(QWidget *plot, const QPoint &place)
    {
        QMouseEvent event(QEvent::MouseMove, place, plot->mapToGlobal(place), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(plot, &event);
    }
    static void leave(QWidget *plot)
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(plot, &event);
    }
    // Higher than the window.
    void openManyRows()
    {
        QStringList rows;
        for (int i = 1; i <= 60; ++i)
            rows.append(QStringLiteral("Row%1").arg(i));
        open({QStringLiteral("Ia")}, rows);
        window->move(0, 0); // the screen of the tests has 800 x 600
        QCoreApplication::processEvents();
    }
    QScrollBar *column() const { return child<QScrollArea>("scrollArea")->verticalScrollBar(); }
    // Where the time of the line is the last one of the view.
    static QPoint rightEdge(const Plotter *plot)
    {
        return {plot->width() - plot->geometryOfView().readoutWidth() - 3, 150};
    }
    static QWidget *mark(const Plotter *plot)
    {
        return plot->findChild<QWidget *>(QStringLiteral("timemark"));
    }
};

void TestStatusField::nothingIsShownWithoutARecording()
{
    QVERIFY(field()->isHidden());
    const int height = window->statusBar()->height();
    openUsual();
    QVERIFY(field()->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(window->statusBar()->height(), height); // the plots keep their room
}

void TestStatusField::whatWasNotOpenedIsSaidUntilARecordingIs()
{
    const BoxReader boxes;
    const QString said
        = QStringLiteral("/a/x.CFG was not opened: the name does not end with .cfg or .zip");
    window->sayNotOpened(QStringLiteral("/a/x.CFG"));
    QVERIFY(field()->isVisible());
    QCOMPARE(field()->text(), said);
    QCOMPARE(field()->toolTip(), said);
    window->open(folder->filePath(QStringLiteral("none.cfg")));
    QCOMPARE(field()->text(), said);
    QFile(folder->filePath(QStringLiteral("alone.cfg"))).open(QIODevice::WriteOnly);
    window->open(folder->filePath(QStringLiteral("alone.cfg")));
    QCOMPARE(boxes.count(), 2);
    QVERIFY(field()->isVisible());
    QCOMPARE(field()->text(), said);
    openUsual();
    QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
    window->open(folder->filePath(QStringLiteral("alone.cfg")));
    QVERIFY(field()->isHidden());
    QVERIFY(field()->text().isEmpty());
}

void TestStatusField::whatWasNotOpenedIsSaidInTheLanguageOfTheWindow()
{
    window->sayNotOpened(QStringLiteral("x.CFG"));
    trigger("Suomi");
    QCoreApplication::processEvents();
    QCOMPARE(field()->text(),
        QStringLiteral("Tiedostoa x.CFG ei avattu: nimen lopussa ei ole .cfg eikä .zip"));
    trigger("English");
    QCoreApplication::processEvents();
    QCOMPARE(field()->text(),
        QStringLiteral("x.CFG was not opened: the name does not end with .cfg or .zip"));
}

void TestStatusField::aSingleFileIsForTheConverter_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("name");
    QTest::newRow("by the dialog") << "dialog"
                                   << "x.cff";
    QTest::newRow("by the dialog, in capitals") << "dialog"
                                                << "X.CFF";
    QTest::newRow("dropped") << "drop"
                             << "x.cff";
    QTest::newRow("on the command line") << "start"
                                         << "x.cff";
}

// As with other files that are no recordings, the bar says "File loaded", and nothing comes up.
void TestStatusField::aSingleFileIsForTheConverter()
{
    QFETCH(QString, way);
    QFETCH(QString, name);
    BoxReader boxes;
    const QString path = folder->filePath(name);
    const QString said = path
        + QLatin1String(
            " was not opened: wavorin-convert turns .cff files into recordings that open");
    QVERIFY(writeTextFile(path, "--- file type: CFG ---\r\n"));
    const bool isStart = way == QLatin1String("start"); // which a program has once
    for (int time = 0; time < (isStart ? 1 : 2); ++time) {
        if (way == QLatin1String("dialog")) {
            QTimer::singleShot(0, window.get(), [&] {
                auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
                QVERIFY(dialog);
                dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            trigger("&Open...");
        } else if (way == QLatin1String("drop")) {
            dropFile(*window, path);
            QCoreApplication::processEvents();
        } else {
            openOrWait(*window, path);
        }
        QCOMPARE(boxes.count(), 0);
        if (!isStart)
            QCOMPARE(window->statusBar()->currentMessage(), QStringLiteral("File loaded"));
        QVERIFY(!window->recording());
        QVERIFY(field()->isVisible());
        QCOMPARE(field()->toolTip(), said);
        QVERIFY2(
            field()->text().endsWith(name + said.mid(path.size())), qPrintable(field()->text()));
        openUsual();
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
        QCOMPARE(field()->toolTip(), field()->text());
        QVERIFY(writeTextFile(folder->filePath(QStringLiteral("bad.cfg")), "x"));
        window->open(folder->filePath(QStringLiteral("bad.cfg")));
        QVERIFY(field()->isHidden());
        QCOMPARE(boxes.take().size(), 1);
        window->statusBar()->clearMessage();
    }
}

void TestStatusField::aSingleFileIsForTheConverterInEachLanguage()
{
    window->sayNotOpened(QStringLiteral("x.cff"));
    for (const char *text :
        {"Suomi|Tiedostoa x.cff ei avattu: wavorin-convert muuntaa .cff-tiedostot "
         "häiriötallenteiksi, jotka avautuvat",
            "中文|未打开 x.cff：wavorin-convert 可将 .cff 文件转换为能打开的故障录波",
            "English|x.cff was not opened: wavorin-convert turns .cff files into recordings that "
            "open"}) {
        const QStringList parts = QString::fromUtf8(text).split(QLatin1Char('|'));
        for (QAction *each : window->findChildren<QAction *>()) {
            if (each->text() == parts.at(0))
                each->trigger();
        }
        QCoreApplication::processEvents();
        QCOMPARE(field()->text(), parts.at(1));
        QCOMPARE(field()->toolTip(), parts.at(1));
    }
}

// What is pointed at has its place before it.
void TestStatusField::aSingleFileBesideARecording()
{
    const BoxReader boxes;
    const QString note = QStringLiteral(
        "  |  x.cff was not opened: wavorin-convert turns .cff files into recordings that open");
    QVERIFY(writeTextFile(folder->filePath(QStringLiteral("x.cff")), "--- file type: CFG ---\r\n"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder->path()));
    openUsual();
    for (int twice = 0; twice < 2; ++twice) {
        window->open(QStringLiteral("x.cff"));
        QVERIFY(window->recording()); // which stays
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary") + note);
        point(analog(), {100, 150});
        QCOMPARE(field()->text(),
            QStringLiteral("recording.cfg  |  Primary  |  Analog: 0.000 ms  |  10:00:00.000000  |  "
                           "from trigger: -50.000 ms")
                + note);
        QCOMPARE(field()->toolTip(), field()->text());
        leave(analog());
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary") + note);
        openUsual();
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
    }
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(boxes.count(), 0);
}

void TestStatusField::theTipTellsTheWholePath()
{
    const QString path
        = QLatin1Char('/') + QString(120, QLatin1Char('n')) + QLatin1String("/x.cff");
    const int width = window->width();
    window->sayNotOpened(path);
    QCoreApplication::processEvents();
    QCOMPARE(window->width(), width);
    const QString text = field()->text();
    QVERIFY2(text.startsWith(QLatin1String("/nnn"))
            && text.contains(QLatin1String("/x.cff was not")) && text.contains(QChar(0x2026)),
        qPrintable(text));
    QVERIFY(field()->width()
        >= field()->fontMetrics().horizontalAdvance(text.section(QLatin1String(" turns"), 0, 0)));
    QVERIFY(field()->toolTip().startsWith(path + QLatin1String(" was not opened: ")));
}

void TestStatusField::thePointerInAnAnalogPlot()
{
    openUsual();
    QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
    point(analog(), {100, 150});
    QCOMPARE(field()->text(),
        QStringLiteral("recording.cfg  |  Primary  |  Analog: 0.000 ms  |  10:00:00.000000  |  "
                       "from trigger: -50.000 ms"));
    QCOMPARE(field()->toolTip(), field()->text());
    point(analog(), rightEdge(analog()));
    QCOMPARE(field()->text(),
        QStringLiteral("recording.cfg  |  Primary  |  Analog: 100.000 ms  |  10:00:00.100000  |  "
                       "from trigger: 50.000 ms"));
    leave(analog());
    QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
}

// A line at x = 400 that came over the title stood there still.
void TestStatusField::thePointerOverTheTitle()
{
    openManyRows();
    QTest::mouseMove(analog(), {400, 150});
    const QRect title = child<QLabel>("Plotter Label")->geometry();
    for (const QPoint &place : {title.center(), QPoint(400, 150), title.topLeft()}) {
        QTest::mouseMove(analog(), place);
        QCOMPARE(analog()->findChild<QWidget *>(QStringLiteral("timeline"))->x(), place.x());
        QVERIFY(field()->text().contains(
            QStringLiteral("Analog: %1 ms")
                .arg(analog()->geometryOfView().lineTime(place.x()), 0, 'f', 3)));
    }
    QTest::mouseMove(window.get(), QPoint(1, 1));
}

// A plot is not told that the pointer leaves it while its menu is open.
void TestStatusField::thePointerLeavesUnderAMenu()
{
    openUsual();
    const QString away = QStringLiteral("recording.cfg  |  Primary");
    QWidget *button = child<QComboBox>("comboBox_primSec");
    for (Plotter *plot : {analog(), digital()}) {
        for (QWidget *other : QList<QWidget *>{plot, button}) {
            QTest::mouseMove(plot, {300, 150});
            point(plot, {300, 150});
            const QString pointed = field()->text();
            QVERIFY(pointed.contains(plot->name() + QLatin1Char(':')));
            QMenu *menu = contextMenuAt(plot, {300, 150});
            QVERIFY(menu);
            QCursor::setPos(other->mapToGlobal(other == plot ? QPoint(300, 150) : QPoint(5, 5)));
            QCoreApplication::processEvents(); // the menu gets the move
            menu->close();
            QCoreApplication::processEvents();
            QCOMPARE(field()->text(), other == plot ? pointed : away);
            for (const Plotter *each : plots())
                QCOMPARE(mark(each)->isVisible(), other == plot && each != plot);
        }
    }
}

void TestStatusField::thePointerOverARow_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<int>("y");
    QTest::addColumn<QString>("row");
    QTest::newRow("off") << 25.0 << 130 << QStringLiteral("  |  Trip = 0");
    QTest::newRow("on") << 50.0 << 130 << QStringLiteral("  |  Trip = 1");
    QTest::newRow("outside the samples") << 99.5 << 130 << QStringLiteral("  |  Trip");
    QTest::newRow("above the row") << 25.0 << 10 << QString();
}

void TestStatusField::thePointerOverARow()
{
    QFETCH(double, from);
    QFETCH(int, y);
    QFETCH(QString, row);
    openUsual();
    digital()->resize(digital()->width(), 200); // the row stands from y = 84 to 134
    analog()->changeView([=](PlotView &view) { return view.showTimes(from, from + 10); });
    point(digital(), {100, y});
    QVERIFY2(field()->text().contains(QStringLiteral("Digital: ")), qPrintable(field()->text()));
    QVERIFY2(field()->text().endsWith(QStringLiteral(" ms") + row), qPrintable(field()->text()));
}

void TestStatusField::theSideOfTheValues()
{
    openUsual();
    for (int twice = 0; twice < 2; ++twice) {
        combo("comboBox_primSec")->setCurrentIndex(1);
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Secondary"));
        combo("comboBox_primSec")->setCurrentIndex(2);
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Per Unit"));
        combo("comboBox_primSec")->setCurrentIndex(0);
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
    }
}

void TestStatusField::aSideThatIsMultiplied_data()
{
    QTest::addColumn<QByteArray>("flag");
    QTest::addColumn<QStringList>("afterwards");
    const QString unit = QStringLiteral("Per Unit");
    QTest::newRow("recorded primary") << QByteArray("P")
                                      << QStringList{QStringLiteral("P = file value x rating"),
                                             QStringLiteral("Secondary"), unit};
    QTest::newRow("recorded secondary")
        << QByteArray("S")
        << QStringList{QStringLiteral("Primary"), QStringLiteral("S = file value x rating"), unit};
    QTest::newRow("recorded on neither side")
        << QByteArray()
        << QStringList{QStringLiteral("Primary"), QStringLiteral("Secondary"), unit};
}

// By "Set" in the dialog of the ratings without a change, until the recording is opened again.
void TestStatusField::aSideThatIsMultiplied()
{
    QFETCH(QByteArray, flag);
    QFETCH(QStringList, afterwards);
    const auto expect = [&](const QStringList &sides) {
        for (int side = 0; side < sides.size(); ++side) {
            combo("comboBox_primSec")->setCurrentIndex(side);
            QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  ") + sides.at(side));
        }
        combo("comboBox_primSec")->setCurrentIndex(0);
    };
    for (int twice = 0; twice < 2; ++twice) {
        open({QStringLiteral("Ia")}, {QStringLiteral("Trip")}, flag);
        expect(
            {QStringLiteral("Primary"), QStringLiteral("Secondary"), QStringLiteral("Per Unit")});
        child<QPushButton>("pushButton_Set")->click();
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  ") + afterwards.at(0));
        expect(afterwards);
    }
}

void TestStatusField::aViewThatChangesUnderThePointer()
{
    openUsual();
    point(analog(), rightEdge(analog()));
    QTest::keyClick(analog(), Qt::Key_Plus);
    QVERIFY2(
        field()->text().contains(QStringLiteral("Analog: 50.000 ms")), qPrintable(field()->text()));
    trigger("Zoom Reset");
    QVERIFY2(field()->text().contains(QStringLiteral("Analog: 100.000 ms")),
        qPrintable(field()->text()));
}

void TestStatusField::anotherRecordingAndNone()
{
    for (int twice = 0; twice < 2; ++twice) {
        openUsual();
        point(analog(), {100, 150});
        openUsual();
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
    }
    window->refreshVectors();
    QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
}

void TestStatusField::aLongNameLeavesRoomForMessages()
{
    openUsual();
    const QString renamed = folder->filePath(QString(120, QLatin1Char('n')));
    for (const char *ending : {".cfg", ".dat"})
        QVERIFY(QFile::copy(folder->filePath(QStringLiteral("recording") + QLatin1String(ending)),
            renamed + QLatin1String(ending)));
    const int width = window->width();
    window->open(renamed + QStringLiteral(".cfg"));
    for (Plotter *pointed : {static_cast<Plotter *>(digital()), analog()}) {
        point(pointed, {100, 130});
        QCoreApplication::processEvents();
        QCOMPARE(window->width(), width);
        QVERIFY(field()->x() >= window->statusBar()->width() / 5);
    }
    QVERIFY(field()->text().startsWith(QStringLiteral("nnn")));
    QVERIFY(field()->text().contains(QStringLiteral("n.cfg")));
}

void TestStatusField::aLongRowKeepsItsState()
{
    const QString name = QString(60, QLatin1Char('r'));
    open({QStringLiteral("Ia")}, {name});
    digital()->resize(digital()->width(), 200); // the row stands from y = 84 to 134
    for (int twice = 0; twice < 2; ++twice) {
        point(digital(), {600, 100});
        QVERIFY2(field()->text().endsWith(QStringLiteral("r = 1")), qPrintable(field()->text()));
        QVERIFY(field()->toolTip().contains(name + QStringLiteral(" = 1")));
        QVERIFY(field()->fontMetrics().horizontalAdvance(field()->text())
            <= window->statusBar()->width() * 3 / 4);
        leave(digital());
    }
}

void TestStatusField::aResizeUnderThePointer_data()
{
    QTest::addColumn<bool>("isDigital");
    QTest::newRow("an analog plot") << false;
    QTest::newRow("a long row") << true;
}

// What is said is what the next move at the same place would say.
void TestStatusField::aResizeUnderThePointer()
{
    QFETCH(bool, isDigital);
    open({QStringLiteral("Ia")}, {QString(100, QLatin1Char('r'))});
    Plotter *plot = isDigital ? digital() : analog();
    const QPoint place(400, 100);
    point(plot, place);
    QStringList said{field()->text()};
    for (const int width : {1900, 1100, 1900, 1100}) {
        window->resize(width, 900);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        const QString text = field()->text();
        point(plot, place);
        QCOMPARE(text, field()->text());
        QVERIFY(text != said.constLast());
        said.append(text);
    }
    QCOMPARE(said.at(3), said.at(1));
}

void TestStatusField::plotsThatMoveUnderThePointer_data()
{
    QTest::addColumn<bool>("isAnalog"); // the plot first pointed at
    QTest::addColumn<Change>("there");
    QTest::addColumn<Change>("back");
    const auto scrollTo = [this](int place) { return Change([=] { column()->setValue(place); }); };
    QTest::newRow("scrolled by rows") << false << scrollTo(60) << scrollTo(0);
    QTest::newRow("scrolled by plots") << true << scrollTo(QWIDGETSIZE_MAX) << scrollTo(0);
    QTest::newRow("the plot hides")
        << false << Change([this] { list("listWidget2")->clearSelection(); })
        << Change([this] { list("listWidget2")->selectAll(); });
    QTest::newRow("a plot comes and goes") << false << Change([this] {
        compose({QStringLiteral("Ia")});
        column()->setValue(0);
    }) << Change([this] { window->removePlotter(); });
}

// What is said is what the next move by nothing would say.
void TestStatusField::plotsThatMoveUnderThePointer()
{
    QFETCH(bool, isAnalog);
    QFETCH(Change, there);
    QFETCH(Change, back);
    openManyRows();
    QTest::mouseMove(window.get(), QPoint(1, 1));
    Plotter *first = isAnalog ? analog() : digital();
    const QPoint place = first->mapTo(window.get(), {400, 80});
    QTest::mouseMove(window.get(), place);
    QVERIFY(field()->text().contains(first->name() + QLatin1Char(':')));
    QStringList said{field()->text()};
    for (const Change &change : {there, back, there, back}) {
        change();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        const QString text = field()->text();
        QTest::mouseMove(window.get(), place + QPoint(1, 0));
        QTest::mouseMove(window.get(), place);
        QCOMPARE(text, field()->text());
        QVERIFY(text != said.constLast());
        said.append(text);
    }
    QCOMPARE(said.at(2), said.at(0));
}

// Only where it was with the plot that the pointer was over.
void TestStatusField::theKeyboardFollowsThePlotUnderThePointer()
{
    openManyRows();
    const QPoint place = analog()->mapTo(window.get(), {400, 150});
    QTest::mouseMove(window.get(), place);
    QCOMPARE(QWidget::keyboardGrabber(), analog());
    column()->setValue(column()->maximum());
    QCoreApplication::processEvents();
    QCOMPARE(QWidget::keyboardGrabber(), digital());
    digital()->releaseKeyboard();
    column()->setValue(0);
    QCoreApplication::processEvents();
    QVERIFY(field()->text().contains(QStringLiteral("Analog:")));
    QVERIFY(!QWidget::keyboardGrabber());
    QTest::mouseMove(window.get(), QPoint(1, 1));
}

// The toolkit tells the plot that it takes for the last one under the pointer.
void TestStatusField::thePointerLeavesAPlotThatCameUnderIt()
{
    openManyRows();
    for (int i = 0; i < 2; ++i) {
        QTest::mouseMove(window.get(), analog()->mapTo(window.get(), {400, 150}));
        column()->setValue(column()->maximum());
        QCoreApplication::processEvents();
        QVERIFY(field()->text().contains(QStringLiteral("Digital:")));
        QVERIFY(mark(analog())->isVisible());
        QTest::mouseMove(window.get(), list("listWidget")->mapTo(window.get(), {20, 20}));
        QCoreApplication::processEvents();
        QVERIFY(!QWidget::keyboardGrabber());
        QVERIFY(mark(analog())->isHidden());
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
        column()->setValue(0);
        QCoreApplication::processEvents();
        QVERIFY(!QWidget::keyboardGrabber());
        QCOMPARE(field()->text(), QStringLiteral("recording.cfg  |  Primary"));
    }
}

// What has come under the pointer is said when the button is let go.
void TestStatusField::aButtonThatIsHeldKeepsItsPlot()
{
    openManyRows();
    QWindow *handle = window->windowHandle();
    const QPoint place = digital()->mapTo(window.get(), {400, 80});
    QTest::mouseMove(window.get(), place);
    for (const int scrolled : {60, 0}) {
        const QString said = field()->text();
        QTest::mousePress(handle, Qt::LeftButton, {}, place);
        column()->setValue(scrolled);
        QCoreApplication::processEvents();
        QCOMPARE(field()->text(), said);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, place);
        QCoreApplication::processEvents();
        const QString text = field()->text();
        QVERIFY(text.contains(QStringLiteral("Digital:")));
        QVERIFY(text != said);
        QTest::mouseMove(window.get(), place + QPoint(1, 0));
        QTest::mouseMove(window.get(), place);
        QCOMPARE(field()->text(), text);
    }
    QTest::mouseMove(window.get(), QPoint(1, 1));
}

void TestStatusField::thePointerMovesBehindAMenu_data()
{
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("closed by a key") << false;
    QTest::newRow("closed by a click") << true; // whose release is the plot's
}

void TestStatusField::thePointerMovesBehindAMenu()
{
    QFETCH(bool, isClicked);
    openManyRows();
    const auto *line = analog()->findChild<QWidget *>(QStringLiteral("timeline"));
    QTest::mouseMove(analog(), {300, 150});
    for (const int x : {500, 250}) {
        QMenu *menu = contextMenuAt(analog(), {300, 150});
        QVERIFY(menu);
        const QPoint place(x, 150);
        QCursor::setPos(analog()->mapToGlobal(place));
        QCoreApplication::processEvents(); // the menu gets the move
        menu->close();
        const QPoint inWindow = analog()->mapTo(window.get(), place);
        QEnterEvent enter(inWindow, inWindow, QCursor::pos());
        QCoreApplication::sendEvent(window->windowHandle(), &enter);
        if (isClicked)
            QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, inWindow);
        QCoreApplication::processEvents();
        QCOMPARE(line->x(), x);
        const QString text = field()->text();
        QTest::mouseMove(analog(), place + QPoint(1, 0));
        QTest::mouseMove(analog(), place);
        QCOMPARE(text, field()->text());
    }
    QTest::mouseMove(window.get(), QPoint(1, 1));
}

// Else a tool tip would come again under a pointer that rests.
void TestStatusField::aMoveIsRepeatedOnlyWhereSomethingElseIs()
{
    openManyRows();
    const QPoint place = digital()->mapTo(window.get(), {400, 80});
    QTest::mouseMove(window.get(), place);
    MoveCounter moves;
    digital()->installEventFilter(&moves);
    trigger("Zoom In");
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
    QCOMPARE(moves.count, 0);
    column()->setValue(10);
    QCoreApplication::processEvents();
    QCOMPARE(moves.count, 1);
    QTest::mouseMove(window.get(), QPoint(1, 1));
}

// Such as the status tip of a button: the field was wider while it had more to say.
void TestStatusField::messagesHaveTheRoomThatThePointerLeft()
{
    openUsual();
    QStatusBar *bar = window->statusBar();
    int narrow = 0;
    for (int twice = 0; twice < 2; ++twice) {
        point(analog(), rightEdge(analog()));
        QCoreApplication::processEvents();
        const int wide = field()->width();
        leave(analog());
        bar->showMessage(QStringLiteral("Open an existing file."));
        QCoreApplication::processEvents();
        narrow = field()->width();
        QVERIFY(narrow < wide / 2);
        QVERIFY(narrow >= field()->fontMetrics().horizontalAdvance(field()->text()));
        point(analog(), {100, 150});
        QCoreApplication::processEvents();
        QVERIFY(field()->width() > narrow);
        bar->showMessage(QStringLiteral("File saved."));
        QCoreApplication::processEvents();
        QVERIFY(field()->width() > narrow); // the pointer still has something to say
        leave(analog());
    }
}

// At a factor between whole numbers, a letter lights pixels left of where its message begins.
void TestStatusField::messagesLeaveNothingBehind()
{
    openUsual();
    window->statusBar()->clearMessage();
    const QImage before = screenshot(*window);
    QVERIFY(!before.isNull());
    for (char letter = '0'; letter <= 'z'; ++letter) {
        const QString message(3, QLatin1Char(letter));
        window->statusBar()->showMessage(message);
        QVERIFY(screenshot(*window) != before);
        window->statusBar()->clearMessage();
        QVERIFY2(screenshot(*window) == before, qPrintable(message));
    }
}

// The digital plot keeps no room for the readout, so that equal pixels are other times.
void TestStatusField::marksInTheOtherPlots()
{
    openUsual();
    compose({QStringLiteral("Ib")});
    Plotter *added = plot(QStringLiteral("Graph 1"));
    analog()->addCursorAt(50);
    for (const Plotter *each : plots())
        QVERIFY(mark(each)->isHidden());
    point(analog(), rightEdge(analog()));
    QVERIFY(mark(analog())->isHidden());
    QVERIFY(mark(added)->isVisible());
    QVERIFY(mark(digital())->isVisible());
    QCOMPARE(mark(added)->geometry().center().x(), rightEdge(analog()).x());
    QCOMPARE(mark(digital())->geometry().center().x(), digital()->width() - 3);
    QCOMPARE(mark(digital())->y(), digital()->height() - 41 + 1);
    point(digital(), {100, 100});
    QVERIFY(mark(digital())->isHidden());
    QCOMPARE(mark(analog())->geometry().center().x(), 100);
    trigger("Zoom In"); // the old place would be another time
    QVERIFY(mark(analog())->isHidden());
    point(digital(), {101, 100});
    QVERIFY(mark(analog())->isVisible());
    leave(digital());
    for (const Plotter *each : plots())
        QVERIFY(mark(each)->isHidden());
}

// Each stands where the next move by nothing would set it.
void TestStatusField::marksFollowTheView()
{
    openManyRows();
    const QPoint place = analog()->mapTo(window.get(), {400, 150});
    QTest::mouseMove(window.get(), place);
    for (const char *change : {"Zoom In", "cursor", "Zoom In", "Zoom Reset", "Zoom In"}) {
        if (change == QByteArray("cursor"))
            analog()->addCursorAt(50);
        else
            trigger(change);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QVERIFY(mark(analog())->isHidden());
        QVERIFY(mark(digital())->isVisible());
        const QRect shown = mark(digital())->geometry();
        QTest::mouseMove(window.get(), place + QPoint(1, 0));
        QTest::mouseMove(window.get(), place);
        QCOMPARE(mark(digital())->geometry(), shown);
    }
    QTest::mouseMove(window.get(), QPoint(1, 1));
}

void TestStatusField::noMarkOutOfView()
{
    openUsual();
    point(analog(), {99, 150});
    QVERIFY(mark(digital())->isHidden());
    point(analog(), {100, 150});
    QVERIFY(mark(digital())->isVisible());
}

QTEST_MAIN(TestStatusField)
#include "tst_statusfield.moc"
