// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

/// Widgets of the library in all their states, side by side.
struct GalleryPage {
    QString name; ///< in the list of pages and, in lower case, as the name of the page's screenshot
    std::function<QWidget *(QWidget *parent)> make;
};

QList<GalleryPage> galleryPages();
