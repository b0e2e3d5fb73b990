// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QEvent>
#include <QList>
#include <QObject>

class QAction;
class QMenu;
class QScrollBar;

/// Any number of items at the end of a menu. A menu measures all that it holds whenever one of its items
/// changes, and some styles put what does not fit on the screen into columns beside it; so the menu is given
/// only the items in view, and with the wheel, the keys or a scroll bar others take their places.
class ZEV_EXPORT ZEVMenuItemScroller : public QObject {
    Q_OBJECT

public:
    /// The menu's own, made when it is first asked for.
    static ZEVMenuItemScroller *scrollerOfMenu(QMenu *menu);

    /// Takes all that follows \a item out of the menu, deleting nothing, and shows \a items, from the first
    /// one, in its place. They must live as long as they are here; who clears or refills the menu itself takes
    /// it back. An open menu changes at once and without steps that could be seen; it never becomes narrower
    /// than it was.
    void setItemsAfter(QAction *item, const QList<QAction *> &items);

    const QList<QAction *> &items() const { return m_items; }

    /// Lets \a index be the first item in view, as far as there are enough after it.
    void scrollTo(qsizetype index);
    qsizetype firstInView() const { return m_first; }

private:
    friend class ZEVMenuKeeper;
    explicit ZEVMenuItemScroller(QMenu *menu);

    bool moveByKey(int key);
    bool turnWheel(QEvent *event);
    void menuChanged(QEvent::Type type);
    bool isInStep();
    void scrollOnto(qsizetype index);
    bool activate(qsizetype index);
    qsizetype selectableFrom(qsizetype index, int direction) const;

    qsizetype capacity() const;
    qsizetype lastFirst() const;
    void resetScrollBar();
    void showFrom(qsizetype first);
    void shiftBy(qsizetype step);
    void fill();
    void fitMenu();
    void placeScrollBar();
    void reachItemUnderPointer();

    QMenu *m_menu;
    QScrollBar *m_scrollBar;
    QAction *m_anchor = nullptr; ///< the item before the first of ours
    QList<QAction *> m_items;
    qsizetype m_first = 0;
    qsizetype m_capacity = 0;
};
