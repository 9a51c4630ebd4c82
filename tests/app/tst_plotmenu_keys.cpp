// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmenus.h"
#include "plotswindow.h"

#include <QColorDialog>
#include <QPointer>

#include <functional>
#include <memory>

// The context menu of the plots by the keys, and what else could only be reached with the mouse.
// The recording lasts from 0 to 99 ms, its whole view to 100; its trigger lies at 50 ms.
class TestPlotMenuKeys : public PlotsWindow {
    Q_OBJECT

private slots:
    void initTestCase() { startAsMaker(); }
    void init()
    {
        openWindow();
        openUsual();
    }
    void cleanup() { closeWindow(); }

    void theMenuKey();
    void theMenuKeyActsOnThePlotArea_data();
    void theMenuKeyActsOnThePlotArea();
    void theMenuKeyWhereANameStands();
    void theMenuKeyOnAName();
    void noCursorHereOutsideTheView();
    void titlesAreEdited_data();
    void titlesAreEdited();
    void colorsAreChosen();
    void colorsOfLongAndSpectralNames();
    void aDialogOfColorsEndsWithItsRecording();
    void noColorsWithoutChannels();
    void lettersLeadToEntries();
    void finnishLettersLeadToEntries();
    void lettersDoNotClash_data();
    void lettersDoNotClash();

private:
    // With the keys.
    QMenu *menuByKey(QWidget *widget) const
    {
        QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    // Of the entries, in their order; those without one are told, too.
    static QString lettersOf(const QMenu *menu, QStringList *without);
    // Shows the dialog of colours that comes next.
    void atColors(const std::function<void(QColorDialog &)> &answer);
    QLabel *nameLabel(const Plotter *plot, int channel) const
    {
        for (QLabel *label : plot->findChildren<QLabel *>(QStringLiteral("channelLabel"))) {
            if (label->property("channel").toInt() == channel)
                return label;
        }
        return nullptr;
    }
    QColor colorOf(const Plotter *plot, int channel) const
    {
        return nameLabel(plot, channel)->palette().color(QPalette::WindowText);
    }
};

void TestPlotMenuKeys::theMenuKey()
{
    analog()->setFocus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, analog()->rect().center());
    QApplication::sendEvent(analog(), &event);
    const std::unique_ptr<QMenu> menu(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
    QVERIFY(menu);
    QVERIFY(entryOf(menu.get(), QStringLiteral("Cursor at Trigger")));
}

void TestPlotMenuKeys::theMenuKeyActsOnThePlotArea_data()
{
    QTest::addColumn<int>("cursors");
    for (const int cursors : {0, 6, 10})
        QTest::addRow("%d cursors", cursors) << cursors;
}

// Beside which the table of the readout takes up to half of the plot. "Trip" changes at 50 ms.
void TestPlotMenuKeys::theMenuKeyActsOnThePlotArea()
{
    QFETCH(int, cursors);
    for (int i = 0; i < cursors; ++i)
        analog()->addCursorAt(i);
    for (Plotter *each : plots()) {
        each->setFocus();
        analog()->changeView([](PlotView &view) { return view.showTimes(30, 60); });
        for (int twice = 0; twice < 2; ++twice) {
            QPointer<QMenu> menu = menuByKey(each);
            QVERIFY(menu);
            QAction *entry = entryOf(menu, QStringLiteral("Cursor Here"));
            QVERIFY(entry->isEnabled());
            entry->trigger();
            delete menu;
            QCOMPARE(analog()->cursors().size(), cursors + 1 + twice);
            const double time = analog()->cursors().constLast();
            QVERIFY2(std::abs(time - 45) < 0.2, qPrintable(QString::number(time)));
        }
        QPointer<QMenu> menu = menuByKey(each);
        QVERIFY(entryOf(menu, QStringLiteral("Cursor at Next Change"))
            || entryOf(menu, QStringLiteral("Cursor at Next Change (Trip)")));
        for (const QAction *entry : menu->actions()) {
            if (shownText(entry->text()).startsWith(QLatin1String("Cursor at Next Change"))
                || entry->text().contains(QLatin1String("imum in View"))) {
                QVERIFY2(entry->isEnabled(), qPrintable(entry->text()));
            }
        }
        delete menu;
        window->removeCursors();
        for (int i = 0; i < cursors; ++i)
            analog()->addCursorAt(i);
    }
}

// Names of cursors at one time stand below each other.
void TestPlotMenuKeys::theMenuKeyWhereANameStands()
{
    const QPoint middle = digital()->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    const double time = digital()->geometryOfView().lineTime(middle.x() - 8);
    const auto nameAtMiddle = [&] {
        const QWidget *child = digital()->childAt(middle);
        return child && child->objectName() == QLatin1String("lineLabel");
    };
    while (!nameAtMiddle() && analog()->cursors().size() < CursorMarks::most)
        analog()->addCursorAt(time);
    QVERIFY(nameAtMiddle());
    digital()->setFocus();
    for (int twice = 0; twice < 2; ++twice) {
        const std::unique_ptr<QMenu> menu(menuByKey(digital()));
        QVERIFY(entryOf(menu.get(), QStringLiteral("Cursor at Trigger")));
        QVERIFY(!entryOf(menu.get(), QStringLiteral("Remove Cursor")));
    }
}

// Also where the pointer is over the plot, which then has the keys.
void TestPlotMenuKeys::theMenuKeyOnAName()
{
    analog()->addCursorAt(20);
    analog()->addCursorAt(60);
    QLabel *name = analog()->findChildren<QLabel *>(QStringLiteral("lineLabel")).at(1);
    for (int twice = 0; twice < 2; ++twice) {
        name->setFocus();
        QPointer<QMenu> menu = menuByKey(name);
        QCOMPARE(menu->actions().constFirst()->text(), QStringLiteral("Remove Cursor"));
        delete menu;
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        const QPoint place(300 + twice, 150);
        QMouseEvent move(QEvent::MouseMove, place, analog()->mapToGlobal(place), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(analog(), &move);
        QCOMPARE(QWidget::keyboardGrabber(), analog());
        menu = menuByKey(nullptr);
        QVERIFY(menu);
        QCOMPARE(menu->actions().constFirst()->text(), QStringLiteral("Remove Cursor"));
        QTest::keyClick(menu, Qt::Key_N);
        QCOMPARE(analog()->cursors(), QList<double>({20, 61.0 + twice}));
        analog()->setFocus();
        menu = menuByKey(analog());
        QVERIFY(entryOf(menu, QStringLiteral("Cursor Here")));
        delete menu;
    }
}

void TestPlotMenuKeys::noCursorHereOutsideTheView()
{
    const QString here = QStringLiteral("Cursor Here");
    for (int cursors = 0; cursors < 7; ++cursors) {
        for (Plotter *each : plots()) {
            const QRect area = each->geometryOfView().area();
            QVERIFY(!offers(each, here, {area.left() - 1, 150}));
            QVERIFY(offers(each, here, {area.left(), 150}));
            QVERIFY(offers(each, here, {area.right(), 150}));
            QVERIFY(offers(each, here, {area.center().x(), 10}));
            QVERIFY(!offers(each, here, {area.right() + 1, 150}));
        }
        analog()->addCursorAt(10 * cursors);
    }
}

void TestPlotMenuKeys::titlesAreEdited_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Analog", "Digital", "Graph 1"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// As by a double-click. Without a screen an open menu takes the window's activation, so no events
// are processed in between.
void TestPlotMenuKeys::titlesAreEdited()
{
    QFETCH(QString, name);
    compose({QStringLiteral("Ib")});
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    Plotter *edited = plot(name);
    QString title = name + QStringLiteral(" Plotter");
    QLineEdit *editor = nullptr;
    for (QLineEdit *each : edited->findChildren<QLineEdit *>())
        editor = each;
    const auto *label = edited->findChild<QLabel *>(QStringLiteral("Plotter Label"));
    for (int i = 0; i < 4; ++i) {
        const bool isByKeys = i % 2 == 0;
        edited->setFocus();
        if (isByKeys)
            QTest::keyClick(menuByKey(edited), Qt::Key_D);
        else
            QTest::mouseDClick(edited, Qt::LeftButton, {}, label->geometry().center());
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(editor->isVisible());
        QCOMPARE(window->focusWidget(), editor);
        QCOMPARE(QWidget::keyboardGrabber(), editor);
        QCOMPARE(editor->geometry(), label->geometry());
        QCOMPARE(editor->selectedText(), title);
        const QString typed = QStringLiteral("t%1").arg(i);
        QTest::keyClicks(static_cast<QWidget *>(nullptr), typed);
        QTest::keyClick(static_cast<QWidget *>(nullptr), i < 2 ? Qt::Key_Return : Qt::Key_Escape);
        title = i < 2 ? typed : title;
        QCOMPARE(edited->accessibleName(), title);
        QVERIFY(editor->isHidden());
        QCOMPARE(window->focusWidget(), edited);
    }
}

void TestPlotMenuKeys::atColors(const std::function<void(QColorDialog &)> &answer)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, timer, [timer, answer] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->stop();
        timer->deleteLater();
        answer(*dialog);
    });
    timer->start(0);
}

