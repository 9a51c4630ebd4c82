// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "overwritequestion.h"

#include "labeltext.h"
#include "savedialog.h"

#include <QMessageBox>
#include <QPushButton>

bool mayOverwrite(QWidget *parent, const QString &styleSheet, const QStringList &files)
{
    const QString question
        = SaveDialog::tr("File already exists. Are you sure you want to overwrite it?");
    QMessageBox box(parent);
    box.setStyleSheet(styleSheet);
    box.setWindowTitle(SaveDialog::tr("Save file"));
    box.setTextFormat(Qt::PlainText);
    box.setText(breakableText((QStringList(question) + files).join(QLatin1Char('\n'))));
    const QAbstractButton *proceed
        = box.addButton(SaveDialog::tr("Continue"), QMessageBox::AcceptRole);
    box.setDefaultButton(box.addButton(SaveDialog::tr("Cancel"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == proceed;
}
