// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cfgproperties.h"
#include "channelnames.h"
#include "eventsdialog.h"
#include "memoryfile.h"
#include "openingfixture.h"
#include "plotmenus.h"
#include "recordingbuilder.h"
#include "reportpicture.h"
#include "vectordialog.h"

#include <QAbstractButton>
#include <QJsonArray>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

namespace {

const QString namesAs = QStringLiteral("Names &As");
const QString asRead = QStringLiteral("As Read");

} // namespace

// A recording whose texts beyond ASCII are those of a row, in the letters of that row.
class TestNameLetters : public OpeningFixture {
    Q_OBJECT

private slots:
    void init()
    {
        OpeningFixture::open();
        window->resize(1200, 900);
        showActive();
    }
    void cleanup() { close(); }

    void everywhereAtOnce_data() { addLetters(); }
    void everywhereAtOnce();
    void throughAllAndBack_data() { addLetters(); }
    void throughAllAndBack();
    void notesOfChannels_data() { addLetters(); }
    void notesOfChannels();
    void nothingElse_data() { addLetters(); }
    void nothingElse();
    void channelsAreFound_data() { addLetters(); }
    void channelsAreFound();
    void keptForTheDevice();
    void recommended_data() { addLetters(); }
    void recommended();
    void filtersAreOfWhatIsShown();
    void titlesOfUnits();
    void textsOfTheProgramStay();
    void listsKeepTheirPlace();

private:
    static void addLetters();
    Plotter *analog() const { return plotNamed(QStringLiteral("Analog")); }
    Plotter *digital() const { return plotNamed(QStringLiteral("Digital")); }
    // Writes and opens it; its texts as they stand in the file.
    void openRow();
    void openFile(const QByteArrayList &texts, const char *name = "rec");
    // By the menu.
    void chooseLetters(const QString &entry) const
    {
        QMenu *menu = contextMenuAt(analog(), {300, 100});
        QAction *choice = entryOf(entryOf(menu, namesAs)->menu(), entry);
        QVERIFY2(choice, qPrintable(entry));
        QVERIFY(choice->isEnabled() && choice->isCheckable());
        choice->trigger();
        delete menu;
        settle();
    }
    QString chosenInMenu() const
    {
        QMenu *menu = contextMenuAt(analog(), {300, 100});
        QStringList checked;
        for (const QAction *choice : entryOf(menu, namesAs)->menu()->actions()) {
            if (choice->isChecked())
                checked.append(choice->text());
        }
        delete menu;
        return checked.join(QLatin1Char('|'));
    }
    void settle() const
    {
        for (int i = 0; i < 3; ++i)
            QTest::qWait(20); // for windows that draw later
    }
    void showAllWindows();
    QStringList shownTexts() const;
    QImage picture(QWidget *widget) const { return widget->grab().toImage(); }
    QByteArray saved() const
    {
        window->saveRecording(path("saved"), 10, 30);
        QByteArray contents;
        for (const char *name : {"saved.cfg", "saved.dat"}) {
            QFile file(path(name));
            if (file.open(QIODevice::ReadOnly))
                contents += file.readAll();
            file.remove();
        }
        return contents;
    }
    QString shownUnit() const
    {
        return analog()->shownChannels().at(0).id + QLatin1Char('|')
            + analog()->shownChannels().at(0).unit;
    }

    QByteArrayList bytes; // of the row: station, device, two analog channels, unit, digital one
    QStringList names; // the same as they are meant
};

void TestNameLetters::addLetters()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("texts");
    const auto row = [](const char *name, const char *hex, const char *texts) {
        QTest::newRow(name) << QByteArray(hex) << QString::fromUtf8(texts);
    };
    row("UTF-8",
        "d09fd0bed0b4d181d182d0b0d0bdd186d0b8d18f20d0a07cd0afd187d0b5d0b9d0bad0b020377cd0a2d0bed0ba"
        "20d184d0b0d0b7d18b20d0907cd09dd0b0d0bfd180d18fd0b6d0b5d0bdd0b8d0b57cd09ed0bc7cd09ed182d0ba"
        "d0bbd18ed187d0b5d0bdd0b8d0b5",
        "Подстанция Р|Ячейка 7|Ток фазы А|Напряжение|Ом|Отключение");
    row("Windows-1251",
        "cfeee4f1f2e0edf6e8ff20d07cdff7e5e9eae020377cd2eeea20f4e0e7fb20c07ccde0eff0ffe6e5ede8e57cce"
        "ec7ccef2eaebfef7e5ede8e5",
        "Подстанция Р|Ячейка 7|Ток фазы А|Напряжение|Ом|Отключение");
    row("IBM 866",
        "8faea4e1e2a0ade6a8ef20907c9fe7a5a9aaa020377c92aeaa20e4a0a7eb20807c8da0afe0efa6a5ada8a57c8e"
        "ac7c8ee2aaabeee7a5ada8a5",
        "Подстанция Р|Ячейка 7|Ток фазы А|Напряжение|Ом|Отключение");
    row("GBK", "b1e4b5e7d5be7cd7b0d6c3377c41cfe0b5e7c1f77cc4b8cfdfb5e7d1b97cb6c87cccf8d5a2",
        "变电站|装置7|A相电流|母线电压|度|跳闸");
    row("Windows-1252",
        "556d7370616e6e7765726b20962053fc647c46656c64208437937c5374726f6d20897c5370616e6e756e672080"
        "7c897c4175736cf673756e6785",
        "Umspannwerk – Süd|Feld „7“|Strom ‰|Spannung €|‰|Auslösung…");
}