// By the second entry of the submenu and by a double-click on the name.
void TestPlotMenuKeys::colorsAreChosen()
{
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    const QColor first = colorOf(analog(), 0);
    const QColor colors[] = {Qt::red, Qt::green, QColor(), QColor(), Qt::cyan, Qt::magenta};
    QColor now = colorOf(analog(), 1);
    for (int i = 0; i < 6; ++i) {
        const QColor &color = colors[i];
        QColor proposed;
        bool isAnswered = false;
        const auto answer = [&](QColorDialog &dialog) {
            proposed = dialog.currentColor();
            if (color.isValid())
                dialog.setCurrentColor(color);
            QTest::keyClick(&dialog, color.isValid() ? Qt::Key_Return : Qt::Key_Escape);
            isAnswered = true;
        };
        atColors(answer);
        analog()->setFocus();
        if (i % 2 == 0) {
            QTest::keyClick(menuByKey(analog()), Qt::Key_O);
            auto *names = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QCOMPARE(names->actions().size(), 2);
            QCOMPARE(names->actions().at(0)->text(), QStringLiteral("Ia"));
            QCOMPARE(names->actions().at(1)->text(), QStringLiteral("Ib"));
            QTest::keyClick(names, Qt::Key_Down);
            QTest::keyClick(names, Qt::Key_Return);
        } else {
            QTest::mouseDClick(
                analog(), Qt::LeftButton, {}, nameLabel(analog(), 1)->geometry().center());
        }
        QTRY_VERIFY(isAnswered);
        QCOMPARE(proposed, QColor(Qt::white));
        now = color.isValid() ? color : now;
        QCOMPARE(colorOf(analog(), 1), now);
        QCOMPARE(colorOf(analog(), 0), first);
    }
    QMenu *menu = contextMenuAt(digital(), {300, 150});
    QVERIFY(entryOf(menu, QStringLiteral("Edit Title")));
    QVERIFY(!entryOf(menu, QStringLiteral("Channel Color")));
    delete menu;
    analog()->addCursorAt(50);
    const auto *name = analog()->findChild<QLabel *>(QStringLiteral("lineLabel"));
    menu = contextMenuAt(analog(), name->geometry().center());
    QVERIFY(!entryOf(menu, QStringLiteral("Edit Title")));
    QVERIFY(!entryOf(menu, QStringLiteral("Channel Color")));
    delete menu;
}

