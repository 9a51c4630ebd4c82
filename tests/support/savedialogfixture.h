// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "fakedialoghost.h"
#include "savedialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

// Calls what is to be done with the modal window of that class, once it has opened.
template <typename T> void whenOpened(QObject *context, const std::function<void(T *)> &act)
{
    auto *timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, act] {
        auto *window = qobject_cast<T *>(QApplication::activeModalWidget());
        if (!window || !window->isVisible())
            return;
        timer->deleteLater();
        timer->stop();
        act(window);
    });
    timer->start(10);
}

// For tests of the save dialog: one in a window that stands in for the main one, a folder for its
// files, and hands.
class SaveDialogFixture : public QObject {
protected:
    inline static const QVector<double> threeTimes{0.4, 1.6, 12.75};

    void make()
    {
        folder = std::make_unique<QTemporaryDir>();
        host = std::make_unique<FakeDialogHost>();
        host->setStyleSheet(QStringLiteral("QLabel{color: #79D7FF;}"));
        host->folder = folder->path();
        dialog = new SaveDialog(host.get());
    }
    void open(const QVector<double> &times)
    {
        dialog->setSampleTimes(times);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }
    void type(const QString &path)
    {
        auto *edit = child<QLineEdit>("lineEdit_FilePath");
        edit->clear();
        for (const QChar letter : path) // keyClicks() knows Latin-1 alone
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, letter, Qt::NoModifier);
    }
    QString makeFile(const QString &name) const
    {
        QFile file(folder->filePath(name));
        return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
    }
    template <typename T> T *child(const char *name) const
    {
        return dialog->findChild<T *>(QLatin1String(name));
    }
    QString text(const char *edit) const { return child<QLineEdit>(edit)->text(); }
    void click(const char *button)
    {
        QTest::mouseClick(child<QAbstractButton>(button), Qt::LeftButton);
    }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<FakeDialogHost> host;
    SaveDialog *dialog = nullptr; // the host's
};
