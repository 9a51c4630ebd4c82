// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pseudotranslator.h"
#include "savedialogfixture.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <QtTest>

class TestSaveDialog : public SaveDialogFixture {
    Q_OBJECT

private slots:
    void init() { make(); }
    void showsItsTexts();
    void looksAsItsStyleSheetsSay_data();
    void looksAsItsStyleSheetsSay();
    void handlesOfSlidersAre13Wide();
    void signalsStandInTheirOrder();
    void startsWithTheWholeSpan();
    void tellsWholeMilliseconds_data();
    void tellsWholeMilliseconds();
    void acceptsASingleSample();
    void survivesNoSamples();
    void keepsItsOwnTimes();
    void followsADraggedSlider_data();
    void followsADraggedSlider();
    void stepsThroughTheTimesUnderTheMouse();
    void followsClicksOnTheGroove();
    void followsKeyboardAndWheel();
    void keepsNoOrderBetweenStartAndEnd();
    void savesTheShownMilliseconds();
    void clearsTheMarkersOnCancel();
    void keepsTheMarkersWhenTheWindowIsClosed();
    void escapeIsCancel_data();
    void escapeIsCancel();
    void resetsAtEachShowing();
    void aSliderHeldWhileItClosesIsLetGo_data();
    void aSliderHeldWhileItClosesIsLetGo();
    void aSliderHeldBehindAnotherDialogIsLetGo();
    void keepsWhatWasChosenWhenItIsRestored();
    void survivesAStrangerAsParent();
    void retranslatesOnALanguageChange();

private:
    static QRect handleOf(const QSlider *slider);
    void drag(const char *name, double way);
};

QRect TestSaveDialog::handleOf(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = Qt::Horizontal;
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    return slider->style()->subControlRect(
        QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
}

// Takes the handle of a slider and moves it, pixel by pixel, along a part of the groove.
void TestSaveDialog::drag(const char *name, double way)
{
    auto *slider = child<QSlider>(name);
    const QRect handle = handleOf(slider);
    const int pixels = qRound(way * (slider->width() - handle.width()));
    QPoint at = handle.center();
    QTest::mousePress(slider, Qt::LeftButton, {}, at);
    for (int moved = 0; moved < qAbs(pixels); ++moved) {
        at.rx() += pixels > 0 ? 1 : -1;
        QMouseEvent move(QEvent::MouseMove, at, slider->mapToGlobal(at), Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &move);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, {}, at);
}

void TestSaveDialog::showsItsTexts()
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Save File"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("File path:"));
    QCOMPARE(child<QLabel>("label_FileExists")->text(), QStringLiteral("*File aready exists"));
    QCOMPARE(child<QLabel>("label_2")->text(), QStringLiteral("Recording start point (ms):"));
    QCOMPARE(child<QLabel>("label_3")->text(), QStringLiteral("Recording end point (ms):"));
    QCOMPARE(child<QPushButton>("pushButton_Save")->text(), QStringLiteral("Save"));
    QCOMPARE(child<QPushButton>("pushButton_Cancel")->text(), QStringLiteral("Cancel"));
    QVERIFY(child<QLabel>("label_FileExists")->isHidden());
    QVERIFY(!child<QLineEdit>("lineEdit_Start")->isEnabled());
    QVERIFY(!child<QLineEdit>("lineEdit_End")->isEnabled());
    QCOMPARE(child<QSlider>("horizontalSlider_StartPoint")->orientation(), Qt::Horizontal);
    QCOMPARE(child<QSlider>("horizontalSlider_EndPoint")->orientation(), Qt::Horizontal);
}

