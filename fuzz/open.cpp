// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// The whole way of a file from its path to the screen: the window opens it on its loader thread,
// makes the plots and draws them. A third text is a row of gestures, one a byte.

#include "applicationidentity.h"
#include "fuzzing.h"
#include "mainwindow.h"
#include "plotter.h"
#include "recordsofrun.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <array>
#include <memory>

namespace {

// Closes every dialog that waits for an answer as soon as it is shown.
class DialogCloser : public QObject {
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (event->type() == QEvent::Show && dialog && dialog->isModal())
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
        return false;
    }
};

class Stage {
public:
    Stage()
    {
        ApplicationIdentity::setApplicationName(QStringLiteral("Wavorin"));
        QApplication::instance()->installEventFilter(&m_closer);
        m_window.resize(400, 300); // more to paint shows no more
        m_window.show();
    }

    void open(const QByteArrayList &texts)
    {
        const bool isPair = texts.size() > 1;
        const QString path = m_folder.filePath(
            isPair ? QStringLiteral("recording.cfg") : QStringLiteral("recording.txt"));
        write(path, texts.first());
        if (isPair)
            write(m_folder.filePath(QStringLiteral("recording.dat")), texts.at(1));
        m_window.open(path);
        QCoreApplication::processEvents(); // draws
        for (const char gesture : texts.value(2).left(mostGestures))
            perform(gesture);
        leave();
    }

private:
    static constexpr int mostGestures = 8;

    static void write(const QString &path, const QByteArray &text)
    {
        QFile file(path);
        require(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(),
            "an input that cannot be written");
    }

    // As it was before, for the next recording.
    void leave()
    {
        child<QCheckBox>("checkBox_convertToLocal")->setChecked(false);
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget != &m_window)
                widget->close();
        }
    }

    void perform(char gesture)
    {
        switch (gesture) {
        case 'm':
            turn("comboBox_primSec");
            break;
        case 'r':
            turn("comboBox_mainReference");
            break;
        case 'a':
            child<QCheckBox>("checkBox_showAngles")->click();
            break;
        case 'l':
            child<QCheckBox>("checkBox_convertToLocal")->click();
            break;
        case 'n':
            child<QListWidget>("listWidget")->selectAll();
            break;
        case 'd':
            child<QListWidget>("listWidget2")->clearSelection();
            break;
        case 'x':
            trigger("&Remove All Cursors");
            break;
        case 'v':
            trigger("&Show Vectors");
            break;
        default:
            touchPlots(gesture);
        }
        QCoreApplication::processEvents();
    }

    // By the place that the byte tells a cursor or a band, or a key.
    void touchPlots(char gesture)
    {
        constexpr std::array<Qt::Key, 6> keys{
            Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
        const auto byte = static_cast<uint8_t>(gesture);
        for (Plotter *plot : m_window.findChildren<Plotter *>()) {
            const QPointF place(plot->width() * (byte % 16 + 1) / 18.0, plot->height() / 2.0);
            if (byte < 0x40) {
                mouse(*plot, QEvent::MouseButtonDblClick, place);
            } else if (byte < 0x80) {
                QKeyEvent press(QEvent::KeyPress, keys.at(byte % keys.size()), Qt::NoModifier);
                QCoreApplication::sendEvent(plot, &press);
                QKeyEvent release(QEvent::KeyRelease, press.key(), Qt::NoModifier);
                QCoreApplication::sendEvent(plot, &release);
            } else {
                const QPointF corner = place + QPointF(byte - 0x80, 30);
                mouse(*plot, QEvent::MouseButtonPress, place);
                mouse(*plot, QEvent::MouseMove, corner);
                mouse(*plot, QEvent::MouseButtonRelease, corner);
            }
        }
    }

    static void mouse(QWidget &widget, QEvent::Type type, const QPointF &place)
    {
        QMouseEvent event(type, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }

    void turn(const char *name)
    {
        auto *combo = child<QComboBox>(name);
        if (combo->count() > 0)
            combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
    }

    void trigger(const char *text)
    {
        for (QAction *action : m_window.findChildren<QAction *>()) {
            if (action->text() == QLatin1String(text))
                action->trigger();
        }
    }

    template <class T> T *child(const char *name) const
    {
        auto *found = m_window.findChild<T *>(QLatin1String(name));
        require(found, name);
        return found;
    }

    QTemporaryDir m_folder;
    DialogCloser m_closer;
    MainWindow m_window;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(
        *argc, *argv); // stays, as the stage does: at the exit neither goes before the other
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    // The plots of one recording stay until the next one is opened, and with them its records.
    static std::unique_ptr<RecordsOfRun> former;
    static Stage &stage = *new Stage;
    auto records = std::make_unique<RecordsOfRun>();
    stage.open(inputOf(bytes, size).split('\x1c'));
    former = std::move(records);
    return 0;
}
