// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TableColumns.h>

#include <tageditor/tracks/Track.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QHeaderView>
#include <QMenu>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

const QString StateKey = u"TrackColumns"_s;
const QString WidthsKey = u"TrackColumnsHaveOwnWidths"_s;

/// The last column that is shown stays: a table without any could not be told what to show again.
void fillMenu(QMenu *menu, QHeaderView *header)
{
    menu->clear();
    const int shown = header->count() - header->hiddenSectionCount();
    for (int place = 0; place < header->count(); ++place) {
        const int section = header->logicalIndex(place);
        const QString title = header->model()->headerData(section, Qt::Horizontal).toString();
        QAction *action = menu->addAction(
            title, header, [header, section](bool isShown) { header->setSectionHidden(section, !isShown); });
        action->setCheckable(true);
        action->setChecked(!header->isSectionHidden(section));
        action->setEnabled(!action->isChecked() || shown > 1);
    }
}

void arrangeFirst(QTableView *table)
{
    for (int column = int(TrackField::AlbumArtist); column < table->model()->columnCount(); ++column)
        table->hideColumn(column);
}

} // namespace

void TableColumns::setMenu(QTableView *table, QMenu *menu)
{
    QHeaderView *header = table->horizontalHeader();
    QObject::connect(menu, &QMenu::aboutToShow, header, [menu, header] { fillMenu(menu, header); });
    header->setSectionsMovable(true);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(header, &QWidget::customContextMenuRequested, menu, [header, menu](QPoint position) {
        menu->popup(header->viewport()->mapToGlobal(position));
    });
}

/// A state of another version has another number of columns, and is refused by the header.
bool TableColumns::restore(QTableView *table)
{
    QHeaderView *header = table->horizontalHeader();
    const QByteArray state = ZEVUserDefaults::standardUserDefaults()->objectForKey(StateKey).toByteArray();
    if (state.isEmpty() || !header->restoreState(state)) {
        arrangeFirst(table);
        return false;
    }
    if (header->hiddenSectionCount() == header->count())
        header->showSection(0);
    return ZEVUserDefaults::standardUserDefaults()->objectForKey(WidthsKey).toBool();
}

void TableColumns::remember(const QTableView *table, bool hasOwnWidths)
{
    ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    defaults->setObject(table->horizontalHeader()->saveState(), StateKey);
    defaults->setObject(hasOwnWidths, WidthsKey);
}

int TableColumns::lastShown(const QTableView *table)
{
    const QHeaderView *header = table->horizontalHeader();
    for (int place = header->count(); place-- > 0;) {
        if (const int column = header->logicalIndex(place); !header->isSectionHidden(column))
            return column;
    }
    return -1;
}
