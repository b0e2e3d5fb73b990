// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>

#include <QApplication>
#include <QMainWindow>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStandardItemModel tracks;
    tracks.setHorizontalHeaderLabels({u"Title"_s, u"Artist"_s});
    for (const QString &row : {u"Love Songs/Nina"_s, u"Harbour/Los Barcos"_s, u"No love lost/Mare"_s})
        tracks.appendRow(
            {new QStandardItem(row.section(u'/', 0, 0)), new QStandardItem(row.section(u'/', 1))});

    QMainWindow window;
    auto *table = new QTableView;
    table->setModel(&tracks);
    window.setCentralWidget(table);
    new ZEVFindPlace(table); // and it is found and replaced in the table
    QObject::connect(&tracks, &QStandardItemModel::itemChanged, &window,
                     [&window](const QStandardItem *item) { window.setWindowTitle(item->text()); });

    window.resize(520, 300);
    window.show();
    return application.exec();
}
