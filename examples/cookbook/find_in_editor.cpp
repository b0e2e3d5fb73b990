// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto *editor = new QPlainTextEdit(u"Track 7 of 12\nTrack 8 of 12\nAll about love\n"_s);
    window.setCentralWidget(editor);

    auto *place = new ZEVFindPlace(editor);
    window.menuBar()->addMenu(u"&Find"_s)->addActions(place->menuActions());
    QObject::connect(&place->finder(), &ZEVTextFinder::searchPerformed, &window, [&window, place] {
        window.setWindowTitle(u"%1 found"_s.arg(place->finder().numberOfMatches().value_or(0)));
    });

    window.resize(520, 300);
    window.show();
    return application.exec();
}
