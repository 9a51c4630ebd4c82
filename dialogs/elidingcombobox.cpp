// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "elidingcombobox.h"

#include "channelnames.h"
#include "labeltext.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace {

// Makes nothing of a text before it is asked for: there may be a hundred thousand.
class Texts : public QStringListModel {
public:
    explicit Texts(QObject *parent) : QStringListModel(parent)
    {
        connect(&NameLetters::shared(), &NameLetters::changed, this, [this] {
            if (m_areNames && rowCount() > 0)
                emit dataChanged(index(0), index(rowCount() - 1), {Qt::DisplayRole});
        });
    }

    void set(const QStringList &texts, bool areNames)
    {
        m_areNames = areNames;
        setStringList(texts);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::UserRole)
            return QStringListModel::data(index, Qt::DisplayRole);
        if (role != Qt::DisplayRole)
            return QStringListModel::data(index, role);
        const QString text = QStringListModel::data(index, role).toString();
        return m_areNames ? shownName(text) : cutText(text);
    }

private:
    bool m_areNames = false;
};

} // namespace

ElidingComboBox::ElidingComboBox(QWidget *parent) : QComboBox(parent)
{
    setModel(new Texts(this));
}

void ElidingComboBox::setTexts(const QStringList &texts, int current)
{
    set(texts, current, false);
}

void ElidingComboBox::setNames(const QStringList &names, int current)
{
    set(names, current, true);
}

void ElidingComboBox::set(const QStringList &texts, int current, bool areNames)
{
    const QSignalBlocker blocker(this);
    static_cast<Texts *>(model())->set(texts, areNames);
    setCurrentIndex(current);
}

// The toolkit computes both alike, but keeps this one when the font changes.
QSize ElidingComboBox::minimumSizeHint() const
{
    return sizeHint();
}

void ElidingComboBox::showPopup()
{
    const int needed = view()->sizeHintForColumn(0) + 30; // a scroll bar, too
    view()->setMinimumWidth(std::min(needed, screen()->availableSize().width() * 4 / 5));
    view()->setTextElideMode(Qt::ElideMiddle);
    QComboBox::showPopup();
}

bool ElidingComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || elidedText() == currentText())
        return QComboBox::event(event);
    QStringList tip{toolTip(), currentText()};
    tip.removeAll(QString());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
        plainToolTip(tip.join(QLatin1Char('\n'))), this);
    return true;
}

void ElidingComboBox::paintEvent(QPaintEvent *event)
{
    if (elidedText() == currentText())
        return QComboBox::paintEvent(event);
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = elidedText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QString ElidingComboBox::elidedText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    constexpr int frame = 2; // that styles keep free within the field, together
    return fontMetrics().elidedText(currentText(), Qt::ElideMiddle, field.width() - frame);
}