// In the order in which the names stand in the plot.
void TestPlotMenuKeys::colorsOfLongAndSpectralNames()
{
    const QString longName = QStringLiteral("first%1last").arg(QString(100, QLatin1Char('x')));
    open({QStringLiteral("I & U"), longName}, {QStringLiteral("Trip")});
    compose({longName, QStringLiteral("I & U_FFT")});
    const std::unique_ptr<QMenu> menu(contextMenuAt(plot(QStringLiteral("Graph 1")), {300, 150}));
    const QMenu *names = entryOf(menu.get(), QStringLiteral("Channel Color"))->menu();
    QCOMPARE(names->actions().size(), 2);
    const QString elided = names->actions().at(0)->text();
    QVERIFY(elided.startsWith(QLatin1String("firstx")) && elided.endsWith(QLatin1String("xlast")));
    QVERIFY(elided.size() < 100 && elided.contains(QChar(0x2026)));
    QCOMPARE(names->actions().at(1)->text(), QStringLiteral("I && U FFT"));
}

void TestPlotMenuKeys::aDialogOfColorsEndsWithItsRecording()
{
    QTest::keyClick(menuByKey(analog()), Qt::Key_O);
    QWidget *names = QApplication::activePopupWidget();
    bool isGone = false;
    atColors([&](QColorDialog &dialog) {
        const QPointer<QColorDialog> shown(&dialog);
        open({QStringLiteral("Ic")}, {});
        isGone = !shown;
    });
    QTest::keyClick(names, Qt::Key_Return);
    QTRY_VERIFY(isGone);
    QCOMPARE(analog()->shownChannels().at(0).id, QStringLiteral("Ic"));
}

void TestPlotMenuKeys::noColorsWithoutChannels()
{
    const QString colors = QStringLiteral("Channel Color");
    for (int twice = 0; twice < 2; ++twice) {
        QVERIFY(offers(analog(), colors));
        for (int row = 0; row < 2; ++row)
            click(list("listWidget"), row);
        QVERIFY(!offers(analog(), colors));
        for (int row = 0; row < 2; ++row)
            click(list("listWidget"), row);
    }
}