void TestSaveDialog::looksAsItsStyleSheetsSay_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QStringList>("declarations");
    const auto row
        = [](const char *name, const char *widget, const char *selector, const char *declarations) {
              QTest::newRow(name) << QString::fromLatin1(widget) << QString::fromLatin1(selector)
                                  << QString::fromLatin1(declarations).split(QLatin1Char('|'));
          };
    row("browse button", "toolButton_Browse", "QToolButton",
        "background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #616064, stop: 1 #414044)|"
        "font: bold|border: 1px outset #00b9f2|color: #00b9f2|padding: 4px|min-width: 2em|"
        "max-height: 11px");
    row("browse button with the pointer or the keys on it", "toolButton_Browse",
        "QToolButton:hover, QToolButton:focus",
        "background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #717074, stop: 1 "
        "#515054)");
    row("pressed browse button", "toolButton_Browse", "QToolButton:pressed",
        "background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5, "
        "stop: 0 #FFFFFF, stop: 1 #00b9f2)|border-style: inset|color: #717074");
    row("note of an existing file", "label_FileExists", "QLabel", "color: rgba(200,100,100,255)");
    for (const char *slider : {"horizontalSlider_StartPoint", "horizontalSlider_EndPoint"}) {
        row(qPrintable(QLatin1String("groove of ") + QLatin1String(slider)), slider,
            "QSlider::groove:horizontal",
            "height: 10px|background: transparent|border: 1px solid #00b9f2|border-radius: 4px");
        row(qPrintable(QLatin1String("handle of ") + QLatin1String(slider)), slider,
            "QSlider::handle:horizontal",
            "width: 13px|background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #FFFFFF, "
            "stop: 1 #00b9f2)|border: 1px solid #00b9f2|margin: -2px 0px|border-radius: 4px");
    }
}

void TestSaveDialog::looksAsItsStyleSheetsSay()
{
    QFETCH(QString, widget);
    QFETCH(QString, selector);
    QFETCH(QStringList, declarations);
    QString block;
    const QString sheet = dialog->findChild<QWidget *>(widget)->styleSheet();
    for (const QString &rule : sheet.split(QLatin1Char('}'))) {
        if (rule.section(QLatin1Char('{'), 0, 0).trimmed() == selector)
            block = rule.section(QLatin1Char('{'), 1);
    }
    QStringList found;
    for (const QString &declaration : block.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        found += declaration.trimmed();
    QCOMPARE(found, declarations);
}

// The width of the style sheet and a border at either side.
void TestSaveDialog::handlesOfSlidersAre13Wide()
{
    open(threeTimes);
    for (const char *name : {"horizontalSlider_StartPoint", "horizontalSlider_EndPoint"})
        QCOMPARE(handleOf(child<QSlider>(name)).width(), 13 + 2);
}

void TestSaveDialog::signalsStandInTheirOrder()
{
    const QMetaObject &meta = SaveDialog::staticMetaObject;
    const int first = meta.indexOfSignal("setStartPoint(double)");
    QCOMPARE(first, meta.methodOffset());
    QCOMPARE(meta.indexOfSignal("setEndPoint(double)"), first + 1);
    QCOMPARE(meta.indexOfSignal("clearPoints()"), first + 2);
    QVERIFY(meta.method(first + 3).methodType() != QMetaMethod::Signal);
}

void TestSaveDialog::startsWithTheWholeSpan()
{
    QSignalSpy start(dialog, &SaveDialog::setStartPoint);
    QSignalSpy end(dialog, &SaveDialog::setEndPoint);
    connect(dialog, &SaveDialog::setEndPoint, this, [&] { QCOMPARE(start.count(), 1); });
    open(threeTimes);
    for (const char *name : {"horizontalSlider_StartPoint", "horizontalSlider_EndPoint"}) {
        QCOMPARE(child<QSlider>(name)->minimum(), 0);
        QCOMPARE(child<QSlider>(name)->maximum(), 2);
    }
    QCOMPARE(child<QSlider>("horizontalSlider_StartPoint")->value(), 0);
    QCOMPARE(child<QSlider>("horizontalSlider_EndPoint")->value(), 2);
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("0"));
    QCOMPARE(text("lineEdit_End"), QStringLiteral("13"));
    QCOMPARE(start.count(), 1);
    QCOMPARE(start.at(0).at(0).toDouble(), 0.4);
    QCOMPARE(end.count(), 1);
    QCOMPARE(end.at(0).at(0).toDouble(), 12.75);
}

