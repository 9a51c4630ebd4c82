// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"
#include "smallrecording.h"
#include "stylerules.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyleOptionSlider>
#include <QToolBar>
#include <QWindow>

#include <functional>
#include <memory>

namespace {

const char *const windowGradient
    = "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #717074, stop: 1 #515054)";
const char *const buttonGradient
    = "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #616064, stop: 1 #414044)";

constexpr QRgb plate = 0xff29282c; // of tool buttons

// Whether a pixel has a colour, but for the rounding of a gradient.
bool isAlmost(QRgb pixel, const char *name)
{
    const QColor color = QLatin1String(name);
    return qAbs(qRed(pixel) - color.red()) <= 4 && qAbs(qGreen(pixel) - color.green()) <= 4
        && qAbs(qBlue(pixel) - color.blue()) <= 4;
}

using Maker = std::function<QWidget *()>;

} // namespace

Q_DECLARE_METATYPE(Maker)

// The look of the main window and of what belongs to it.
class TestLook : public WindowFixture {
    Q_OBJECT

    QDialog *dialog = nullptr; // an empty one of the window

    // A widget of the dialog, which is shown anew with it.
    template <class T> T *added(T *widget)
    {
        widget->setParent(dialog);
        widget->move(20, 20);
        dialog->resize(300, 200);
        dialog->show();
        widget->show();
        QCoreApplication::processEvents();
        return widget;
    }

private slots:
    void init()
    {
        startAsMaker();
        makeWindow();
        showActive();
        dialog = new QDialog(window.get());
    }

    void cleanup() { closeWindow(); }

    void rules()
    {
        const StyleRules sheet(window->styleSheet());
        const auto row = [&](const char *selector, const char *property, const char *value) {
            const QString found = sheet.value(QLatin1String(selector), QLatin1String(property));
            QVERIFY2(found == QLatin1String(value),
                (QByteArray(selector) + ' ' + property + ": " + found.toUtf8()).constData());
        };
        for (const char *selector : {"QMainWindow", "QDialog", "QMessageBox"})
            row(selector, "background", windowGradient);
        for (const char *selector : {"QPushButton", "QComboBox", "QFileDialog"})
            row(selector, "background", buttonGradient);
        row("QHeaderView::section", "background",
            "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #616161, stop: 0.5 #505050, "
            "stop: 0.6 #434343, stop: 1 #656565)");
        row("QListView", "background-color", "#313034");
        row("QListView", "border", "1px inset #00b9f2");

        for (const char *selector : {"QLineEdit", "QAbstractSpinBox", "QComboBox", "QGroupBox",
                 "QTabWidget::pane", "QMenu"})
            row(selector, "border", "1px solid #00b9f2");
        for (const char *selector : {"QPushButton:hover", "QPushButton:focus",
                 "QMenu::item:selected", "QMenuBar::item:selected"})
            row(selector, "color", "#00b9f2");
        row("QComboBox QAbstractItemView", "selection-background-color", "#00b9f2");
        row("QMenu::separator", "background-color", "#00b9f2");
        row("QToolBar", "background",
            "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #00b9f2, stop: 0.5 transparent)");

        for (const char *selector : {"QMenuBar", "QMenu", "QStatusBar", "QPushButton", "QLineEdit",
                 "QAbstractSpinBox", "QTextBrowser", "QListView", "QHeaderView::section",
                 "QGroupBox", "QGroupBox::title", "QTabBar::tab", "QProgressBar"})
            row(selector, "color", "white");
        row("QCheckBox", "color", "#79d7ff");
        row("QCheckBox", "font-size", "12px");
        row("QCheckBox", "font-weight", "bold");
        row("QCheckBox#checkBox_Meas", "color", "white");
        row("QCheckBox:disabled", "color", "#aaaaaa");
        row("QCheckBox#checkBox_Meas:disabled", "color", "#aaaaaa");
        row("QComboBox", "color", "#79d7ff");
        row("QComboBox:disabled", "color", "#aaaaaa");
        row("QComboBox:disabled", "border-color", "#8a8a8e");
        row("QComboBox", "max-width", "150px");
        row("QMenu::item:disabled", "color", "#505050");
        row("QGroupBox", "font-size", "20px");
        row("QGroupBox::title", "subcontrol-position", "top left");
        row("QStatusBar", "font-weight", "bold");
        row("QMenuBar", "font-weight", "bold");

        row("QScrollBar", "border", "1px outset #00b9f2");
        row("QScrollBar:horizontal", "height", "15px");
        row("QScrollBar:vertical", "width", "15px");
        row("QScrollBar::handle", "background",
            "qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5, stop: 0 white, "
            "stop: 1 #00b9f2)");
        row("QScrollBar::handle:horizontal", "min-width", "20px");
        row("QScrollBar::handle:vertical", "min-height", "20px");
        for (const char *selector :
            {"QScrollBar::add-line:horizontal", "QScrollBar::sub-line:horizontal"})
            row(selector, "width", "16px");
        for (const char *selector :
            {"QScrollBar::add-line:vertical", "QScrollBar::sub-line:vertical"})
            row(selector, "height", "16px");
        row("QScrollBar::up-arrow", "image", "url(:/images/uparrow.png)");
        row("QScrollBar::down-arrow", "image", "url(:/images/downarrow.png)");
        row("QScrollBar::left-arrow", "image", "url(:/images/leftarrow.png)");
        row("QScrollBar::right-arrow", "image", "url(:/images/rightarrow.png)");
        row("QComboBox::down-arrow", "image", "url(:/images/downarrow.png)");
        row("QComboBox::down-arrow:disabled", "image", "url(:/images/downarrowdisabled.png)");

        for (const char *selector :
            {"#V_listWidget QLabel", "QGroupBox QLabel", "QDialog QLabel"}) {
            row(selector, "color", "white");
            row(selector, "padding", "0px");
        }
    }

