// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmenus.h"
#include "smallrecording.h"
#include "windowfixture.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QToolButton>

// What a screen reader calls the parts of the window and of its dialogs.
class TestAccessibleNames : public WindowFixture {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { closeWindow(); }
    void whateverTakesTheFocusHasOne_data();
    void whateverTakesTheFocusHasOne();
    void tellWhatAPartIs();
    void ofPlotsAreTheirTitles();
    void ofCursorsComeWithTheirTimes();
    void standWithWhatAPartIs();
    void followTheLanguage();

private:
    // Outside Windows the toolkit gives a combo box's value for its name, and tells its label
    // apart.
    static QString nameOf(QWidget *widget)
    {
        QAccessibleInterface *part = QAccessible::queryAccessibleInterface(widget);
        if (!qobject_cast<QComboBox *>(widget))
            return part->text(QAccessible::Name);
        const auto labels = part->relations(QAccessible::Label);
        return labels.isEmpty() ? widget->accessibleName()
                                : labels.first().first->text(QAccessible::Name);
    }
    void chooseLanguage(const QString &language) const
    {
        for (QAction *each : window->findChildren<QAction *>()) {
            if (each->text() == language)
                each->trigger();
        }
        QCoreApplication::processEvents();
    }
    template <class T> T *part(const QString &form, const char *name) const
    {
        const QWidget *parent = form.isEmpty() ? window.get() : window->findChild<QWidget *>(form);
        return parent->findChild<T *>(QLatin1String(name));
    }
};

void TestAccessibleNames::init()
{
    startAsMaker();
    makeWindow();
    window->open(writeSmallRecording(folder->path(), QStringLiteral("rec"),
        smallConfiguration().replace("1999\n", "2013\n"))); // of which there is a note
    window->addPlotter({QStringLiteral("IL1")});
    showActive();
    for (const char *sideWindow : {"Events...", "Measurements...", "Notes..."})
        QVERIFY(choose(window->findChild<Plotter *>(), QString::fromLatin1(sideWindow)));
}

void TestAccessibleNames::whateverTakesTheFocusHasOne_data()
{
    QTest::addColumn<QString>("dialog"); // none for the window itself
    QTest::newRow("window") << QString();
    for (const char *dialog : {"AddPlotterDialog", "CTVTDialog", "SaveDialog", "VectorDialog",
             "EventsDialog", "MeasurementsDialog", "NotesDialog"})
        QTest::newRow(dialog) << QString::fromLatin1(dialog);
}

void TestAccessibleNames::whateverTakesTheFocusHasOne()
{
    QFETCH(QString, dialog);
    QWidget *form = window.get();
    if (!dialog.isEmpty()) {
        form = child<QDialog>(dialog.toLatin1());
        QVERIFY(form);
        form->show();
        QVERIFY(QTest::qWaitForWindowExposed(form));
    }
    int count = 0;
    QStringList nameless;
    for (auto *widget : form->findChildren<QWidget *>()) {
        if (widget->window() != form || (widget->focusPolicy() & Qt::TabFocus) == 0
            || widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        ++count;
        if (nameOf(widget).trimmed().isEmpty())
            nameless += QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
                + widget->objectName();
    }
    QVERIFY(count >= 3);
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QStringLiteral(", "))));
}

void TestAccessibleNames::tellWhatAPartIs()
{
    // Without the name of a dialog, the part is one of the window itself.
    const auto row = [this](const char *dialog, const char *part, const char *name) {
        auto *widget = this->part<QWidget>(QLatin1String(dialog), part);
        QVERIFY2(widget, part);
        QCOMPARE(nameOf(widget).trimmed(), QLatin1String(name));
    };
    row("", "listWidget", "Analog Channels:");
    row("", "listWidget2", "Digital Channels:");
    row("", "scrollWidget", "Plots");
    row("", "comboBox_mainReference", "Reference channel of the FFT angles");
    row("", "comboBox_primSec", "Primary/Secondary:");
    row("VectorDialog", "comboBox_reference", "Reference:");
    row("VectorDialog", "toolButton", "Add a diagram");
    row("VectorWidget", "labelVector", "Phasor diagram");
    row("VectorWidget", "labelMagnitudes", "RMS values");
    row("SaveDialog", "lineEdit_FilePath", "File path:");
    row("SaveDialog", "toolButton_Browse", "Choose the file");
    row("SaveDialog", "horizontalSlider_StartPoint", "Recording start point (ms):");
    row("SaveDialog", "horizontalSlider_EndPoint", "Recording end point (ms):");
    row("AddPlotterDialog", "lineEdit_graphName", "Graph name:");
    row("AddPlotterDialog", "listWidget_unSelected", "Channels");
    row("AddPlotterDialog", "listWidget_Selected", "Channels of the plot");
    row("AddPlotterDialog", "pushButton_add", "Add to the plot");
    row("AddPlotterDialog", "pushButton_remove", "Remove from the plot");
}

