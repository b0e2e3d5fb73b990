// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Layout/ZEVTableViewHelpers.h>

#include <QAbstractItemView>
#include <QScrollBar>

#include <algorithm>

void ZEVTableViewHelpers::scrollSelectionToVisible(QAbstractItemView *view)
{
    if (!view->selectionModel())
        return;
    QModelIndexList selected = view->selectionModel()->selectedIndexes();
    selected.removeIf([view](const QModelIndex &index) { return view->visualRect(index).isEmpty(); });
    if (selected.isEmpty())
        return;
    const auto top = [view](const QModelIndex &index) { return view->visualRect(index).top(); };
    const auto [first, last] = std::ranges::minmax_element(selected, {}, top);
    const int left = view->horizontalScrollBar()->value();
    view->scrollTo(*last);
    view->scrollTo(*first);
    view->horizontalScrollBar()->setValue(left); // rows are as wide as the view
}

void ZEVTableViewHelpers::gainFocus(QAbstractItemView *view)
{
    QItemSelectionModel *selection = view->selectionModel();
    if (selection && !selection->hasSelection() && view->model()->rowCount(view->rootIndex()) > 0) {
        const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
        selection->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    QMetaObject::invokeMethod(
        view, [view] { view->setFocus(); }, Qt::QueuedConnection);
}
