// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Linked into the program of a brand, it tells on the standard output what the program shows, and
// closes it.

#include "mainwindow.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplashScreen>
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

// The entries of the Language menu, each with the title of the first menu that it leads to.
void tellLanguages(const MainWindow &window)
{
    for (const QMenu *menu : window.findChildren<QMenu *>()) {
        if (menu->title() != QLatin1String("Language"))
            continue;
        const QList<QAction *> entries = menu->actions();
        for (QAction *entry : entries) {
            if (!entry->isVisible())
                continue;
            const QString mark = entry->isChecked() ? QStringLiteral("*") : QString();
            entry->trigger();
            QCoreApplication::processEvents();
            const QString title = window.menuBar()->actions().first()->text();
            tell("language",
                QStringList{entry->text(), entry->data().toString() + mark, title}.join(
                    QLatin1Char(' ')));
        }
        entries.first()->trigger();
        return;
    }
}

void tellSplash()
{
    const QImage image(QStringLiteral(":/images/waveform.png"));
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        const auto *splash = qobject_cast<const QSplashScreen *>(widget);
        if (splash && splash->isVisible())
            tell("splash",
                splash->pixmap().toImage().convertToFormat(image.format()) == image
                    ? QStringLiteral("the maker's")
                    : QStringLiteral("another"));
    }
}

void tellIcon(const MainWindow &window)
{
    QStringList widths;
    for (const QSize &size : window.windowIcon().availableSizes())
        widths.append(QString::number(size.width()));
    tell("icon", widths.join(QLatin1Char(' ')));
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
    QObject::connect(timer, &QTimer::timeout, timer, [timer, splashSeen = false]() mutable {
        MainWindow *window = shownWindow();
        // Start-up processes events, too; with a recording it may be over before that.
        const bool starting = QThread::currentThread()->loopLevel() == 0;
        if (starting && !splashSeen && QCoreApplication::arguments().size() == 1) {
            splashSeen = true;
            tellSplash();
        }
        // The program ends only from its own loop.
        if (!window || starting)
            return;
        timer->stop();
        tell("title", window->windowTitle());
        tellIcon(*window);
        tell("letters", QFont::substitutes(QApplication::font().family()).value(1));
        tell("recordings", window->recordingsFolder());
        tellAbout(*window);
        tellLanguages(*window);
        window->close();
    });
    timer->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(probe)