void TestNameLetters::openRow()
{
    QFETCH(QByteArray, hex);
    QFETCH(QString, texts);
    bytes = QByteArray::fromHex(hex).split('|');
    names = texts.split(QLatin1Char('|'));
    openFile(bytes);
}

void TestNameLetters::openFile(const QByteArrayList &texts, const char *name)
{
    ConfigurationText text;
    text.station = texts.at(0) + ',' + texts.at(1) + ",1999";
    for (const int i : {2, 3})
        text.addAnalog(texts.at(i) + ',' + texts.at(5) + ',' + texts.at(0) + ',' + texts.at(4)
            + ",0.5,0,0,-32767,32767,400,1,S");
    text.addDigital(texts.at(5));
    const QString file = writePair(
        folder->filePath(QLatin1String(name)), text.text(), dataLines(40, 1000, [](int i) {
            return QByteArrayList{
                i % 20 < 10 ? "200" : "-200", QByteArray::number(i), i < 20 ? "0" : "1"};
        }));
    window->open(file);
    QVERIFY(window->recording() && window->recording()->analogChannels.size() == 2);
}

void TestNameLetters::showAllWindows()
{
    window->addPlotter({window->recording()->analogIds.at(1)});
    analog()->addCursorAt(5);
    analog()->addCursorAt(25);
    QVERIFY(choose(analog(), QStringLiteral("Events...")));
    QVERIFY(choose(analog(), QStringLiteral("Measurements...")));
    QVERIFY(choose(analog(), QStringLiteral("Notes...")));
    QVERIFY(choose(analog(), QStringLiteral("Plots by Unit")));
    trigger("&Show Vectors");
    for (QAbstractButton *box : window->findChild<VectorDialog *>()->findChildren<QCheckBox *>())
        box->setChecked(true);
    trigger("Rescale CTVT");
    settle();
}

// Of all widgets, shown or not.
QStringList TestNameLetters::shownTexts() const
{
    QStringList texts;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        texts << widget->toolTip() << widget->accessibleName() << widget->windowTitle();
        for (const char *property : {"text", "title"})
            texts << widget->property(property).toString();
        if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
            for (int i = 0; i < combo->count(); ++i)
                texts << combo->itemText(i);
        }
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        const QAbstractItemModel *model = view ? view->model() : nullptr;
        for (int row = 0; model && row < model->rowCount(); ++row) {
            texts << model->headerData(row, Qt::Vertical).toString();
            for (int column = 0; column < model->columnCount(); ++column)
                texts << model->index(row, column).data().toString()
                      << model->index(row, column).data(Qt::ToolTipRole).toString();
        }
        if (const auto *plot = qobject_cast<const Plotter *>(widget)) {
            texts << plot->name();
            for (const ShownChannel &shown : plot->shownChannels().byNumber())
                texts << shown.id << shown.unit << shown.phase << shown.circuit;
        }
    }
    texts.removeAll(QString());
    return texts;
}

