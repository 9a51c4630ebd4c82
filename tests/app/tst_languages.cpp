// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plotmenus.h"
#include "plotter.h"
#include "smallrecording.h"
#include "translationfile.h"
#include "untranslatedtexts.h"
#include "vectorwidget.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QToolBar>
#include <QToolButton>

#include <array>
#include <functional>

namespace {

struct Language {
    const char *name; // of the test row
    const char *entry; // of the menu
    const char *code; // of the .ts file
};

// Those that stay beside the window.
constexpr std::array<const char *, 6> dialogs{"SaveDialog", "VectorDialog", "CTVTDialog",
    "EventsDialog", "MeasurementsDialog", "NotesDialog"};

constexpr Language finnish{"Finnish", "Suomi", "fi"};
constexpr Language chinese{"Chinese", "中文", "zh"};

// Everything that a widget or an action shows as text, by the owner and the name of the property.
using Shown = QMap<QPair<const QObject *, QString>, QString>;

void keep(Shown &shown, const QObject *owner, const char *property)
{
    const QString text = owner->property(property).toString();
    if (!text.isEmpty())
        shown.insert({owner, QLatin1String(property)}, text);
}

QString mnemonicOf(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("&(\\w)"));
    return pattern.match(text).captured(1).toUpper();
}

QString clashesOf(const QStringList &texts)
{
    QStringList seen;
    QStringList clashes;
    for (const QString &text : texts) {
        const QString mnemonic = mnemonicOf(text);
        if (!mnemonic.isEmpty() && seen.contains(mnemonic))
            clashes.append(mnemonic);
        seen.append(mnemonic);
    }
    return clashes.join(QLatin1Char(' '));
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

QString nameOf(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
        + widget->objectName();
}

// Labels and buttons that stand side by side in a dialog.
QStringList textsIn(const QWidget &dialog)
{
    QStringList texts;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->buddy())
            texts.append(label->text());
    }
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        texts.append(button->text());
    return texts;
}

} // namespace

class TestLanguages : public WindowFixture {
    Q_OBJECT

    UntranslatedTexts untranslated;

    // By the text it had in English.
    QAction *action(const char *text) const
    {
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->property("sourceText").toString() == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }

