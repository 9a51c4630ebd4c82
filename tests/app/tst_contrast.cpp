// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"
#include "smallrecording.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolTip>

#include <algorithm>
#include <functional>

namespace {

// The contrast of the text in a picture to what lies behind it. Behind it lies, in each row of
// pixels, the commonest colour; the text has the colour that stands out most. The worst row counts.
// 1 where there is no text.
double textContrast(const QImage &picture)
{
    QVector<QRgb> backgrounds;
    QRgb text = 0;
    double best = 1;
    for (int y = 0; y < picture.height(); ++y) {
        QMap<QRgb, int> counts;
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
        QRgb background = picture.pixel(0, y);
        for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
            if (it.value() > counts.value(background))
                background = it.key();
        }
        backgrounds.append(background);
        for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
            if (contrast(it.key(), background) > best) {
                best = contrast(it.key(), background);
                text = it.key();
            }
        }
    }
    for (const QRgb background : qAsConst(backgrounds)) {
        if (background != text) // but for a row of which the text fills the most
            best = std::min(best, contrast(text, background));
    }
    return best;
}

} // namespace

class TestContrast;

// Shows a text and takes its picture.
using Scene = std::function<QImage(TestContrast &)>;
Q_DECLARE_METATYPE(Scene)

// Texts stand out from what lies behind them by 4.5 to 1, but for those whose colour is fixed.
class TestContrast : public WindowFixture {
    Q_OBJECT

    QDialog *dialog = nullptr; // an empty one of the window

    // The inside of a widget in the picture of its window, without its border.
    static QImage inside(QWidget *widget, const QRect &part = QRect(), int border = 3)
    {
        QWidget *top = widget->window();
        top->show();
        QCoreApplication::processEvents();
        const QRect area = part.isValid() ? part : widget->rect();
        return top->grab(area.translated(widget->mapTo(top, QPoint())))
            .toImage()
            .copy(QRect(QPoint(), area.size()).adjusted(border, border, -border, -border));
    }

    // A widget of a dialog at the dialog's top, where its background is lightest, or at its bottom.
    template <class T> T *added(T *widget, bool atBottom = false)
    {
        widget->setParent(dialog);
        dialog->resize(400, 300);
        dialog->show();
        widget->show();
        widget->adjustSize();
        widget->move(10, atBottom ? dialog->height() - widget->height() : 0);
        return widget;
    }

private slots:
    void init()
    {
        startAsMaker();
        makeWindow();
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec")));
        showActive();
        dialog = new QDialog(window.get());
    }

    void cleanup() { closeWindow(); }

    void textsStandOut_data()
    {
        QTest::addColumn<Scene>("scene");
        const auto row = [](const char *name, const Scene &scene) { QTest::newRow(name) << scene; };

        row("menu bar", [](TestContrast &t) {
            QMenuBar *bar = t.window->menuBar();
            return inside(bar, bar->actionGeometry(bar->actions().first()));
        });
        row("selected in the menu bar", [](TestContrast &t) {
            QMenuBar *bar = t.window->menuBar();
            bar->setActiveAction(bar->actions().first());
            return inside(bar, bar->actionGeometry(bar->actions().first()), 5);
        });
        for (const bool selected : {false, true}) {
            row(selected ? "selected in a menu" : "menu", [=](TestContrast &t) {
                QMenu menu(t.window.get());
                QAction *action = menu.addAction(QStringLiteral("Entry"));
                menu.popup(QPoint(100, 100));
                if (selected)
                    menu.setActiveAction(action);
                return inside(&menu, menu.actionGeometry(action));
            });
        }
        row("status bar", [](TestContrast &t) {
            t.window->statusBar()->showMessage(QStringLiteral("Ready"));
            return inside(t.window->statusBar());
        });
        row("tool tip", [](TestContrast &t) {
            QToolTip::showText(QPoint(50, 50), QStringLiteral("Tip"), t.window.get());
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (widget->inherits("QTipLabel"))
                    return inside(widget);
            }
            return QImage();
        });
        row("caption of the device information",
            [](TestContrast &t) { return inside(t.child<QLabel>("label"), QRect(), 0); });
        row("title of the device information", [](TestContrast &t) {
            auto *box = t.child<QGroupBox>("groupBox");
            return inside(box, QRect(0, 0, box->width(), 20), 2);
        });
        row("caption of a list",
            [](TestContrast &t) { return inside(t.child<QLabel>("label_6"), QRect(), 0); });
        for (const bool selected : {false, true}) {
            row(selected ? "selected in a list" : "list", [=](TestContrast &t) {
                auto *list = t.child<QListWidget>("listWidget");
                list->item(1)->setSelected(selected);
                return inside(list->viewport(), list->visualItemRect(list->item(1)), 1);
            });
        }
        row("title of a plot",
            [](TestContrast &t) { return inside(t.child<QLabel>("Plotter Label")); });
        row("title editor", [](TestContrast &t) {
            QTest::mouseDClick(t.child<QLabel>("Plotter Label"), Qt::LeftButton);
            return inside(t.child<QWidget>("Plotter")->findChild<QLineEdit *>());
        });