// No text is left as it was read, and each is seen as it is meant.
void TestNameLetters::everywhereAtOnce()
{
    openRow();
    showAllWindows();
    const QString before = shownTexts().join(QLatin1Char('\n'));
    for (const QByteArray &text : qAsConst(bytes))
        QVERIFY(before.contains(QString::fromLatin1(text)));
    chooseLetters(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(chosenInMenu(), QLatin1String(QTest::currentDataTag()));
    const QStringList after = shownTexts();
    for (const QString &text : after) {
        for (const QByteArray &read : qAsConst(bytes))
            QVERIFY2(!text.contains(QString::fromLatin1(read)), qPrintable(text));
    }
    for (const QString &name : qAsConst(names))
        QVERIFY2(after.join(QLatin1Char('\n')).contains(name), qPrintable(name));
    const QStringList heading
        = ReportPicture(*window->recording(), QString(), QString(), {}).heading;
    QCOMPARE(heading.constFirst(), names.at(0) + QStringLiteral("    ") + names.at(1));
    QCOMPARE(shown("label4"), names.at(0));
    QCOMPARE(shown("label5"), names.at(1));
    QCOMPARE(listed("listWidget"), QStringList({names.at(2), names.at(3)}));
    QCOMPARE(listed("listWidget2"), QStringList(names.at(5)));
}

// What stands on the screen is the same again, and the same as in a window that never saw others.
void TestNameLetters::throughAllAndBack()
{
    openRow();
    showAllWindows();
    const QStringList before = shownTexts();
    const QImage analogBefore = picture(analog());
    const QImage digitalBefore = picture(digital());
    for (int twice = 0; twice < 2; ++twice) {
        for (const char *entry : {"UTF-8", "Windows-1251", "IBM 866", "GBK", "Windows-1252"})
            chooseLetters(QLatin1String(entry));
        chooseLetters(QLatin1String(QTest::currentDataTag()));
        QVERIFY(picture(analog()) != analogBefore);
        QVERIFY(picture(digital()) != digitalBefore);
        chooseLetters(asRead);
        QCOMPARE(shownTexts(), before);
        QCOMPARE(picture(analog()), analogBefore);
        QCOMPARE(picture(digital()), digitalBefore);
    }
}

// While they are shown, and as they are shown again.
void TestNameLetters::notesOfChannels()
{
    QFETCH(QByteArray, hex);
    QFETCH(QString, texts);
    const QByteArray read = QByteArray::fromHex(hex).split('|').at(3);
    const QString meant = texts.split(QLatin1Char('|')).at(3);
    ConfigurationText text;
    text.addAnalog("Ia,A,line,A,1,0,0,-99,99,400,5,P");
    text.addAnalog(read + ",A,line,A,1,0,0,-99,99,400,5,P");
    text.rates = QByteArrayList{"1000,2"};
    window->open(writePair(
        folder->filePath(QStringLiteral("noted")), text.text(), "1,0,5,7\n2,1000,6,99999\n"));
    QVERIFY(window->recording());
    const auto notes = [this] {
        const auto *table = child<QDialog>("NotesDialog")->findChild<QTableView *>();
        QStringList shown;
        for (int row = 0; row < table->model()->rowCount(); ++row)
            shown.append(table->model()->index(row, 0).data().toString());
        return shown.filter(QStringLiteral("marks of missing values"));
    };
    const QString rest = QStringLiteral(": marks of missing values, read as numbers");
    const QStringList asItIsRead(QString::fromLatin1(read) + rest);
    const QStringList asItIsMeant(meant + rest);
    for (int twice = 0; twice < 2; ++twice) {
        QVERIFY(choose(analog(), QStringLiteral("Notes...")));
        QCOMPARE(notes(), asItIsRead);
        chooseLetters(QLatin1String(QTest::currentDataTag()));
        QCOMPARE(notes(), asItIsMeant);
        child<QDialog>("NotesDialog")->close();
        QVERIFY(choose(analog(), QStringLiteral("Notes...")));
        QCOMPARE(notes(), asItIsMeant);
        chooseLetters(asRead);
        QCOMPARE(notes(), asItIsRead);
    }
}

void TestNameLetters::nothingElse()
{
    openRow();
    const QByteArray before = saved();
    for (const QByteArray &text : qAsConst(bytes))
        QVERIFY(before.contains(text));
    const QStringList ids = window->recording()->analogIds;
    chooseLetters(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(saved(), before);
    QCOMPARE(window->recording()->analogIds, ids);
    QCOMPARE(window->recording()->stationName, QString::fromLatin1(bytes.at(0)));
    const QString digitalId = window->recording()->digitalChannels.at(0)->id;
    QVERIFY(digitalId.startsWith(QString::fromLatin1(bytes.at(5))));
}

// By the bytes, whatever is shown.
void TestNameLetters::channelsAreFound()
{
    openRow();
    chooseLetters(QLatin1String(QTest::currentDataTag()));
    window->addPlotter({QString::fromLatin1(bytes.at(3))});
    QCOMPARE(plotNamed(QStringLiteral("Graph 1"))->channels(), QList<int>{1});
    QCOMPARE(plotNamed(QStringLiteral("Graph 1"))->shownChannels().at(1).id, names.at(3));
    window->addPlotter({names.at(3)}); // which is the name of none
    QVERIFY(!plotNamed(QStringLiteral("Graph 2")));

    auto *vectors = window->findChild<VectorDialog *>();
    auto *combo = vectors->findChild<QComboBox *>(QStringLiteral("comboBox_reference"));
    combo->setCurrentIndex(2);
    QCOMPARE(combo->currentText(), names.at(3));
    QCOMPARE(vectors->referenceName(), QString::fromLatin1(bytes.at(3)));
    QCOMPARE(vectors->referencePosition(), 1);

    auto *list = child<QListWidget>("listWidget");
    const QRect second = list->visualItemRect(list->item(1));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second.center());
    QCOMPARE(analog()->channels(), QList<int>{0});
    chooseLetters(asRead);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second.center());
    QCOMPARE(analog()->channels(), (QList<int>{0, 1}));
    QCOMPARE(analog()->shownChannels().at(1).id, QString::fromLatin1(bytes.at(3)));
}