    void choose(const char *entry)
    {
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->text() == QString::fromUtf8(entry))
                candidate->trigger();
        }
        QCoreApplication::processEvents();
    }

    // Whatever modal windows and menus a call opens are shown to the test, one after the other, and
    // closed.
    void visit(const std::function<void()> &call, const std::function<void(QWidget &)> &look)
    {
        QTimer timer;
        bool seen = false;
        connect(&timer, &QTimer::timeout, this, [&] {
            QWidget *opened = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                                : QApplication::activeModalWidget();
            if (!opened || !opened->isVisible())
                return;
            seen = true;
            look(*opened);
            opened->close();
        });
        timer.start(10);
        call();
        QTRY_VERIFY(seen);
        QTRY_VERIFY(!QApplication::activePopupWidget() && !QApplication::activeModalWidget());
    }

    void visitContextMenu(QWidget *widget, const std::function<void(QWidget &)> &look)
    {
        QVERIFY(widget);
        const QPoint centre = widget->rect().center();
        visit(
            [=] {
                QContextMenuEvent event(
                    QContextMenuEvent::Mouse, centre, widget->mapToGlobal(centre));
                QCoreApplication::sendEvent(widget, &event);
            },
            look);
    }

    // Shows all that the window can open, but for what fails: the modal windows one by one.
    void visitEverything(const std::function<void(QWidget &)> &look)
    {
        for (const char *name :
            {"&Open...", "&Save screenshot", "Save As &Primary", "&Add Plotter", "&About Wavorin"})
            visit([&] { action(name)->trigger(); }, look);
        visit([&] { window->open(path("missing.cfg")); }, look);
        visit([&] { QColorDialog::getColor(Qt::white, window.get()); },
            [&](QWidget &dialog) {
                look(dialog);
                if (auto *spinBox = dialog.findChild<QSpinBox *>()) {
                    QTimer::singleShot(0, this, [] { QApplication::activePopupWidget()->close(); });
                    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
                    QCoreApplication::sendEvent(spinBox, &event);
                }
            });
        visitContextMenu(child<QLineEdit>("lineEdit_FilePath"), look);
        visitContextMenu(window->findChild<QToolBar *>(), look);
        visitContextMenu(child<QScrollBar>("qt_scrollarea_vcontainer")
                ? child<QScrollBar>("qt_scrollarea_vcontainer")
                : window->findChildren<QScrollBar *>().last(),
            look);
    }

    void showDialogs()
    {
        for (const char *name : {"&Save As..", "&Show Vectors", "Rescale CTVT"})
            action(name)->trigger();
        QCoreApplication::processEvents();
    }

    // In English, which is spoken from the start.
    void showSideWindows()
    {
        for (const char *entry : {"Events...", "Measurements...", "Notes..."})
            QVERIFY(::choose(window->findChild<Plotter *>(), QLatin1String(entry)));
    }

    Shown shownTexts() const
    {
        Shown shown;
        for (const QAction *each : window->findChildren<QAction *>()) {
            keep(shown, each, "text");
            keep(shown, each, "statusTip");
            if (!each->menu()) // those of menus are never shown
                keep(shown, each, "toolTip");
        }
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (widget->parent()->inherits("QToolBar") && widget->inherits("QToolButton"))
                continue; // shows its action
            for (const char *property : {"text", "title", "windowTitle", "toolTip"})
                keep(shown, widget, property);
            if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
                for (int i = 0; i < combo->count(); ++i)
                    shown.insert({combo, QStringLiteral("item%1").arg(i)}, combo->itemText(i));
            }
        }
        return shown;
    }

    QMap<const QWidget *, QRect> places() const
    {
        QMap<const QWidget *, QRect> found{{window.get(), window->geometry()}};
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (widget->isVisible())
                found.insert(widget, widget->geometry());
        }
        return found;
    }

    // Widgets of the window's own layouts and dialogs that lie over a neighbour or leave their
    // parent.
    QStringList overlaps() const
    {
        QStringList found;
        const QList<QWidget *> widgets = window->findChildren<QWidget *>();
        for (const QWidget *one : widgets) {
            const QWidget *parent = one->parentWidget();
            if (!one->isVisible() || one->isWindow() || !parent->layout()
                || parent->layout()->indexOf(const_cast<QWidget *>(one)) < 0)
                continue;
            // The labels above the lists are wider than their column, by its minimum widths.
            if (!parent->rect().contains(one->geometry())
                && parent->objectName() != QLatin1String("V_listWidget"))
                found.append(nameOf(one) + QStringLiteral(" leaves ") + nameOf(parent));
            for (const QWidget *other : widgets) {
                if (other > one && other->parentWidget() == parent && other->isVisible()
                    && !other->isWindow() && one->geometry().intersects(other->geometry()))
                    found.append(nameOf(one) + QStringLiteral(" lies over ") + nameOf(other));
            }
        }
        return found;
    }

    // Labels, buttons and boxes of a window that are narrower than their texts need.
    static QStringList clippedTexts(const QWidget &top)
    {
        QStringList clipped;
        for (const QWidget *widget : top.findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->window() != &top)
                continue;
            const auto *label = qobject_cast<const QLabel *>(widget);
            // The button of three dots is as wide as its style sheet says.
            const auto *button = widget->inherits("QToolButton")
                ? nullptr
                : qobject_cast<const QAbstractButton *>(widget);
            const auto *combo = qobject_cast<const QComboBox *>(widget);
            if (label && !label->text().isEmpty() && !label->wordWrap()
                && !label->parent()->inherits("Plotter")
                && label->sizeHint().width() > label->width())
                clipped.append(label->text());
            if (button && !button->text().isEmpty() && !button->parent()->inherits("VectorWidget")
                && button->sizeHint().width() > button->width())
                clipped.append(button->text());
            if (!combo)
                continue;
            QStyleOptionComboBox option;
            option.initFrom(combo);
            option.subControls = QStyle::SC_All;
            const int room = combo->style()
                                 ->subControlRect(QStyle::CC_ComboBox, &option,
                                     QStyle::SC_ComboBoxEditField, combo)
                                 .width();
            if (combo->fontMetrics().horizontalAdvance(combo->currentText()) > room)
                clipped.append(combo->currentText());
        }
        return clipped;
    }

    // A reason comes in the system's language, and its own dialog names the kinds of files.
    static bool isOfWindows(const QString &text)
    {
#ifdef Q_OS_WIN
        return text == QLatin1String("File not found.") || text == QLatin1String("File Folder");
#else
        Q_UNUSED(text)
        return false;
#endif
    }

    static void languages(bool withEnglish)
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("code");
        if (withEnglish)
            QTest::newRow("English") << "English"
                                     << "en";
        for (const Language &language : {finnish, chinese})
            QTest::newRow(language.name) << QString::fromUtf8(language.entry) << language.code;
    }

