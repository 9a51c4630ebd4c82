// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QtPlugin>

class CFGProperties;

// What a dialog needs of the main window, which implements it; a dialog finds it with qobject_cast,
// which gives null for any other object.
class DialogHost {
public:
    virtual ~DialogHost() = default;

    // The recording on screen, null while none is loaded.
    virtual CFGProperties *recording() const = 0;

    // Redraws every plot, after the channels' factors have changed.
    virtual void refreshPlots() = 0;

    // Writes the samples from start to end (ms of recording time, both inclusive) as a new pair.
    virtual void saveRecording(const QString &path, double start, double end) = 0;

    // The folder in which a file dialog starts; may be empty.
    virtual QString recordingsFolder() const = 0;
};

Q_DECLARE_INTERFACE(DialogHost, "wavorin.DialogHost/1.0")
