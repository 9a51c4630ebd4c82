// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

class QLineEdit;

// The title of a plot, "<name> Plotter" until someone types another one into its editor.
class PlotTitle : public QLabel {
    Q_OBJECT

public:
    explicit PlotTitle(QWidget *plot);

    QString name() const { return m_name; }
    // Shows with the next place() or retranslate().
    void setName(const QString &name) { m_name = name; }
    // Makes the title from the name, in the language of today, unless one was typed.
    void retranslate();
    void setTitle(const QString &title);
    // Shows the title at a height of the plot.
    void place(int y);

    // Opens over the title with the present one selected, and takes the keyboard.
    void openEditor();
    // Closes without a change; the keys go to the plot again.
    void closeEditor();
    // The editor's text becomes the title.
    void takeEdited();
    const QLineEdit *editor() const { return m_editor; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLineEdit *m_editor;
    QString m_name;
    QString m_title; // in full
    QString m_titleByName; // the latest one that was made from the name
};
