#include "startup.h"

#include "commandline.h"
#include "mainwindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

void preferApplicationFolder()
{
    qputenv("PATH",
        QFile::encodeName(QCoreApplication::applicationDirPath() + QDir::listSeparator())
            + qgetenv("PATH"));
}

void openOrWait(MainWindow &window, const QString &path)
{
    constexpr qint64 splashDuration = 2000; // ms
    if (opensAtStart(path)) {
        window.open(path);
        return;
    }
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < splashDuration)
        QCoreApplication::processEvents();
}
