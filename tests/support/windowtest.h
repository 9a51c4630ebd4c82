// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "applicationidentity.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QtTest>

#include <utility>

// The identity of the maker's build, as start-up sets it, and no settings left from another test.
inline void startAsMaker()
{
    ApplicationIdentity::setBrand(0);
    ApplicationIdentity::setOrganisationName(QStringLiteral("Norvale"));
    ApplicationIdentity::setApplicationName(QStringLiteral("Wavorin"));
    QCoreApplication::setOrganizationName(QStringLiteral("Norvale"));
    QCoreApplication::setApplicationName(QStringLiteral("Wavorin"));
    for (const char *application : {"Wavorin", "Setterra", "Tolvik", ""})
        QSettings(QStringLiteral("Norvale"), QLatin1String(application)).clear();
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation))
        .removeRecursively();
}

// Closes every message box as a person would, by its first button, and keeps what it said.
class BoxReader : public QObject {
public:
    struct Box {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        QString details;
        QMessageBox::StandardButtons buttons;
        bool modal;
        Qt::TextFormat format;
    };

    BoxReader()
    {
        connect(&m_timer, &QTimer::timeout, this, &BoxReader::answer);
        m_timer.start(10);
    }

    QList<Box> take() { return std::exchange(m_boxes, {}); }
    int count() const { return m_boxes.size(); }

private:
    void answer()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *box = qobject_cast<QMessageBox *>(widget);
            if (!box || !box->isVisible())
                continue;
            m_boxes.append({box->icon(), box->windowTitle(), box->text(), box->informativeText(),
                box->standardButtons(), box->isModal(), box->textFormat()});
            QTest::mouseClick(box->buttons().first(), Qt::LeftButton);
            return;
        }
    }

    QTimer m_timer;
    QList<Box> m_boxes;
};

// Fails the running test on the toolkit's complaint that a form slot found no signal to connect to.
class MissingSignalAlarm {
public:
    MissingSignalAlarm() { s_previous = qInstallMessageHandler(handle); }
    ~MissingSignalAlarm() { qInstallMessageHandler(s_previous); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        s_previous(type, context, message);
        if (message.contains(QLatin1String("No matching signal")))
            QTest::qFail(qPrintable(message), __FILE__, __LINE__);
    }

    static inline QtMessageHandler s_previous = nullptr;
};
