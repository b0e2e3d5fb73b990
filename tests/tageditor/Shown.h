// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Samples.h"

#include <tageditor/find/FindInterfaces.h>
#include <tageditor/find/TrackFind.h>
#include <tageditor/window/MainWindow.h>
#include <tageditor/window/SizeLabel.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTest>

/// The window as its user sees it.
struct Shown {
    Shown()
    {
        window.show();
        visible = activate();
    }

    /// Does what a window manager would do, where there is none.
    bool activate()
    {
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

    bool open(const QString &folder)
    {
        QSignalSpy read(&window, &MainWindow::folderRead);
        window.openFolder(folder);
        return read.wait();
    }

    /// Shows the bar and types into its field, as by keys.
    void find(const QString &text, qint64 matchingType = ZEVFindPanelQuery::Contains)
    {
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        bar().setMatchingType(matchingType);
        bar().findTokenField()->clear();
        QTest::keyClicks(bar().findTokenField(), text);
    }

    /// Of the bar, which is shown for it.
    ZEVTokenField *findField()
    {
        if (!window.find().isFindBarVisible())
            QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        return bar().findTokenField();
    }

    ZEVTextFinderViewController &bar() { return window.find().bar(); }
    QString count()
    {
        return bar().view()->findChild<QLabel *>(QStringLiteral("numberOfMatchesLabel"))->text();
    }
    QString message() { return messageLabel()->text(); }
    QLabel *messageLabel() { return bar().view()->findChild<QLabel *>(QStringLiteral("messageLabel")); }
    QString status() const
    {
        QStringList texts;
        for (const QLabel *label : window.statusBar()->findChildren<QLabel *>()) {
            if (!qobject_cast<const SizeLabel *>(label))
                texts.append(label->text());
        }
        return texts.join(u'|');
    }
    QString sizes() const { return window.findChild<SizeLabel *>()->text(); }

    /// The file name and column of the current cell.
    QString currentCell()
    {
        const QModelIndex index = window.table().currentIndex();
        return index.siblingAtColumn(0).data().toString() + u'/' + QString::number(index.column());
    }

    QString text(int row, TrackField field) const { return window.tracks().track(row).text(field); }

    void select(int row, TrackField field,
                QItemSelectionModel::SelectionFlags how = QItemSelectionModel::Select)
    {
        window.table().selectionModel()->select(window.tracks().index(row, int(field)), how);
    }

    /// The action of a menu by a beginning of its text, mnemonics left out.
    QAction *action(const QString &text) const
    {
        for (QAction *menu : window.menuBar()->actions()) {
            for (QAction *action : menu->menu()->actions()) {
                if (action->text().remove(u'&').startsWith(text))
                    return action;
            }
        }
        return nullptr;
    }

    MainWindow window;
    bool visible = false;
};

/// What the application remembers goes into a folder of the test's own, where nothing is remembered yet.
inline void useStoreIn(const QTemporaryDir &folder)
{
    const QString file = folder.filePath(QStringLiteral("defaults.ini"));
    ZEVUserDefaults::setStandardStore(nullptr);
    QFile::remove(file);
    ZEVUserDefaults::setStandardStore(std::make_unique<QSettings>(file, QSettings::IniFormat));
}
