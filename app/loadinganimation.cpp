// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "loadinganimation.h"

#include <QLabel>
#include <QMovie>
#include <QPainter>

namespace {

constexpr int animationSize = 100;

// Draws the frames of its movie as large as itself, however many pixels of the screen that are.
class MovieLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter(this).drawPixmap(rect(), movie()->currentPixmap());
    }
};

} // namespace

QLabel *newLoadingAnimation(QWidget *window)
{
    auto *label = new MovieLabel(window);
    label->setAttribute(Qt::WA_DeleteOnClose);
    auto *movie = new QMovie(QStringLiteral(":/images/loading.gif"), QByteArray(), label);
    movie->setScaledSize(QSize(animationSize, animationSize) * label->devicePixelRatioF());
    label->setFixedSize(animationSize, animationSize);
    label->move(window->width() / 2 - animationSize / 2, window->height() / 2 - animationSize / 2);
    label->setMovie(movie);
    movie->start();
    label->show();
    return label;
}
