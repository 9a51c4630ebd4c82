// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"
#include "smallrecording.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMovie>
#include <QStatusBar>
#include <QThread>

#include <memory>

// For tests of opening: a window with what it shows of a recording, and the boxes it shows.
class OpeningFixture : public WindowFixture {
protected:
    void open()
    {
        startAsMaker();
        boxes = std::make_unique<BoxReader>();
        makeWindow();
        window->statusBar()->clearMessage();
    }
    void close()
    {
        closeWindow();
        boxes.reset();
    }

    QString shown(const char *label) const { return child<QLabel>(label)->text(); }

    QString shownTimes() const
    {
        return QStringList({shown("label9"), shown("label10"), shown("label11"), shown("label12")})
            .join(QLatin1Char('|'));
    }

    QStringList listed(const char *list) const
    {
        QStringList texts;
        for (int row = 0; row < child<QListWidget>(list)->count(); ++row)
            texts.append(child<QListWidget>(list)->item(row)->text());
        return texts;
    }

    bool enabled(const char *text) const { return action(text) && action(text)->isEnabled(); }

    bool recordingActionsEnabled() const
    {
        return enabled("&Save As..") && enabled("Save As &Primary") && enabled("&Add Plotter")
            && enabled("&Remove All Cursors") && enabled("Rescale CTVT");
    }

    bool recordingActionsDisabled() const
    {
        return !enabled("&Save As..") && !enabled("Save As &Primary") && !enabled("&Add Plotter")
            && !enabled("&Remove Plotter") && !enabled("&Remove All Cursors")
            && !enabled("Rescale CTVT") && !child<QCheckBox>("checkBox_showAngles")->isEnabled()
            && !child<QComboBox>("comboBox_mainReference")->isEnabled();
    }

    bool viewIsEmpty() const
    {
        return shown("label4").isEmpty() && shown("label5").isEmpty()
            && shownTimes() == QLatin1String("|||") && listed("listWidget").isEmpty()
            && listed("listWidget2").isEmpty()
            && child<QComboBox>("comboBox_mainReference")->count() == 0
            && child<QComboBox>("comboBox_primSec")->count() == 0;
    }

    bool animationIsGone() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window->findChildren<QMovie *>().isEmpty();
    }

    QString goodRecording(const char *name = "good")
    {
        return writeSmallRecording(folder->path(), QLatin1String(name));
    }

    // Keeps the loader thread busy for a while before its next load.
    void delayLoader()
    {
        QMetaObject::invokeMethod(
            window->recording(), [] { QThread::msleep(300); }, Qt::QueuedConnection);
    }

    std::unique_ptr<BoxReader> boxes;
};
