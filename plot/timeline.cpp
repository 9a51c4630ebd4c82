// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "timeline.h"

#include "baselayer.h"
#include "labeltext.h"
#include "numbers.h"
#include "plotgeometry.h"
#include "plotline.h"
#include "plotstyle.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int labelGap = 15; // between the line and its label
constexpr int labelTop = 45;
constexpr int smallestFont = 7; // pixels

// Covers what it stands over within the plot's border with the background of the plot, which a
// light picture of the plots has none of.
class TimeLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        const bool isOnScreen = parentWidget()->styleSheet() == screenStyle;
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        const QRect plot = parentWidget()->rect().translated(-pos());
        painter.fillRect(
            rect() & plot.adjusted(borderWidth, borderWidth, -borderWidth, -borderWidth),
            isOnScreen ? QColor(0x313034) : QColor(Qt::transparent));
        painter.end();
        QLabel::paintEvent(event);
    }
};

} // namespace

TimeLine::TimeLine(QWidget *plot)
    : m_plot(plot),
      m_label(new TimeLabel(plot)),
      m_line(new PlotLine(plot, QStringLiteral("timeline"), QStringLiteral("white")))
{
    m_label->setObjectName(QStringLiteral("timelabel"));
    m_label->setStyleSheet(QStringLiteral("QLabel{color: white;}"));
    m_label->setFont(smallFont(plot->font()));
    m_label->resize(70, 20);
    m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_label->hide();
    m_label->lower();
    m_line->lower();
}

void TimeLine::show(int x, const PlotGeometry &geometry)
{
    m_time = geometry.lineTime(x);
    const QString text = QStringLiteral("t = ") + generalText(m_time);
    m_label->setFont(fittingFont(smallFont(m_plot->font()), text, m_label->width(), smallestFont));
    m_label->setText(text);
    const int farthest = m_plot->width() - m_label->width(); // where the label is still whole
    const int right = x + labelGap;
    const int left = x - labelGap - m_label->width() + 1;
    // A drag may have led the pointer out of the plot.
    const int place = right <= farthest ? right : std::min(left, farthest - borderWidth);
    moveOver(*m_plot, *m_label, {std::max(borderWidth, place), labelTop});
    m_label->show();
    m_label->lower();
    m_line->place(x, geometry);
    m_line->show();
}

void TimeLine::leave()
{
    const bool isInPlot = m_line->x() >= 0 && m_line->x() < m_plot->width();
    if (isInPlot || !m_line->isVisible())
        return;
    m_line->hide();
    m_label->hide();
}

void TimeLine::refresh(const PlotGeometry &geometry)
{
    leave();
    if (m_line->isVisible())
        show(m_line->x(), geometry);
}
