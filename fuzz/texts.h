// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cfgproperties.h"
#include "configurationreader.h"
#include "datareader.h"
#include "textreader.h"

#include <QBuffer>
#include <QByteArrayList>

// An input that holds several texts: a configuration, or a text export where it stands alone; the
// data; what else a target wants to be told. A file separator (0x1c) stands between them.
inline QByteArrayList textsOf(const QByteArray &input)
{
    return input.split('\x1c');
}

template <typename Reader>
void readText(QByteArray text, CFGProperties &recording, const Reader &reader)
{
    QBuffer device(&text);
    device.open(QIODevice::ReadOnly);
    reader(device, recording);
}

// Loads texts as CFGProperties::init() does, but for the phasors and without files. False where
// there is no sample.
inline bool load(const QByteArrayList &texts, CFGProperties &recording)
{
    if (texts.size() == 1) {
        readText(texts.first(), recording, readTextExport);
    } else {
        readText(texts.first(), recording, readConfiguration);
        readText(texts.at(1), recording, readData);
    }
    return recording.sampleCount > 0;
}
