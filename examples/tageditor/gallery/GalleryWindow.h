// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/gallery/GalleryPages.h>

#include <QWidget>

class QListWidget;
class QStackedWidget;

/// Shows one page of the gallery at a time, with the list of all pages beside it.
class GalleryWindow : public QWidget {
    Q_OBJECT

public:
    explicit GalleryWindow(const QList<GalleryPage> &pages);

    /// Writes a PNG of the window for each page into \a folder, which is made where it lacks. False when one
    /// could not be written.
    bool saveScreenshots(const QString &folder);

private:
    QListWidget *m_names;
    QStackedWidget *m_pages;
};