    // Drawn

    void windowsAreDrawnWithTheirGradient()
    {
        dialog->resize(200, 300);
        dialog->show();
        const QImage picture = dialog->grab().toImage();
        QVERIFY(isAlmost(picture.pixel(100, 0), "#717074"));
        QVERIFY(isAlmost(picture.pixel(100, picture.height() / 2), "#616064"));
        QVERIFY(isAlmost(picture.pixel(100, picture.height() - 1), "#515054"));
    }

    void listsAreFlatInsideTheirBorder()
    {
        const QImage picture = child<QListWidget>("listWidget2")->grab().toImage();
        QVERIFY(isAlmost(picture.pixel(50, 100), "#313034"));
        QVERIFY(isAlmost(picture.pixel(0, 100), "#00b9f2"));
    }

    void accentFadesOverTheUpperHalfOfTheToolBar()
    {
        const auto *bar = window->findChild<QToolBar *>();
        const QRect place(bar->pos(), bar->size());
        const QImage picture = window->grab(place).toImage();
        const int x = picture.width() - 1; // right of the button
        QVERIFY(isAlmost(picture.pixel(x, 0), "#00b9f2"));
        for (const int y : {picture.height() / 2 + 1, picture.height() - 1}) {
            const QRgb pixel = picture.pixel(x, y); // the window's grey
            QVERIFY2(qBlue(pixel) - qRed(pixel) <= 4, qPrintable(QString::number(pixel, 16)));
        }
    }

    void checkBoxes()
    {
        const auto *free = added(new QCheckBox(QStringLiteral("Free")));
        QCOMPARE(free->font().pixelSize(), 12);
        QVERIFY(free->font().bold());
        QCOMPARE(free->palette().color(QPalette::Active, QPalette::WindowText).name(),
            QStringLiteral("#79d7ff"));
        auto *measured = new QCheckBox(QStringLiteral("Measured"));
        measured->setObjectName(QStringLiteral("checkBox_Meas"));
        added(measured);
        QCOMPARE(measured->palette().color(QPalette::Active, QPalette::WindowText).name(),
            QStringLiteral("#ffffff"));
        QCOMPARE(measured->palette().color(QPalette::Disabled, QPalette::WindowText).name(),
            QStringLiteral("#aaaaaa"));
    }

