// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>

// The scrolled column of the plots. The Tab key brings the plot that it reaches into view, but
// stays where it is for the column itself, whose middle would come into view, and for what lies
// outside.
class PlotColumn : public QScrollArea {
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;

protected:
    bool focusNextPrevChild(bool next) override;
};
