// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shownchannel.h"
#include "valuepart.h"

#include <QMap>
#include <QString>

class AnalogChannel;
class CFGProperties;
class PlotHost;

// What marks the names of spectra where channels are chosen.
inline const QString spectrumSuffix = QStringLiteral("_FFT");

// The analog channels of a host's recording under the host's value mode; there are none without a
// host or a recording. Numbers from the count of channels on stand for the spectrum of channel
// (number - count).
class AnalogSource {
public:
    explicit AnalogSource(const PlotHost *host);

    double sampleRate() const; // 0 where there is no recording
    // The number of the first spectrum; beyond all numbers where there is no recording.
    int firstSpectrum() const;
    bool isSpectrum(int number) const { return number >= firstSpectrum(); }
    // Of a number that has this channel's name; that of a spectrum says so.
    QString nameOf(int number, const QString &channelName) const;
    // Null where there is no such channel.
    const AnalogChannel *channel(int number) const;
    // What the samples are multiplied by; 1 where there is no such channel.
    double factor(int number) const;
    ShownChannel shown(int number) const;

    // Gives the spectra the angles that the host asks for. The extremes are those of all that is
    // drawn of the channels.
    ValueExtremes prepare(QMap<int, ShownChannel> &channels) const;

private:
    const PlotHost *m_host;
    const CFGProperties *m_recording;
    int m_valueMode;
};