    void comboBoxes()
    {
        auto *combo = added(new QComboBox);
        combo->addItem(QString(80, QLatin1Char('W')));
        combo->adjustSize();
        QVERIFY2(combo->width() <= 180, qPrintable(QString::number(combo->width())));
        QCOMPARE(combo->maximumWidth(), child<QComboBox>("comboBox_primSec")->maximumWidth());
        QCOMPARE(combo->palette().color(QPalette::Active, QPalette::Text).name(),
            QStringLiteral("#79d7ff"));
        QCOMPARE(combo->palette().color(QPalette::Disabled, QPalette::Text).name(),
            QStringLiteral("#aaaaaa"));
    }

    void boldBarsAndLargeTitles()
    {
        QVERIFY(window->menuBar()->font().bold());
        QVERIFY(window->statusBar()->font().bold());
        QCOMPARE(child<QGroupBox>("groupBox")->font().pixelSize(), 20);
    }

    void labelsAreWhite_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("beside the lists") << QStringLiteral("label_4");
        QTest::newRow("in the group box") << QStringLiteral("label4");
        QTest::newRow("in a dialog") << QStringLiteral("GraphNameLabel");
    }

    void labelsAreWhite()
    {
        QFETCH(QString, name);
        auto *label = window->findChild<QLabel *>(name);
        label->window()->show();
        QCOMPARE(label->palette().color(QPalette::Active, QPalette::WindowText).name(),
            QStringLiteral("#ffffff"));
        QCOMPARE(label->contentsMargins(), QMargins());
    }

    // States

    void statesAreToldApart_data()
    {
        QTest::addColumn<Maker>("make");
        const auto row = [](const char *name, const Maker &make) { QTest::newRow(name) << make; };
        row("button", [] { return new QPushButton(QStringLiteral("Button")); });
        row("check box", [] { return new QCheckBox(QStringLiteral("Check box")); });
        row("combo box", [] { return new QComboBox; });
        row("button of a tool bar", [] {
            auto *bar = new QToolBar;
            QIcon icon(QStringLiteral(":/images/save.png"));
            icon.addFile(QStringLiteral(":/images/savedisabled.png"), QSize(), QIcon::Disabled);
            bar->addAction(icon, QStringLiteral("Save"));
            return bar;
        });
    }

    void statesAreToldApart()
    {
        QFETCH(Maker, make);
        QWidget *widget = added(make());
        const auto picture = [&] {
            QCoreApplication::processEvents();
            return dialog->grab({widget->pos(), widget->size()}).toImage();
        };
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        dialog->setFocus();
        QWidget *hovered = widget;
        if (const auto *bar = qobject_cast<QToolBar *>(widget))
            hovered = bar->widgetForAction(bar->actions().first());
        const QImage normal = picture();
        // A push button goes by the pointer, others by the mark that the toolkit sets at an entry.
        if (qobject_cast<QPushButton *>(hovered)) {
            for (const QPoint &place : {QPoint(290, 190), widget->geometry().center()})
                QTest::mouseMove(dialog->windowHandle(), place);
        }
        hovered->setAttribute(Qt::WA_UnderMouse);
        const int changed = differentPixels(normal, picture(), 1.2);
        QVERIFY2(changed >= 50, qPrintable(QString::number(changed)));
        widget->setEnabled(false);
        const int greyed = differentPixels(normal, picture(), 1.2);
        QVERIFY2(greyed >= 250, qPrintable(QString::number(greyed)));
    }

    // Icons

    void iconsAreToldApart_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {16, 24, 48})
            QTest::addRow("%d pixels", size) << size;
    }

    void iconsAreToldApart()
    {
        QFETCH(int, size);
        QMap<QString, QImage> pictures; // on the dark plate of a tool button
        for (const QAction *action : window->findChildren<QAction *>()) {
            if (action->icon().isNull() || action->text() == QLatin1String("Save As &Primary"))
                continue; // which has the icon of the other saving
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
                if (mode == QIcon::Disabled && action->isEnabled())
                    continue;
                QImage picture(size, size, QImage::Format_RGB32);
                picture.fill(plate);
                const QPixmap icon = action->icon().pixmap(size, mode);
                QCOMPARE(icon.size(), picture.size());
                QPainter(&picture).drawPixmap(0, 0, icon);
                pictures.insert(
                    action->text() + QLatin1String(mode == QIcon::Normal ? "" : ", disabled"),
                    picture);
            }
        }
        QImage empty(size, size, QImage::Format_RGB32);
        empty.fill(plate);
        pictures.insert(QStringLiteral("nothing"), empty);
        QCOMPARE(pictures.size(), 18);
        for (auto a = pictures.cbegin(); a != pictures.cend(); ++a) {
            for (auto b = std::next(a); b != pictures.cend(); ++b) {
                // Plus and minus in one frame differ least.
                const int least = size * size / (b.key() == QLatin1String("nothing") ? 5 : 50);
                const int different = differentPixels(a.value(), b.value(), 1.5);
                QVERIFY2(different >= least,
                    qPrintable(QStringLiteral("%1, %2: %3").arg(a.key(), b.key()).arg(different)));
            }
        }
    }

    // Long names

    void namesTooLongForTheirPlaceEndInAnEllipsis_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("location") << QStringLiteral("label4");
        QTest::newRow("device") << QStringLiteral("label5");
    }

    void namesTooLongForTheirPlaceEndInAnEllipsis()
    {
        QFETCH(QString, path);
        const QByteArray name(200, 'W');
        QByteArray configuration = smallConfiguration(name).replace("Feeder J07", name);
        window->open(writeSmallRecording(folder->path(), QStringLiteral("long"), configuration));
        QWidget *widget = child<QWidget>(path.toLatin1().constData());
        QCoreApplication::processEvents();
        const QImage picture
            = widget->window()
                  ->grab({widget->mapTo(widget->window(), QPoint()), widget->size()})
                  .toImage();
        // Of an ellipsis there is ink at the foot of the line alone.
        const int middle = picture.height() / 2;
        int above = 0;
        int below = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = picture.width() - 12; x < picture.width(); ++x) {
                if (contrast(picture.pixel(x, y), picture.pixel(picture.width() - 1, 0)) > 2)
                    ++(y < middle ? above : below);
            }
        }
        QCOMPARE(above, 0);
        QVERIFY2(below >= 2, qPrintable(QString::number(below)));
        QCOMPARE(widget->property("text").toByteArray(), name);
    }

    // Tool bars

    void toolBarsFitTheFirstWidth_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<double>("points");
        for (const char *language : {"English", "Suomi", "中文"}) {
            for (const double points : {9.0, 10.0, 10.5, 11.0, 12.0, 13.0})
                QTest::addRow("%s, %g points", language, points)
                    << QString::fromUtf8(language) << points;
        }
    }

    void toolBarsFitTheFirstWidth()
    {
        QFETCH(QString, language);
        QFETCH(double, points);
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&] { QApplication::setFont(before); });
        QFont font = before;
        font.setPointSizeF(points);
        QApplication::setFont(font);
        window = std::make_unique<MainWindow>();
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec")));
        window->show();
        for (QAction *action : window->findChildren<QAction *>()) {
            if (action->text() == language)
                action->trigger();
        }
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTest::qWait(50);
        QCOMPARE(window->width(), 1000);
        for (const QToolBar *bar : window->findChildren<QToolBar *>()) {
            for (QAction *action : bar->actions()) {
                const QWidget *widget = bar->widgetForAction(action);
                QVERIFY(widget->isVisible());
                QVERIFY2(bar->rect().contains(widget->geometry())
                        && widget->width() >= widget->sizeHint().width(),
                    qPrintable(bar->windowTitle()));
            }
        }
        // The longest entry of the value mode and its arrow.
        const auto *mode = child<QComboBox>("comboBox_primSec");
        const int longest = mode->fontMetrics().horizontalAdvance(mode->itemText(2));
        QVERIFY2(mode->width() >= longest + 34, qPrintable(QString::number(mode->width())));
    }

    // A font beyond those, or a wider one.
    void theLabelInTheToolBarGivesWayFirst()
    {
        auto *mode = child<QComboBox>("comboBox_primSec");
        auto *label = qobject_cast<QLabel *>(mode->parentWidget()->findChild<QLabel *>());
        mode->setMinimumWidth(150);
        child<QComboBox>("comboBox_mainReference")->setMinimumWidth(150);
        QTest::qWait(50);
        QCOMPARE(window->width(), 1000);
        QVERIFY(mode->isVisible());
        QVERIFY(mode->parentWidget()->rect().contains(mode->geometry()));
        QVERIFY(label->isVisible());
        QVERIFY(label->width() < label->sizeHint().width());
        QVERIFY(label->width() >= 40);
    }

    // Tool tips

    void controlsTellWhatTheyAreFor_data()
    {
        QTest::addColumn<QString>("path"); // of object names
        QTest::addColumn<QString>("tip");
        const auto row = [](const char *path, const char *tip) {
            QTest::newRow(path) << QString::fromLatin1(path) << QString::fromLatin1(tip);
        };
        row("checkBox_showAngles", "Draw the angles of spectrum traces, too");
        row("comboBox_mainReference", "Reference channel of the FFT angles");
        row("comboBox_primSec", "Values of the primary or the secondary side, or per unit");
        row("SaveDialog toolButton_Browse", "Choose the file");
        row("AddPlotterDialog pushButton_add", "Add to the plot");
        row("AddPlotterDialog pushButton_remove", "Remove from the plot");
        row("VectorDialog toolButton", "Add a diagram");
        row("VectorDialog VectorWidget toolButton", "Remove this diagram");
    }

    void controlsTellWhatTheyAreFor()
    {
        QFETCH(QString, path);
        const QStringList names = path.split(QLatin1Char(' '));
        const QWidget *widget = window.get();
        for (const QString &name : names) {
            const bool isButton = name == QLatin1String("toolButton");
            widget = widget->findChild<QWidget *>(
                name, isButton ? Qt::FindDirectChildrenOnly : Qt::FindChildrenRecursively);
            QVERIFY2(widget, qPrintable(name));
        }
        QTEST(widget->toolTip(), "tip");
    }

    void everythingInTheToolBarsHasAToolTip()
    {
        int count = 0;
        for (const QToolBar *bar : window->findChildren<QToolBar *>()) {
            for (QAction *action : bar->actions()) {
                QVERIFY2(
                    !bar->widgetForAction(action)->toolTip().isEmpty(), qPrintable(action->text()));
                ++count;
            }
        }
        QCOMPARE(count, 16);
    }

    // Scroll bars

    void scrollBars_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void scrollBars()
    {
        QFETCH(Qt::Orientation, orientation);
        const bool flat = orientation == Qt::Horizontal;
        auto *bar = added(new QScrollBar(orientation));
        bar->setRange(0, 100000);
        bar->resize(
            flat ? QSize(200, bar->sizeHint().height()) : QSize(bar->sizeHint().width(), 150));
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.orientation = orientation;
        option.state.setFlag(QStyle::State_Horizontal, flat);
        option.maximum = bar->maximum();
        option.pageStep = bar->pageStep();
        const auto part = [&](QStyle::SubControl control) {
            const QSize size
                = bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, control, bar).size();
            return flat ? size : size.transposed();
        };
        QCOMPARE(flat ? bar->height() : bar->width(), 15);
        QCOMPARE(part(QStyle::SC_ScrollBarAddLine).width(), 16);
        QCOMPARE(part(QStyle::SC_ScrollBarSubLine).width(), 16);
        QCOMPARE(part(QStyle::SC_ScrollBarSlider).width(), 20);
    }
};

QTEST_MAIN(TestLook)
#include "tst_look.moc"