void TestSaveDialog::tellsWholeMilliseconds_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("text");
    QTest::newRow("a half") << 2.5 << QStringLiteral("3");
    QTest::newRow("a little below zero") << -0.3 << QStringLiteral("-0");
    QTest::newRow("half below zero") << -0.5 << QStringLiteral("-1");
    QTest::newRow("thirty days") << 2592000000.0 << QStringLiteral("2592000000");
}

void TestSaveDialog::tellsWholeMilliseconds()
{
    QFETCH(double, time);
    open({time});
    QTEST(text("lineEdit_Start"), "text");
    QTEST(text("lineEdit_End"), "text");
}

void TestSaveDialog::acceptsASingleSample()
{
    open({3.0});
    QCOMPARE(child<QSlider>("horizontalSlider_StartPoint")->maximum(), 0);
    QCOMPARE(child<QSlider>("horizontalSlider_EndPoint")->maximum(), 0);
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("3"));
    QCOMPARE(text("lineEdit_End"), QStringLiteral("3"));
    drag("horizontalSlider_StartPoint", 1);
    drag("horizontalSlider_EndPoint", -1);
    click("pushButton_Save");
    QCOMPARE(host->savings.at(0).start, 3.0);
    QCOMPARE(host->savings.at(0).end, 3.0);
}

void TestSaveDialog::survivesNoSamples()
{
    QSignalSpy start(dialog, &SaveDialog::setStartPoint);
    QSignalSpy end(dialog, &SaveDialog::setEndPoint);
    open(threeTimes);
    dialog->close();
    start.clear();
    end.clear();

    open({});
    for (const char *name : {"horizontalSlider_StartPoint", "horizontalSlider_EndPoint"}) {
        QCOMPARE(child<QSlider>(name)->minimum(), 0);
        QCOMPARE(child<QSlider>(name)->maximum(), 0); // as the toolkit takes -1
        drag(name, 1);
    }
    QTest::keyClick(child<QSlider>("horizontalSlider_EndPoint"), Qt::Key_Right);
    dialog->on_horizontalSlider_StartPoint_sliderMoved(0);
    dialog->on_horizontalSlider_EndPoint_sliderMoved(0);

    QCOMPARE(text("lineEdit_Start"), QString());
    QCOMPARE(text("lineEdit_End"), QString());
    QCOMPARE(start.count(), 0);
    QCOMPARE(end.count(), 0);
}

void TestSaveDialog::keepsItsOwnTimes()
{
    QVector<double> times = threeTimes;
    dialog->setSampleTimes(times);
    times.fill(99);
    times.clear();
    dialog->show();
    QCOMPARE(text("lineEdit_End"), QStringLiteral("13"));
}

void TestSaveDialog::followsADraggedSlider_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<double>("way"); // part of the groove
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<double>("time"); // of the last signal
    const auto row = [](const char *name, const char *slider, double way, const char *start,
                         const char *end, double time) {
        QTest::newRow(name) << QByteArray(slider) << way << QString::fromLatin1(start)
                            << QString::fromLatin1(end) << time;
    };
    row("the start to the middle", "horizontalSlider_StartPoint", 0.5, "2", "13", 1.6);
    row("the start to the end", "horizontalSlider_StartPoint", 1, "13", "13", 12.75);
    row("the start beyond the end", "horizontalSlider_StartPoint", 2, "13", "13", 12.75);
    row("the end to the middle", "horizontalSlider_EndPoint", -0.5, "0", "2", 1.6);
    row("the end to the start", "horizontalSlider_EndPoint", -1, "0", "0", 0.4);
}

void TestSaveDialog::followsADraggedSlider()
{
    QFETCH(QByteArray, slider);
    QFETCH(double, way);
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(double, time);
    open(threeTimes);
    QSignalSpy starts(dialog, &SaveDialog::setStartPoint);
    QSignalSpy ends(dialog, &SaveDialog::setEndPoint);

    drag(slider.constData(), way);

    QCOMPARE(text("lineEdit_Start"), start);
    QCOMPARE(text("lineEdit_End"), end);
    const bool isStart = slider.contains("Start");
    const QSignalSpy &moved = isStart ? starts : ends;
    QCOMPARE(moved.constLast().at(0).toDouble(), time);
    QCOMPARE((isStart ? ends : starts).count(), 0);
}

