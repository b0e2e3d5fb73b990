// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPlace.h>

#include <QApplication>
#include <QMainWindow>
#include <QTextEdit>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto *editor = new QTextEdit(QStringLiteral("one two one<br>three one"));
    window.setCentralWidget(editor);
    new ZEVFindPlace(editor);
    window.show();
    const int result = application.exec();
    std::puts(qPrintable(editor->toPlainText()));
    return result;
}
