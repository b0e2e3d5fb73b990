// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QStringList>

class QWidget;
class TrackTableModel;

/// Writes the changed texts of a table of tracks into their files.
class TrackSaving {
    Q_DECLARE_TR_FUNCTIONS(TrackSaving)

public:
    TrackSaving() = delete;

    /// Saves file by file, with a progress dialog over \a window that can be cancelled between two files.
    /// What could not be saved stays changed, and is told of in a message box. True when nothing is left.
    static bool save(TrackTableModel *model, QWidget *window);

private:
    static QStringList saveTracks(TrackTableModel *model, QWidget *window);
    static void showProblems(const QStringList &problems, QWidget *window);
};