void TestSaveDialog::stepsThroughTheTimesUnderTheMouse()
{
    open({0, 0.25, 1, 1.5, 20});
    QSignalSpy starts(dialog, &SaveDialog::setStartPoint);
    QSignalSpy ends(dialog, &SaveDialog::setEndPoint);
    QStringList shown;
    connect(child<QLineEdit>("lineEdit_Start"), &QLineEdit::textChanged, this,
        [&shown](const QString &now) { shown += now; });
    const auto times = [](const QSignalSpy &spy) {
        QVector<double> result;
        for (const QList<QVariant> &arguments : spy)
            result += arguments.at(0).toDouble();
        return result;
    };

    drag("horizontalSlider_StartPoint", 1);
    QCOMPARE(times(starts), QVector<double>({0.25, 1, 1.5, 20}));
    QCOMPARE(shown, QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("20")}));
    QCOMPARE(ends.count(), 0);

    drag("horizontalSlider_EndPoint", -1);
    QCOMPARE(times(ends), QVector<double>({1.5, 1, 0.25, 0}));
    QCOMPARE(starts.count(), 4);
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("20"));
    QCOMPARE(text("lineEdit_End"), QStringLiteral("0"));
}

void TestSaveDialog::followsClicksOnTheGroove()
{
    QVector<double> times;
    for (int i = 0; i < 30; ++i)
        times += i * 1.5;
    open(times);
    QSignalSpy start(dialog, &SaveDialog::setStartPoint);
    auto *slider = child<QSlider>("horizontalSlider_StartPoint");
    QTest::mouseClick(slider, Qt::LeftButton, {}, slider->rect().center());
    QCOMPARE(slider->value(), 10); // a page
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("15"));
    QCOMPARE(start.count(), 1);
    QCOMPARE(start.at(0).at(0).toDouble(), 15.0);
}

void TestSaveDialog::followsKeyboardAndWheel()
{
    open(threeTimes);
    QSignalSpy start(dialog, &SaveDialog::setStartPoint);
    QSignalSpy end(dialog, &SaveDialog::setEndPoint);

    QTest::keyClick(child<QSlider>("horizontalSlider_StartPoint"), Qt::Key_Right);
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("2"));
    QCOMPARE(start.count(), 1);
    QCOMPARE(start.at(0).at(0).toDouble(), 1.6);

    auto *slider = child<QSlider>("horizontalSlider_EndPoint");
    QWheelEvent wheel(slider->rect().center(), slider->mapToGlobal(slider->rect().center()),
        QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(slider, &wheel);
    QVERIFY(slider->value() < 2);
    QCOMPARE(
        text("lineEdit_End"), slider->value() == 1 ? QStringLiteral("2") : QStringLiteral("0"));
    QCOMPARE(end.count(), 1);
}

void TestSaveDialog::keepsNoOrderBetweenStartAndEnd()
{
    open(threeTimes);
    QTest::keyClick(child<QSlider>("horizontalSlider_StartPoint"), Qt::Key_End);
    QTest::keyClick(child<QSlider>("horizontalSlider_EndPoint"), Qt::Key_Home);
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("13"));
    QCOMPARE(text("lineEdit_End"), QStringLiteral("0"));
    click("pushButton_Save");
    QCOMPARE(host->savings.size(), 1);
    QCOMPARE(host->savings.at(0).start, 13.0);
    QCOMPARE(host->savings.at(0).end, 0.0);
}

void TestSaveDialog::savesTheShownMilliseconds()
{
    QStringList order;
    open(threeTimes);
    connect(dialog, &SaveDialog::clearPoints, this, [&] {
        QCOMPARE(host->savings.size(), 1);
        QVERIFY(dialog->isVisible());
        order.append(QStringLiteral("cleared"));
    });
    type(folder->filePath(QStringLiteral("new")));

    click("pushButton_Save");

    QCOMPARE(host->savings.size(), 1);
    QCOMPARE(host->savings.at(0).path, folder->filePath(QStringLiteral("new")));
    QCOMPARE(host->savings.at(0).start, 0.0);
    QCOMPARE(host->savings.at(0).end, 13.0);
    QCOMPARE(order.size(), 1);
    QVERIFY(!dialog->isVisible());
}

