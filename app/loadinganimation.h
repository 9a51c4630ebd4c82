// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QLabel;
class QWidget;

// The animation that runs in the middle of a window while a recording loads. It is shown at once
// and deleted when it is closed.
QLabel *newLoadingAnimation(QWidget *window);
