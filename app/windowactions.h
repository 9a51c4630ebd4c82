// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QAction;

// The actions in the menus and tool bars of the main window, which owns them.
struct WindowActions {
    QAction *open = nullptr;
    QAction *saveAs = nullptr;
    QAction *saveAsPrimary = nullptr;
    QAction *addPlotter = nullptr;
    QAction *removePlotter = nullptr;
    QAction *removeCursors = nullptr;
    QAction *showVectors = nullptr;
    QAction *rescale = nullptr;
    QAction *screenshot = nullptr;
    QAction *clipboard = nullptr;
    QAction *zoomIn = nullptr;
    QAction *zoomOut = nullptr;
    QAction *zoomReset = nullptr;
    QAction *vZoomIn = nullptr;
    QAction *vZoomOut = nullptr;
    QAction *exit = nullptr;
    QAction *about = nullptr;
};
