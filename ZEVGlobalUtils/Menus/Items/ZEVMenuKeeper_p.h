// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>

#include <QObject>

#include <functional>

class QKeyEvent;
class QMenu;
class ZEVMenuItemScroller;

/// Stands between a menu and all that this library adds to menus, so that each event has one way: paint goes to
/// the titles, a key to the filter, then to the scroller, then to the menu, the wheel and the size to the
/// scroller.
class ZEVMenuKeeper : public QObject {
    Q_OBJECT

public:
    /// The menu's own, made when it is first asked for.
    static ZEVMenuKeeper *keeperOfMenu(QMenu *menu);

    void setBuilder(const ZEVMenuBuilder::Builder &builder);
    void build();

    /// True for a key that goes no further. An empty one lets all pass.
    using KeyFilter = std::function<bool(QKeyEvent *event)>;
    void setKeyFilter(const KeyFilter &filter) { m_keyFilter = filter; }

    /// A key that the filter has seen already goes on its way.
    void passKeyOn(QKeyEvent *event);

    ZEVMenuItemScroller *scroller();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit ZEVMenuKeeper(QMenu *menu);

    QMenu *m_menu;
    KeyFilter m_keyFilter;
    ZEVMenuItemScroller *m_scroller = nullptr;
    ZEVMenuBuilder::Builder m_builder;
    bool m_isTold = false; ///< when the menu is about to open
};