void TestNameLetters::keptForTheDevice()
{
    const QByteArray russian = QByteArray::fromHex("d2eeea"); // Ток
    const QString read = QString::fromLatin1(russian);
    const auto openOf = [&](const QByteArray &device) {
        openFile({"S", device, russian, "U", "A", "T"}, "rec");
        return shownUnit().section(QLatin1Char('|'), 0, 0);
    };
    QCOMPARE(openOf("K1"), read);
    chooseLetters(QStringLiteral("Windows-1251"));
    QCOMPARE(openOf("K1"), QStringLiteral("Ток"));
    QCOMPARE(openOf("K1 "), QStringLiteral("Ток")); // as before the line end of 1991
    QCOMPARE(openOf("K2"), read); // another device
    QCOMPARE(chosenInMenu(), asRead);
    chooseLetters(QStringLiteral("IBM 866"));
    QCOMPARE(openOf("K1"), QStringLiteral("Ток"));
    QCOMPARE(chosenInMenu(), QStringLiteral("Windows-1251"));
    QCOMPARE(shown("label4"), QStringLiteral("S"));

    // After a start anew, and not for recordings of no device.
    window = std::make_unique<MainWindow>();
    showActive();
    QCOMPARE(openOf("K1"), QStringLiteral("Ток"));
    QCOMPARE(openOf(""), read);
    chooseLetters(QStringLiteral("Windows-1251"));
    QCOMPARE(openOf(""), read);
    QCOMPARE(openOf("K1"), QStringLiteral("Ток"));
    chooseLetters(asRead);
    QCOMPARE(openOf("K1"), read);

    // A hundred devices at most, the latest.
    QJsonArray kept;
    for (int i = 0; i < 100; ++i)
        kept.append(QJsonArray{QStringLiteral("D%1").arg(i), QStringLiteral("GBK")});
    remember(QStringLiteral("letters"), kept);
    openOf("D99");
    QCOMPARE(chosenInMenu(), QStringLiteral("GBK"));
    openOf("K1");
    chooseLetters(QStringLiteral("UTF-8"));
    openOf("D98");
    QCOMPARE(chosenInMenu(), QStringLiteral("GBK"));
    openOf("D99");
    QCOMPARE(chosenInMenu(), asRead);
    QFile file(memoryFilePath());
    QVERIFY(file.open(QIODevice::WriteOnly)
        && file.write(R"({"letters": [1, ["D25", 7], {}, [[]]]})") > 0);
    file.close();
    openOf("D25");
    QCOMPARE(chosenInMenu(), asRead);
}