        for (const char *state :
            {"button", "focused button", "disabled button", "default button"}) {
            row(state, [=](TestContrast &t) {
                auto *button = t.added(new QPushButton(QStringLiteral("Button")));
                button->setAutoDefault(false);
                button->setDefault(*state == 'd' && state[1] == 'e');
                button->setEnabled(qstrcmp(state, "disabled button") != 0);
                t.dialog->setFocus();
                if (*state == 'f') {
                    t.dialog->activateWindow();
                    button->setFocus();
                }
                return inside(button);
            });
        }
        row("pressed button", [](TestContrast &t) {
            auto *button = t.added(new QPushButton(QStringLiteral("Button")));
            button->setDown(true);
            return inside(button);
        });
        for (const bool atBottom : {false, true}) {
            row(atBottom ? "label at the bottom" : "label at the top", [=](TestContrast &t) {
                return inside(t.added(new QLabel(QStringLiteral("Label")), atBottom), QRect(), 0);
            });
        }
        row("disabled label", [](TestContrast &t) {
            auto *label = t.added(new QLabel(QStringLiteral("Label")));
            label->setEnabled(false);
            return inside(label, QRect(), 0);
        });
        for (const char *state : {"field", "disabled field", "selected in a field"}) {
            row(state, [=](TestContrast &t) {
                auto *edit = t.added(new QLineEdit(QStringLiteral("IIIIIII")));
                edit->setEnabled(*state != 'd');
                t.dialog->setFocus();
                if (*state == 's')
                    edit->selectAll();
                return inside(edit, QRect(6, 2, 30, edit->height() - 4), 3);
            });
        }
        row("hint in an empty field", [](TestContrast &t) {
            auto *edit = t.added(new QLineEdit);
            edit->setPlaceholderText(QStringLiteral("Hint"));
            edit->clearFocus();
            return inside(edit);
        });
        row("spin box", [](TestContrast &t) {
            auto *box = t.added(new QSpinBox);
            return inside(box, QRect(0, 0, 30, box->height()));
        });
        row("text", [](TestContrast &t) {
            auto *text = t.added(new QTextBrowser);
            text->setPlainText(QStringLiteral("Text"));
            return inside(text);
        });
        for (const int current : {0, 1}) {
            row(current == 0 ? "chosen tab" : "tab", [=](TestContrast &t) {
                auto *tabs = new QTabWidget;
                tabs->addTab(new QWidget, QStringLiteral("First"));
                tabs->addTab(new QWidget, QStringLiteral("Second"));
                tabs->setCurrentIndex(current);
                t.added(tabs);
                return inside(tabs->tabBar(), tabs->tabBar()->tabRect(0), 5);
            });
        }
        row("header of a table", [](TestContrast &t) {
            auto *table = new QTableWidget(1, 1);
            table->setHorizontalHeaderLabels({QStringLiteral("Name")});
            t.added(table);
            return inside(table->horizontalHeader(), QRect(0, 0, 90, 20), 2);
        });
        for (const bool selected : {false, true}) {
            row(selected ? "selected in a table" : "table", [=](TestContrast &t) {
                auto *table = new QTableWidget(1, 1);
                table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("Value")));
                t.added(table);
                if (selected)
                    table->selectAll();
                return inside(table->viewport(), table->visualItemRect(table->item(0, 0)));
            });
        }
        row("chosen in a combo box's list", [](TestContrast &t) {
            auto *combo = t.added(new QComboBox);
            combo->addItem(QStringLiteral("Entry"));
            combo->showPopup();
            return inside(combo->view()->viewport(),
                combo->view()->visualRect(combo->model()->index(0, 0)), 1);
        });
        row("progress", [](TestContrast &t) {
            auto *bar = t.added(new QProgressBar);
            bar->setValue(0);
            return inside(bar);
        });
        row("progress over the bar", [](TestContrast &t) {
            auto *bar = t.added(new QProgressBar);
            bar->setValue(100);
            return inside(bar);
        });

        row("message", [](TestContrast &t) {
            QMessageBox box(QMessageBox::Warning, QStringLiteral("Title"),
                QStringLiteral("Message"), QMessageBox::Ok, t.window.get());
            box.show();
            auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
            return inside(label, label->rect().adjusted(-10, 0, 10, 0), 0);
        });
        row("link in the About box", [](TestContrast &t) {
            QImage picture;
            QTimer::singleShot(200, t.window.get(), [&] {
                auto *label = QApplication::activeModalWidget()->findChild<QLabel *>(
                    QStringLiteral("qt_msgbox_label"));
                const QSize half = label->size() / 2; // the link ends the second line
                picture = inside(
                    label, QRect(half.width(), half.height(), half.width(), half.height()), 0);
                QApplication::activeModalWidget()->close();
            });
            t.trigger("&About Wavorin");
            return picture;
        });
        for (const char *name : {"lookInLabel", "fileNameLabel", "fileTypeLabel"}) {
            row(name, [=](TestContrast &t) {
                QFileDialog files(t.window.get());
                files.setOption(QFileDialog::DontUseNativeDialog);
                files.show();
                return inside(files.findChild<QLabel *>(QLatin1String(name)), QRect(), 0);
            });
        }
        row("button of the file dialog that is disabled", [](TestContrast &t) {
            QFileDialog files(t.window.get());
            files.setOption(QFileDialog::DontUseNativeDialog);
            files.show();
            QPushButton *button = files.findChild<QPushButton *>();
            button->setEnabled(false);
            return inside(button);
        });
        row("label of the colour dialog", [](TestContrast &t) {
            QColorDialog colors(t.window.get());
            colors.setOption(QColorDialog::DontUseNativeDialog);
            colors.show();
            return inside(colors.findChild<QLabel *>(), QRect(), 0);
        });
    }

    void textsStandOut()
    {
        QFETCH(Scene, scene);
        const QImage picture = scene(*this);
        QVERIFY(!picture.isNull());
        const double measured = textContrast(picture);
        QVERIFY2(measured >= 4.5, qPrintable(QString::number(measured)));
    }
};

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