void TestSaveDialog::clearsTheMarkersOnCancel()
{
    open(threeTimes);
    QSignalSpy cleared(dialog, &SaveDialog::clearPoints);
    connect(dialog, &SaveDialog::clearPoints, this, [this] { QVERIFY(dialog->isVisible()); });
    click("pushButton_Cancel");
    QCOMPARE(cleared.count(), 1);
    QVERIFY(host->savings.isEmpty());
    QVERIFY(!dialog->isVisible());
}

void TestSaveDialog::keepsTheMarkersWhenTheWindowIsClosed()
{
    open(threeTimes);
    QSignalSpy cleared(dialog, &SaveDialog::clearPoints);
    QVERIFY(dialog->close());
    QCOMPARE(cleared.count(), 0);
}

void TestSaveDialog::escapeIsCancel_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("in the path") << QByteArray("lineEdit_FilePath");
    QTest::newRow("on a slider") << QByteArray("horizontalSlider_EndPoint");
    QTest::newRow("on Save") << QByteArray("pushButton_Save");
}

// Twice, and closed through the title bar in between.
void TestSaveDialog::escapeIsCancel()
{
    QFETCH(QByteArray, place);
    QSignalSpy cleared(dialog, &SaveDialog::clearPoints);
    connect(dialog, &SaveDialog::clearPoints, this, [this] { QVERIFY(dialog->isVisible()); });
    open(threeTimes);
    QTest::keyClick(child<QWidget>(place), Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(cleared.count(), 1);
    open(threeTimes);
    QVERIFY(dialog->close());
    QCOMPARE(cleared.count(), 1);
    open(threeTimes);
    QTest::keyClick(child<QWidget>(place), Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(cleared.count(), 2);
    QVERIFY(host->savings.isEmpty());
}

void TestSaveDialog::aSliderHeldWhileItClosesIsLetGo_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isHandle"); // that is pressed, or the groove in the middle
    for (const char *name : {"StartPoint", "EndPoint"}) {
        const QString slider = QLatin1String("horizontalSlider_") + QLatin1String(name);
        QTest::addRow("%s by its handle", name) << slider << true;
        QTest::addRow("%s in its groove", name) << slider << false;
    }
}

// The handle follows the mouse, and a press beside it is repeated, until the button is let go.
void TestSaveDialog::aSliderHeldWhileItClosesIsLetGo()
{
    QFETCH(QString, name);
    QFETCH(bool, isHandle);
    QVector<double> times;
    for (int i = 0; i < 1000; ++i)
        times.append(i);
    auto *slider = dialog->findChild<QSlider *>(name);
    for (int i = 0; i < 2; ++i) {
        open(times);
        const int atFirst = slider->value();
        const QPoint middle = slider->rect().center();
        const QPoint handle(atFirst == 0 ? 5 : slider->width() - 5, middle.y());
        QTest::mousePress(slider, Qt::LeftButton, {}, isHandle ? handle : middle);
        QTRY_VERIFY(isHandle ? slider->isSliderDown() : slider->value() != atFirst);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QSignalSpy start(dialog, &SaveDialog::setStartPoint);
        QSignalSpy end(dialog, &SaveDialog::setEndPoint);
        QMouseEvent move(QEvent::MouseMove, middle, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(slider, &move);
        QTest::qWait(600); // the toolkit repeats after 500
        QCOMPARE(start.count() + end.count(), 0);
        open(times);
        QCOMPARE(slider->value(), atFirst);
        QTest::qWait(600);
        QCOMPARE(slider->value(), atFirst);
        QVERIFY(dialog->close());
    }
}

void TestSaveDialog::aSliderHeldBehindAnotherDialogIsLetGo()
{
    QVector<double> times;
    for (int i = 0; i < 1000; ++i)
        times.append(i);
    for (const char *name : {"horizontalSlider_StartPoint", "horizontalSlider_EndPoint"}) {
        open(times);
        auto *slider = child<QSlider>(name);
        const int atFirst = slider->value();
        QTest::mousePress(slider, Qt::LeftButton, {}, slider->rect().center());
        QTRY_VERIFY(slider->value() != atFirst);
        QDialog other;
        other.setWindowModality(Qt::ApplicationModal);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        const int reached = slider->value();
        QTest::qWait(600); // the toolkit repeats after 500
        QCOMPARE(slider->value(), reached);
        other.close();
        QTest::qWait(600);
        QCOMPARE(slider->value(), reached);
        QVERIFY(dialog->close());
    }
}

void TestSaveDialog::keepsWhatWasChosenWhenItIsRestored()
{
    open(threeTimes);
    type(folder->filePath(QStringLiteral("new")));
    QTest::keyClick(child<QSlider>("horizontalSlider_StartPoint"), Qt::Key_Right);
    QSignalSpy start(dialog, &SaveDialog::setStartPoint);
    dialog->setWindowState(Qt::WindowMinimized);
    QCoreApplication::processEvents();
    dialog->setWindowState(Qt::WindowNoState);
    QCoreApplication::processEvents();
    QCOMPARE(start.count(), 0);
    QCOMPARE(text("lineEdit_FilePath"), folder->filePath(QStringLiteral("new")));
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("2"));
}

void TestSaveDialog::resetsAtEachShowing()
{
    open(threeTimes);
    type(makeFile(QStringLiteral("a.cfg")));
    QTest::keyClick(child<QSlider>("horizontalSlider_StartPoint"), Qt::Key_End);
    QTest::keyClick(child<QSlider>("horizontalSlider_EndPoint"), Qt::Key_Home);
    dialog->close();

    child<QWidget>("pushButton_Save")->setFocus();
    QSignalSpy start(dialog, &SaveDialog::setStartPoint);
    dialog->show();
    QCOMPARE(dialog->focusWidget(), child<QWidget>("lineEdit_FilePath"));
    QCOMPARE(text("lineEdit_FilePath"), QString());
    QVERIFY(!child<QLabel>("label_FileExists")->isVisible());
    QCOMPARE(child<QSlider>("horizontalSlider_StartPoint")->value(), 0);
    QCOMPARE(child<QSlider>("horizontalSlider_EndPoint")->value(), 2);
    QCOMPARE(text("lineEdit_Start"), QStringLiteral("0"));
    QCOMPARE(text("lineEdit_End"), QStringLiteral("13"));
    QCOMPARE(start.count(), 1);
    click("pushButton_Save");
    QCOMPARE(host->savings.at(0).path, QString());
}

void TestSaveDialog::survivesAStrangerAsParent()
{
    QWidget stranger;
    dialog = new SaveDialog(&stranger);
    open(threeTimes);
    whenOpened<QFileDialog>(dialog, [](QFileDialog *files) { files->reject(); });
    click("toolButton_Browse");
    QSignalSpy cleared(dialog, &SaveDialog::clearPoints);
    click("pushButton_Save");
    QCOMPARE(cleared.count(), 1);
}

void TestSaveDialog::retranslatesOnALanguageChange()
{
    PseudoTranslator translator;
    open(threeTimes);
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("<SaveDialog>Save File"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("<SaveDialog>File path:"));
    type(folder->filePath(QStringLiteral("nowhere/a.cfg")));
    QCOMPARE(child<QLineEdit>("lineEdit_FilePath")->toolTip(),
        QStringLiteral("<SaveDialog>There is no such folder"));

    type(makeFile(QStringLiteral("a.cfg")));
    QStringList texts;
    whenOpened<QMessageBox>(dialog, [&](QMessageBox *box) {
        texts = QStringList{box->windowTitle(), box->text(), box->buttons().at(0)->text()};
        box->reject();
    });
    click("pushButton_Save");
    QCOMPARE(texts,
        QStringList({QStringLiteral("<SaveDialog>Save file"),
            QStringLiteral(
                "<SaveDialog>File already exists. Are you sure you want to overwrite it?"),
            QStringLiteral("<SaveDialog>Continue")}));
}

QTEST_MAIN(TestSaveDialog)
#include "tst_savedialog.moc"
