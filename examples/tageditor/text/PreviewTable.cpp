// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/PreviewTable.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QTableView>

QTableView *makePreviewTable(QAbstractItemModel *model)
{
    auto *table = new QTableView;
    table->setAccessibleName(QCoreApplication::translate("PreviewTable", "Preview"));
    table->setModel(model);
    table->setItemDelegate(new ZEVHighlightDelegate(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 3 / 2);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setHighlightSections(false);
    return table;
}
