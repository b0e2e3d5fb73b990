// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>

#include <QApplication>
#include <QMainWindow>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QTableView>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStringListModel titles({QStringLiteral("b one"), QStringLiteral("a one"), QStringLiteral("hidden one")});
    QSortFilterProxyModel shown;
    shown.setSourceModel(&titles);
    shown.setFilterRegularExpression(QStringLiteral("^(?!hidden)"));
    shown.sort(0);
    QMainWindow window;
    auto *table = new QTableView;
    table->setModel(&shown);
    window.setCentralWidget(table);
    new ZEVFindPlace(table);
    window.show();
    const int result = application.exec();
    std::puts(qPrintable(titles.stringList().join(QLatin1Char('\n'))));
    return result;
}
