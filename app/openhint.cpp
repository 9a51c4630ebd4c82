// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "openhint.h"

#include "labeltext.h"
#include "recentrecordings.h"

#include <QDir>
#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int gap = 20; // pixels around the text, and between it and the list

// White stands out everywhere in the area, whose upper edge is light.
const QLatin1String listStyle("QLabel{color: white;}"
                              "QPushButton{background: transparent; border: 1px solid transparent;"
                              " color: white; padding: 1px 6px; text-decoration: underline;}"
                              "QPushButton:hover{border-color: #00b9f2;}"
                              "QPushButton:focus{border-color: white;}"
                              "QPushButton:disabled{color: #c8c8c8; text-decoration: none;}");

} // namespace

OpenHint::OpenHint(QWidget *area)
    : QLabel(area),
      m_list(new QWidget(area)),
      m_title(new QLabel(m_list)),
      m_layout(new QVBoxLayout(m_list))
{
    setObjectName(QStringLiteral("openHint"));
    setStyleSheet(QStringLiteral("QLabel{color: white;}"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(gap);
    setTextFormat(Qt::PlainText);
    m_list->setObjectName(QStringLiteral("recentList"));
    m_list->setStyleSheet(listStyle);
    m_layout->setContentsMargins({});
    m_layout->setSpacing(0);
    m_layout->addWidget(m_title, 0, Qt::AlignHCenter);
    retranslate();
    area->installEventFilter(this);
}

void OpenHint::retranslate()
{
    setText(
        tr("Open a recording: File > Open... (Ctrl+O), or drop a .cfg, .zip or .txt file here."));
    m_title->setText(tr("Recent recordings:"));
}

void OpenHint::setRecordings(const QStringList &paths)
{
    m_paths = paths;
    for (QPushButton *button : qAsConst(m_buttons))
        delete button;
    m_buttons.clear();
    for (const QString &path : paths) {
        auto *button = new QPushButton(m_list);
        const QString native = QDir::toNativeSeparators(path);
        button->setToolTip(plainToolTip(native));
        button->setAccessibleName(native);
        button->setEnabled(isStillThere(path));
        button->setAutoDefault(true); // the Enter key chooses it, too
        connect(button, &QPushButton::clicked, this, [this, path] { emit chosen(path); });
        m_layout->addWidget(button, 0, Qt::AlignHCenter);
        m_buttons.append(button);
    }
    arrange();
}

// Text and list stand in the middle of the area, one below the other.
void OpenHint::arrange()
{
    const QSize area = parentWidget()->size();
    resize(area);
    m_list->ensurePolished();
    const int textHeight = heightForWidth(area.width()) - contentsMargins().bottom();
    const int width = area.width() - 2 * gap;
    int height = m_title->sizeHint().height();
    bool fits = true;
    for (int i = 0; i < m_buttons.size(); ++i) {
        QPushButton *button = m_buttons.at(i);
        button->ensurePolished();
        const QString path = QDir::toNativeSeparators(m_paths.at(i)).simplified();
        const QFontMetrics metrics = button->fontMetrics();
        QString text = metrics.elidedText(path, Qt::ElideMiddle, width - 2 * gap);
        button->setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        fits = fits && textHeight + height + button->sizeHint().height() <= area.height();
        button->setVisible(fits);
        if (fits)
            height += button->sizeHint().height();
    }
    const bool offers = !m_buttons.isEmpty() && !m_buttons.constFirst()->isHidden();
    m_list->setVisible(offers && isVisible());
    setContentsMargins(0, 0, 0, offers ? height : 0);
    const int textEnd = (area.height() - height + textHeight) / 2;
    m_list->setGeometry(gap, textEnd, width, height);
    m_layout->activate();
}

bool OpenHint::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        arrange();
    return QLabel::eventFilter(watched, event);
}

void OpenHint::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        arrange();
    }
    QLabel::changeEvent(event);
}

void OpenHint::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    arrange();
}

void OpenHint::hideEvent(QHideEvent *event)
{
    m_list->hide();
    QLabel::hideEvent(event);
}
