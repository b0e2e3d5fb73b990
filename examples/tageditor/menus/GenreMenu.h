// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>

#include <QMenu>

/// All genres that ID3v1 knows, with a filter on top of them.
class GenreMenu : public QMenu {
    Q_OBJECT

public:
    explicit GenreMenu(QWidget *parent = nullptr);
    ~GenreMenu() override;

    /// Has a check mark; an empty one checks none.
    void setGenre(const QString &genre);

Q_SIGNALS:
    void genreChosen(const QString &genre);

private:
    ZEVMenuFilterViewController m_filter{ZEVControlSize::Small};
    std::unique_ptr<ZEVMenuFilterClient> m_client;
    QAction *m_checked = nullptr;
};
