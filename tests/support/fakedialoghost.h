// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "dialoghost.h"

#include <QList>
#include <QWidget>

// Stands for the main window: shows a recording that the test sets, and keeps what the dialogs ask.
class FakeDialogHost : public QWidget, public DialogHost {
    Q_OBJECT
    Q_INTERFACES(DialogHost)

public:
    struct Saving {
        QString path;
        double start;
        double end;
    };

    CFGProperties *recording() const override { return shown; }
    void refreshPlots() override { ++refreshes; }
    void saveRecording(const QString &path, double start, double end) override
    {
        savings.append({path, start, end});
    }
    QString recordingsFolder() const override { return folder; }

    CFGProperties *shown = nullptr;
    int refreshes = 0;
    QList<Saving> savings;
    QString folder;
};
