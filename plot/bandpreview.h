// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRegion>
#include <QWidget>

class PlotGeometry;
struct PlotSettings;

// Says over a plot which range the release of a band will give: a dashed frame where the range lies
// in today's picture, and a text with its ends. The mouse passes through it, and it leaves the band
// itself to be seen. Hidden at first, and whenever the plot changes its style, as it does when a
// picture of it is taken.
class BandPreview : public QWidget {
    Q_OBJECT

public:
    explicit BandPreview(QWidget *plot);

    // The range to come, with its times (ms) alone or with its values; the geometry of today; and
    // the band, in pixels of the plot.
    void show(
        const PlotSettings &range, bool hasValues, const PlotGeometry &geometry, const QRect &band);

    // What is shown, in pixels of the plot. The frame goes on outside the plot area, where it is
    // not drawn; without values it is as high as that. The text has a line for each axis; its place
    // is empty where the plot area is too narrow for it.
    const QRect &frame() const { return m_frame; }
    const QString &text() const { return m_text; }
    const QRect &textPlace() const { return m_textPlace; }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRegion drawn() const;
    void placeText(const QRect &room);

    QRect m_frame;
    QString m_text;
    QRect m_textPlace;
    QRegion m_bandFrame;
};
