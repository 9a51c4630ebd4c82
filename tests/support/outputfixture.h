// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "smallrecording.h"
#include "windowfixture.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QStatusBar>

// For tests of what leaves the window: a window with a recording on screen, and the file dialogs.
class OutputFixture : public WindowFixture {
protected:
    void openWithRecording()
    {
        startAsMaker();
        openWindow(1000, 700);
        window->open(writeSmallRecording(folder->path(), QStringLiteral("rec")));
        QVERIFY(window->recording());
        QCoreApplication::processEvents();
        window->statusBar()->clearMessage();
    }

    static QString fileText(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    }

    // Answers the next file dialog with the name, or cancels it where the name is empty.
    void answerFileDialog(const QString &name, QString *title = nullptr,
        QStringList *filters = nullptr, QString *proposal = nullptr)
    {
        QTimer::singleShot(100, this, [=] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            if (title)
                *title = dialog->windowTitle();
            if (filters)
                *filters = dialog->nameFilters();
            if (proposal)
                *proposal = dialog->directory().filePath(edit->text());
            if (name.isEmpty()) {
                dialog->reject();
            } else {
                edit->setText(name);
                QTest::keyClick(edit, Qt::Key_Return);
            }
        });
    }
};