void TestNameLetters::recommended()
{
    openRow();
    const auto tip = [&] {
        QMenu *menu = contextMenuAt(analog(), {300, 100});
        const QAction *submenu = entryOf(menu, namesAs);
        const QAction *entry = entryOf(submenu->menu(), QLatin1String(QTest::currentDataTag()));
        const QString text = submenu->toolTip();
        const bool isSame = entry->toolTip() == text && submenu->menu()->toolTipsVisible();
        const bool isShown = menu->toolTipsVisible();
        delete menu;
        return isSame && isShown ? text : QString();
    };
    const QString advice
        = QStringLiteral("The names seem to be in %1").arg(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(tip(), advice);
    chooseLetters(QLatin1String(QTest::currentDataTag()));
    QVERIFY(tip() != advice);
    chooseLetters(asRead);
    QCOMPARE(tip(), advice);
    openFile({"Häiriö", "K1", "IL1", "UL1", "A", "Trip"}, "utf8");
    window->open(goodRecording("plain"));
    QVERIFY(tip() != advice);
}

void TestNameLetters::filtersAreOfWhatIsShown()
{
    openFile({"S", "K1", "I", "U", "A", QByteArray::fromHex("cef2eaeb")}); // Откл
    QVERIFY(choose(analog(), QStringLiteral("Events...")));
    const auto *dialog = window->findChild<EventsDialog *>();
    const QAbstractItemModel *rows = dialog->findChild<QTableView *>()->model();
    QCOMPARE(rows->rowCount(), 2); // with the trigger
    dialog->findChild<QLineEdit *>(QStringLiteral("lineEdit_filter"))
        ->setText(QStringLiteral("отк"));
    QCOMPARE(rows->rowCount(), 1);
    chooseLetters(QStringLiteral("Windows-1251"));
    QCOMPARE(rows->rowCount(), 2);
    chooseLetters(asRead);
    QCOMPARE(rows->rowCount(), 1);
}

// They are made of the units and follow them, unless another title was typed.
void TestNameLetters::titlesOfUnits()
{
    const QByteArray ohm = QByteArray::fromHex("ceec"); // Ом
    openFile({"S", "K1", "I", "U", ohm, "T"});
    QVERIFY(choose(analog(), QStringLiteral("Plots by Unit")));
    const auto titles = [&] {
        QStringList shown;
        for (const QLabel *label : window->findChildren<QLabel *>(QStringLiteral("Plotter Label")))
            shown.append(label->text());
        return shown;
    };
    QVERIFY(titles().contains(QString::fromLatin1(ohm) + QStringLiteral(" Plotter")));
    chooseLetters(QStringLiteral("Windows-1251"));
    QVERIFY(titles().contains(QStringLiteral("Ом Plotter")));
    QVERIFY(titles().contains(QStringLiteral("Analog Plotter")));
    QVERIFY(choose(analog(), QStringLiteral("Plots by Unit")));
    QCOMPARE(titles().count(QStringLiteral("Ом Plotter")), 2);
    chooseLetters(asRead);
    QCOMPARE(titles().count(QString::fromLatin1(ohm) + QStringLiteral(" Plotter")), 2);
    trigger("&Remove Plotter");
    QCOMPARE(titles().count(QString::fromLatin1(ohm) + QStringLiteral(" Plotter")), 2 - 1);
}

// Letters beyond ASCII that no file has: in Finnish.
void TestNameLetters::textsOfTheProgramStay()
{
    openFile({"S", "K1", "I", "U", "A", "T"});
    for (QAction *each : window->findChildren<QAction *>()) {
        if (each->text() == QStringLiteral("Suomi"))
            each->trigger();
    }
    settle();
    const QStringList before = shownTexts();
    QVERIFY(before.join(QLatin1Char('\n')).contains(QStringLiteral("Häiriö"), Qt::CaseInsensitive)
        || before.join(QLatin1Char('\n')).contains(QChar(0xe4)));
    for (const Letters letters : {Letters::Windows1251, Letters::Ibm866, Letters::Gbk}) {
        NameLetters::shared().choose(letters);
        settle();
        QCOMPARE(shownTexts(), before);
    }
    // And a language chosen later leaves the names in their letters.
    openFile({"S", "K1", QByteArray::fromHex("d2eeea"), "U", "A", "T"});
    NameLetters::shared().choose(Letters::Windows1251);
    for (QAction *each : window->findChildren<QAction *>()) {
        if (each->text() == QStringLiteral("English"))
            each->trigger();
    }
    settle();
    QCOMPARE(listed("listWidget").constFirst(), QStringLiteral("Ток"));
    QCOMPARE(shownUnit(), QStringLiteral("Ток|A"));
}

void TestNameLetters::listsKeepTheirPlace()
{
    ConfigurationText text;
    for (int i = 0; i < 200; ++i)
        text.addDigital(QByteArray::fromHex("d2eeea") + QByteArray::number(i));
    text.addAnalog("I,,,A,1,0,0,-9,9,1,1,P");
    window->open(writePair(folder->filePath(QStringLiteral("many")), text.text(),
        dataLines(4, 1000, [](int) { return QVector<QByteArray>(201, "1").toList(); })));
    QVERIFY(window->recording());
    auto *list = child<QListWidget>("listWidget2");
    list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum() / 2);
    list->item(7)->setSelected(false);
    const int place = list->verticalScrollBar()->value();
    QVERIFY(place > 0);
    chooseLetters(QStringLiteral("Windows-1251"));
    QCOMPARE(list->item(199)->text(), QStringLiteral("Ток199"));
    QCOMPARE(list->verticalScrollBar()->value(), place);
    QVERIFY(!list->item(7)->isSelected() && list->item(8)->isSelected());
}

QTEST_MAIN(TestNameLetters)
#include "tst_nameletters.moc"