void TestAccessibleNames::ofPlotsAreTheirTitles()
{
    for (const auto *plot : window->findChildren<Plotter *>())
        QCOMPARE(plot->accessibleName(), plot->name() + QStringLiteral(" Plotter"));
    for (const auto *bar :
        window->findChildren<QScrollBar *>(QString(), Qt::FindDirectChildrenOnly))
        QVERIFY(!bar->accessibleName().isEmpty());
}

void TestAccessibleNames::ofCursorsComeWithTheirTimes()
{
    auto *plot = window->findChild<Plotter *>();
    plot->addCursorAt(5);
    plot->addCursorAt(10.25);
    const auto told = [this] {
        QStringList texts;
        for (Plotter *each : window->findChildren<Plotter *>()) {
            for (QLabel *label : each->findChildren<QLabel *>(QStringLiteral("lineLabel"))) {
                const QAccessibleInterface *part = QAccessible::queryAccessibleInterface(label);
                texts += part->text(QAccessible::Name) + QStringLiteral(": ")
                    + part->text(QAccessible::Description);
            }
        }
        texts.removeDuplicates(); // all plots tell the same
        return texts.join(QStringLiteral(", "));
    };
    QCOMPARE(told(), QStringLiteral("P1: 5.000 ms, P2: 10.250 ms"));
    plot->moveCursor(0, 12);
    plot->zoomIn();
    QCOMPARE(told(), QStringLiteral("P1: 12.000 ms, P2: 10.250 ms"));
}

void TestAccessibleNames::standWithWhatAPartIs()
{
    const auto row = [this](const char *dialog, const char *part, QAccessible::Role role) {
        auto *widget = this->part<QWidget>(QLatin1String(dialog), part);
        QVERIFY2(widget, part);
        QCOMPARE(QAccessible::queryAccessibleInterface(widget)->role(), role);
    };
    row("", "listWidget", QAccessible::List);
    row("", "Plotter", QAccessible::Chart);
    row("", "comboBox_primSec", QAccessible::ComboBox);
    row("VectorDialog", "toolButton", QAccessible::Button);
    child<QDialog>("VectorDialog")->show(); // the diagram is a picture once it is drawn
    auto *diagram = part<QWidget>(QStringLiteral("VectorWidget"), "labelVector");
    QVERIFY(diagram);
    QTRY_COMPARE(QAccessible::queryAccessibleInterface(diagram)->role(), QAccessible::Graphic);
    row("MeasurementsDialog", "bars", QAccessible::Chart);
}

void TestAccessibleNames::followTheLanguage()
{
    auto *add = part<QToolButton>(QStringLiteral("VectorDialog"), "toolButton");
    const auto *primary = child<QDialog>("CTVTDialog")->findChild<QLineEdit *>();
    for (int twice = 0; twice < 2; ++twice) {
        chooseLanguage(QStringLiteral("Suomi"));
        QCOMPARE(nameOf(child<QWidget>("scrollWidget")), QStringLiteral("Kuvaajat"));
        QCOMPARE(nameOf(add), QStringLiteral("Lisää osoitinpiirros"));
        QCOMPARE(primary->accessibleName(), QStringLiteral("IL1, ensiö"));
        chooseLanguage(QStringLiteral("English"));
        QCOMPARE(primary->accessibleName(), QStringLiteral("IL1, primary"));
        QCOMPARE(nameOf(child<QWidget>("scrollWidget")), QStringLiteral("Plots"));
        QCOMPARE(nameOf(add), QStringLiteral("Add a diagram"));
    }
}

QTEST_MAIN(TestAccessibleNames)
#include "tst_accessiblenames.moc"
