// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "applicationidentity.h"
#include "commandline.h"
#include "mainwindow.h"
#include "startup.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QSplashScreen>

int main(int argc, char *argv[])
{
    if (isQuestion(argc, argv))
        answerQuestion(argc, argv);
    giveFreedPicturesBack();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QIcon icon;
    QPixmap splashPixmap;

    ApplicationIdentity::setBrand(WAVORIN_BRAND);
    ApplicationIdentity::setOrganisationName(QStringLiteral("Norvale"));
    ApplicationIdentity::setApplicationName(QStringLiteral("Wavorin"));
    // Unlike an icon, a pixmap does not find its sharper version by itself.
    splashPixmap.load(application.devicePixelRatio() > 1
            ? QStringLiteral(":/images/waveform@2x.png")
            : QStringLiteral(":/images/waveform.png"));
    icon = QIcon(QStringLiteral(":/images/logo.png"));
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/images/logo_%1.png").arg(size));
    QCoreApplication::setOrganizationName(ApplicationIdentity::organisationName());
    QCoreApplication::setApplicationName(ApplicationIdentity::applicationName());
    preferApplicationFolder();
    useTheSystemsFont();
    preferSimplifiedCharacters();

    auto *splash = new QSplashScreen(QPixmap(), Qt::WindowFlags());
    splash->setPixmap(splashPixmap);
    splash->show();

    MainWindow window;
    openOrWait(window, pathArgument(argc, argv));
    window.setWindowTitle(ApplicationIdentity::applicationName());
    window.setWindowIcon(icon);
    window.show();
    splash->finish(&window);
    delete splash;
    return QApplication::exec();
}