void TestPlotMenuKeys::lettersLeadToEntries()
{
    using Times = QPair<double, double>;
    analog()->setFocus();
    for (int twice = 0; twice < 2; ++twice) {
        trigger("Zoom In");
        QTest::keyClick(menuByKey(analog()), Qt::Key_L);
        QCOMPARE(times(), Times(25, 75));
        QTest::keyClick(menuByKey(analog()), Qt::Key_E);
        QCOMPARE(times(), Times(0, 50));
        QTest::keyClick(menuByKey(analog()), Qt::Key_W);
        QCOMPARE(times(), Times(25, 75));
        QTest::keyClick(menuByKey(analog()), Qt::Key_G);
        QCOMPARE(analog()->cursors().constLast(), 50.0);
        trigger("Zoom Reset");
    }
}

// A letter that not every keyboard has.
void TestPlotMenuKeys::finnishLettersLeadToEntries()
{
    using Times = QPair<double, double>;
    trigger("Suomi");
    const QString letter = QStringLiteral("ö");
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Odiaeresis, Qt::NoModifier, letter);
    for (int twice = 0; twice < 2; ++twice) {
        QTest::keyClick(analog(), Qt::Key_Plus);
        QCOMPARE(times(), Times(0, 50));
        QApplication::sendEvent(menuByKey(analog()), &press);
        QCOMPARE(times(), Times(25, 75));
        QVERIFY(choose(analog(), QStringLiteral("Koko tallenne")));
    }
}

QString TestPlotMenuKeys::lettersOf(const QMenu *menu, QStringList *without)
{
    QString letters;
    without->clear();
    for (const QAction *entry : menu->actions()) {
        const QString text = entry->text();
        int mark = 0;
        while ((mark = text.indexOf(QLatin1Char('&'), mark)) >= 0
            && text.mid(mark + 1, 1) == QLatin1String("&"))
            mark += 2;
        if (mark >= 0)
            letters += text.at(mark + 1).toUpper();
        else if (!entry->isSeparator())
            without->append(text);
    }
    return letters;
}

void TestPlotMenuKeys::lettersDoNotClash_data()
{
    QTest::addColumn<QString>("language"); // its entry
    QTest::addColumn<QString>("analog"); // the letters in order
    QTest::addColumn<QString>("digital");
    QTest::addColumn<QString>("name"); // of a cursor
    QTest::newRow("English") << QStringLiteral("English") << "ELWZGTCXMIDOBVUYSANPR"
                             << "ELWZGTCXDBVUYSANPR"
                             << "MPN";
    QTest::newRow("Finnish") << "Suomi" << QStringLiteral("AÖDZLIHRKYOÄJTUPNMSEV")
                             << QStringLiteral("AÖDZLIHROJTUPNMSEV") << "AES";
    QTest::newRow("Chinese") << QStringLiteral("中文") << "ELWZGTCXMIDOBVUYSANPR"
                             << "ELWZGTCXDBVUYSANPR"
                             << "MPN";
}

// Those without one are the three that are the tool bar's and the four for which none is left.
void TestPlotMenuKeys::lettersDoNotClash()
{
    QFETCH(QString, language);
    analog()->addCursorAt(50);
    analog()->addCursorAt(60);
    const QPoint onName
        = analog()->findChild<QLabel *>(QStringLiteral("lineLabel"))->geometry().center();
    for (const QString &spoken : {language, QStringLiteral("English"), language}) {
        for (QAction *entry : window->findChildren<QAction *>()) {
            if (entry->text() == spoken)
                entry->trigger();
        }
        if (spoken != language)
            continue;
        const auto letters = [&](Plotter *plot, const QPoint &point, int withoutLetter) {
            const std::unique_ptr<QMenu> menu(contextMenuAt(plot, point));
            QStringList without;
            const QString found = lettersOf(menu.get(), &without);
            QString sorted = found;
            std::sort(sorted.begin(), sorted.end());
            const bool isUnique = std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
            return isUnique && without.size() == withoutLetter
                ? found
                : found + without.join(QLatin1Char('|'));
        };
        QTEST(letters(analog(), {300, 150}, 7), "analog");
        QTEST(letters(digital(), {300, 150}, 7), "digital");
        QTEST(letters(analog(), onName, 2), "name");
    }
}

QTEST_MAIN(TestPlotMenuKeys)
#include "tst_plotmenu_keys.moc"
