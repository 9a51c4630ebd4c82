// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "noisyplot.h"

#include <random>

NoisyPlots::NoisyPlots(int plots, int samples, const QSize &size, double stepBack)
{
    QVector<double> times(samples);
    for (int i = 0; i < samples; ++i)
        times[i] = 1000.0 * i / samples - (i < samples / 2 ? 0 : stepBack);
    m_host.setTimes(times);
    m_host.source->durationMs = 1000;
    m_host.source->sampleRate = samples;
    std::minstd_rand random;
    for (int k = 0; k < channels; ++k) {
        QVector<float> values(samples);
        for (float &value : values)
            value = static_cast<float>(random() % 20001) / 100 - 100;
        m_host.addAnalog(QStringLiteral("I%1").arg(k), values);
    }
    m_area.resize(size.width(), size.height() * plots);
    for (int i = 0; i < plots; ++i) {
        auto *plot = new Plotter(&m_area);
        plot->setMainWindow(&m_host);
        plot->setName(QStringLiteral("Graph %1").arg(i));
        plot->setGeometry({{0, i * size.height()}, size});
        for (int k = 0; k < channels; ++k)
            plot->addChannel(k);
        plot->setupPlot();
        m_plots.append(plot);
    }
    for (Plotter *plot : qAsConst(m_plots)) {
        QList<Plotter *> others = m_plots;
        others.removeOne(plot);
        plot->setLinkedPlotters(others);
    }
    m_area.show();
}

void NoisyPlots::redraw() const
{
    m_host.source->triggerOffsetMs ^= 1;
    first().refreshPixmap();
}
