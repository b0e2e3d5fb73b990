// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>

#include <QObject>

class QMenu;
class QToolBar;

/// The folders that were opened last, in a pop-up button of a tool bar and in a menu.
class FolderMenus : public QObject, public ZEVURLPopUpButtonDelegate {
    Q_OBJECT

public:
    explicit FolderMenus(QObject *parent = nullptr);

    /// Belongs to whoever asks for it, and may be asked for once.
    QToolBar *makeToolBar();
    void addRecents(QMenu *menu);

    /// The one that is open now.
    void setFolder(const QString &folder);

    void didSelectURL(ZEVURLPopUpButton *button, const QUrl &url) override;
    void willDisplayOpenPanel(ZEVURLPopUpButton *button, ZEVOpenPanel &panel) override;

Q_SIGNALS:
    void folderChosen(const QString &folder);

private:
    void fillRecents(QMenu *menu);
    void choose(const QUrl &url);

    ZEVURLPopUpButton *m_button;
    QString m_folder;
};
