// Linked into the program of a brand, it tells on the standard output what the program shows, and
// closes it.

#include "mainwindow.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QThread>
#include <QTimer>

#include <cstdio>

namespace {

void tell(const char *what, const QString &seen)
{
    std::printf("%s: %s\n", what, seen.toUtf8().constData());
}

MainWindow *shownWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<MainWindow *>(widget);
        if (window && window->isVisible())
            return window;
    }
    return nullptr;
}

void tellLanguages(const MainWindow &window)
{
    for (const QMenu *menu : window.findChildren<QMenu *>()) {
        if (menu->title() != QLatin1String("Language"))
            continue;
        for (const QAction *entry : menu->actions()) {
            const QString mark = entry->isChecked() ? QStringLiteral("*") : QString();
            if (entry->isVisible())
                tell(
                    "language", entry->text() + QLatin1Char(' ') + entry->data().toString() + mark);
        }
    }
}

void tellAbout(MainWindow &window)
{
    QTimer::singleShot(0, &window, [] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        tell("about", box->text().section(QStringLiteral("<br/>"), 1));
        box->close();
    });
    window.about();
}

void probe()
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        MainWindow *window = shownWindow();
        // Start-up processes events, too; the program ends only from its own loop.
        if (!window || QThread::currentThread()->loopLevel() == 0)
            return;
        timer->stop();
        tell("title", window->windowTitle());
        tellLanguages(*window);
        tell("recordings", window->recordingsFolder());
        tellAbout(*window);
        window->close();
    });
    timer->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(probe)
