// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "mainwindow.h"
#include "plotter.h"
#include "windowtest.h"

#include <QAction>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

// For tests of the whole window: one, a folder for its recordings, and hands to work with both.
class WindowFixture : public QObject {
protected:
    // A window that is not shown yet, and an empty folder.
    void makeWindow()
    {
        folder = std::make_unique<QTemporaryDir>();
        const MissingSignalAlarm alarm;
        window = std::make_unique<MainWindow>();
    }
    void openWindow(int width, int height)
    {
        makeWindow();
        window->resize(width, height);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    // With the size that it takes by itself, and with the keys.
    void showActive()
    {
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    void closeWindow()
    {
        window.reset();
        folder.reset();
    }
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    template <class T> T *child(const char *name) const
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    QAction *action(const char *text) const
    {
        for (QAction *candidate : window->findChildren<QAction *>()) {
            if (candidate->text() == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }
    void trigger(const char *text) const
    {
        QVERIFY2(action(text), text);
        action(text)->trigger();
    }
    Plotter *plotNamed(const QString &name) const
    {
        for (Plotter *candidate : window->findChildren<Plotter *>()) {
            if (candidate->name() == name)
                return candidate;
        }
        return nullptr;
    }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<MainWindow> window;
};