private slots:
    void init()
    {
        startAsMaker();
        QCoreApplication::installTranslator(&untranslated);
        makeWindow();
        for (QAction *each : window->findChildren<QAction *>())
            each->setProperty("sourceText", each->text());
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec"),
            smallConfiguration().replace("1999\n", "2013\n"))); // of which there is a note
        window->addPlotter({QStringLiteral("IL1")});
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void cleanup()
    {
        closeWindow();
        QCoreApplication::removeTranslator(&untranslated);
    }

    void everyTextThatIsAskedForIsTranslated_data()
    {
        languages(false);
    }
    void everyTextThatIsAskedForIsTranslated()
    {
        QFETCH(QString, entry);
        choose(entry.toUtf8().constData());
        untranslated.clear();
        window->statusBar()->clearMessage();
        showDialogs();
        visitEverything([](QWidget &opened) { opened.grab(); });
        QStringList missing;
        for (const UntranslatedTexts::Text &text : untranslated.texts()) {
            // Names of keys and of shortcuts are no texts.
            if (text.first != QLatin1String("QShortcut")
                && !text.second.startsWith(QLatin1String("Alt+")) && !isOfWindows(text.second))
                missing.append(text.first + QLatin1String(": ") + text.second);
        }
        QCOMPARE(missing.join(QLatin1String("; ")), QString());
    }

    void switchingLeavesNoTextBehind_data()
    {
        languages(false);
    }
    void switchingLeavesNoTextBehind()
    {
        QFETCH(QString, entry);
        QFETCH(QString, code);
        QMultiMap<QString, QString> translations;
        for (const TranslatedText &text : translationsInto(code))
            translations.insert(text.source, text.translation);
        showDialogs();
        child<QDialog>("AddPlotterDialog")->show();
        QTest::mouseClick(child<QDialog>("VectorDialog")
                              ->findChild<QToolButton *>(
                                  QStringLiteral("toolButton"), Qt::FindDirectChildrenOnly),
            Qt::LeftButton);
        QCOMPARE(child<QDialog>("VectorDialog")->findChildren<VectorWidget *>().size(), 2);
        const Shown before = shownTexts();
        choose(entry.toUtf8().constData());
        const Shown after = shownTexts();

        QStringList kept; // though there is a translation
        int changed = 0;
        for (auto it = before.cbegin(); it != before.cend(); ++it) {
            const QString now = after.value(it.key());
            if (!translations.contains(it.value()) || translations.contains(it.value(), now)) {
                changed += now != it.value() ? 1 : 0;
                continue;
            }
            QCOMPARE(now, it.value());
            kept.append(now);
        }
        QVERIFY2(changed > 80, qPrintable(QString::number(changed)));
        kept.sort();
        kept.removeDuplicates();
        QCOMPARE(kept.join(QLatin1Char('|')),
            QStringLiteral("Edit|File|Prim/Sec|Primary/Secondary:|Tools")); // of the tool bars
    }

    void toolTipsShowNoMnemonics()
    {
        QCOMPARE(action("&Open...")->toolTip(), QStringLiteral("Open"));
        choose(chinese.entry);
        QCOMPARE(action("&Open...")->toolTip(), QStringLiteral("打开"));
        QCOMPARE(action("&Remove All Cursors")->toolTip(), QStringLiteral("删除所有游标"));
        choose(finnish.entry);
        QCOMPARE(action("&Open...")->toolTip(), QStringLiteral("Avaa"));
    }

    void switchingNamesThePlotsAnew()
    {
        const auto titles = [this] {
            QStringList texts;
            for (const QLabel *label :
                window->findChildren<QLabel *>(QStringLiteral("Plotter Label")))
                texts.append(label->text());
            texts.sort();
            return texts.join(QLatin1Char('|'));
        };
        child<QLineEdit>("lineEdit_graphName")->setText(QStringLiteral("Bay 2"));
        window->addPlotter({QStringLiteral("IL1")});
        const QString english
            = QStringLiteral("Analog Plotter|Bay 2 Plotter|Digital Plotter|Graph 1 Plotter");
        QCOMPARE(titles(), english);
        choose(finnish.entry);
        QCOMPARE(titles(), QStringLiteral("Analogia|Bay 2|Digitaali|Kuvaaja 1"));
        choose(chinese.entry);
        QCOMPARE(titles(), QStringLiteral("Bay 2|开关量|曲线图 1|模拟量"));
        choose("English");
        QCOMPARE(titles(), english);
    }

    // Its file may be lost, that of the last choice may be there.
    void missingTranslationShowsTheSourceTexts()
    {
        const Shown before = shownTexts();
        choose(finnish.entry);
        QVERIFY(shownTexts() != before);
        QAction missing(QStringLiteral("Suomi"));
        missing.setData(QStringLiteral("drv_none"));
        window->slotLanguageChanged(&missing);
        QCoreApplication::processEvents();
        QVERIFY(shownTexts() == before);
        choose(finnish.entry);
        QVERIFY(shownTexts() != before);
    }

    void switchingKeepsValuesAndChoices()
    {
        auto *combo = child<QComboBox>("comboBox_primSec");
        combo->setCurrentIndex(2);
        choose(finnish.entry);
        QCOMPARE(combo->currentIndex(), 2);
        QCOMPARE(combo->currentText(), QStringLiteral("p.u."));
        QCOMPARE(window->valueMode(), 2);
        QCOMPARE(window->windowTitle(), QStringLiteral("Wavorin - rec.cfg"));
        const QList<QPair<const char *, const char *>> values{{"label4", "Harju 110/20 kV"},
            {"label5", "Feeder J07"}, {"label9", "15/03/2024"}, {"label10", "10:00:00.000"},
            {"label11", "15/03/2024"}, {"label12", "10:00:00.020"}};
        for (const auto &value : values)
            QCOMPARE(child<QLabel>(value.first)->text(), QLatin1String(value.second));
    }

    void switchingBackKeepsTheLayout()
    {
        window->resize(1000, 800);
        showDialogs();
        const QMap<const QWidget *, QRect> before = places();
        const QSize size = window->size();
        for (const char *entry : {finnish.entry, chinese.entry, "English"}) {
            choose(entry);
            QCoreApplication::sendPostedEvents();
            QCOMPARE(window->size(), size);
            QCOMPARE(overlaps().join(QLatin1Char('\n')), QString());
        }
        const QMap<const QWidget *, QRect> after = places();
        for (auto it = before.cbegin(); it != before.cend(); ++it) {
            if (it.key()->isWindow() && it.key() != window.get())
                continue; // a dialog that has grown for its texts stays so
            if (it.key()->window() == window.get())
                QVERIFY2(after.value(it.key()) == it.value(), it.key()->metaObject()->className());
        }
    }

    void mnemonicsDoNotClash_data()
    {
        languages(true);
    }
    void mnemonicsDoNotClash()
    {
        QFETCH(QString, entry);
        QFETCH(QString, code);
        showSideWindows();
        choose(entry.toUtf8().constData());
        QCOMPARE(clashesOf(textsOf(window->menuBar()->actions())), QString());
        QStringList clashes;
        for (const QAction *menu : window->menuBar()->actions()) {
            if (menu->menu())
                clashes.append(clashesOf(textsOf(menu->menu()->actions())));
        }
        // The English texts of the Tools menu have one letter twice.
        const QString tools = code == QLatin1String("en") ? QStringLiteral("R") : QString();
        QCOMPARE(clashes, QStringList({QString(), QString(), tools, QString()}));
        showDialogs();
        visitEverything([&](QWidget &opened) {
            const auto *menu = qobject_cast<const QMenu *>(&opened);
            const QString found = clashesOf(menu ? textsOf(menu->actions()) : textsIn(opened));
            QVERIFY2(found.isEmpty(), qPrintable(opened.windowTitle() + found));
        });
        for (const char *name : dialogs)
            QCOMPARE(clashesOf(textsIn(*child<QDialog>(name))), QString());
    }

    void textsFit_data()
    {
        languages(true);
    }
    void textsFit()
    {
        QFETCH(QString, entry);
        window->resize(1000, 700);
        showSideWindows();
        choose(entry.toUtf8().constData());
        showDialogs();
        QTest::qWait(50);
        QCOMPARE(window->width(), 1000);
        QCOMPARE(clippedTexts(*window).join(QLatin1Char('|')), QString());
        for (const QToolBar *bar : window->findChildren<QToolBar *>())
            QVERIFY2(!bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"))
                          ->isVisible(),
                qPrintable(bar->windowTitle()));
        for (const char *name : dialogs)
            QCOMPARE(clippedTexts(*child<QDialog>(name)).join(QLatin1Char('|')), QString());
        visitEverything([](QWidget &opened) {
            if (!qobject_cast<QFileDialog *>(&opened))
                QCOMPARE(clippedTexts(opened).join(QLatin1Char('|')), QString());
        });
    }
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
