// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QWidget;

// Asks whether what exists may be overwritten, and names the files given. Escape is no.
bool mayOverwrite(QWidget *parent, const QString &styleSheet, const QStringList &files = {});
