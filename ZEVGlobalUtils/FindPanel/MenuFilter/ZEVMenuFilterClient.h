// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterDelegate.h>

#include <QList>
#include <QPointer>

class QAction;

/// Holds every item that a menu can show below its filter, and puts those that pass into it. A menu of any
/// length stays quick: see ZEVMenuItemScroller.
class ZEV_EXPORT ZEVMenuFilterClient : public ZEVMenuFilterDelegate {
public:
    explicit ZEVMenuFilterClient(ZEVMenuFilterViewController *filterViewController = nullptr);
    ~ZEVMenuFilterClient() override;
    Q_DISABLE_COPY_MOVE(ZEVMenuFilterClient)

    ZEVMenuFilterViewController *filterViewController() const;
    void setFilterViewController(ZEVMenuFilterViewController *controller);

    /// The owner fills it, keeps the items alive as long as they are here or in the menu, and then calls
    /// filterDidChange() to have them shown.
    QList<QAction *> menuItems;

    /// Nil until they were asked for, and after reset().
    const std::optional<QList<QAction *>> &filteredItems() const { return m_filteredItems; }

    void reset() { m_filteredItems.reset(); }
    void filter();
    void filterAgainstSearchString(const QString &string);

    /// Takes all that follows the filter's item out of its menu, without deleting it.
    void filterDidChange(ZEVMenuFilterViewController *controller) override;
    std::optional<bool> hasFilteredItems(ZEVMenuFilterViewController *controller) override;

    /// Chooses the item when only one passes, as Return in the menu would. Kept: that is the item at index 1
    /// of the menu, whatever stands there.
    bool handleReturnKeyEvent(ZEVMenuFilterViewController *controller) override;

private:
    QPointer<ZEVMenuFilterViewController> m_filterViewController;
    std::optional<QList<QAction *>> m_filteredItems;
};
