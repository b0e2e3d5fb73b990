// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterClient.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVMenuFilterViewController.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemBlockAdditions.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto *folder = new ZEVURLPopUpButton; // the folders that were used last, and "Choose…"
    folder->setAutosaveName(u"CookbookFolder"_s);
    auto *genre = new QPushButton(u"&Genre"_s);
    QMenu genres;
    genre->setMenu(&genres);
    ZEVMenuFilterViewController filter(ZEVControlSize::Regular);
    const auto client = filter.newDelegatedClient();
    filter.setAutofocus(true);
    genres.addAction(filter.filterMenuItem());
    for (const QString &name :
         u"Ambient Blues Chanson Dub Fado Folk Jazz Latin Pop Rock Soul Tango"_s.split(u' '))
        client->menuItems.append(ZEVMenuItemBlockAdditions::itemWithTitle(
            name, [&window, name](QAction *) { window.setWindowTitle(name); }, &genres));
    filter.clearFilterAndNotifyDelegate();

    auto *rows = new QVBoxLayout(&window);
    rows->addWidget(folder);
    rows->addWidget(genre);
    window.resize(260, 200);
    window.show();
    return application.exec();
}
