// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class FileWriting;
class QWidget;
class TrackTableModel;

/// Writes the changed texts of a table of tracks into their files.
class TrackSaving {
    Q_DECLARE_TR_FUNCTIONS(TrackSaving)

public:
    TrackSaving() = delete;

    /// What the user says of files that another program has changed since they were read.
    enum class Foreign { Overwrite, Reload, Leave };

    /// Saves on threads of their own, with a progress dialog over \a window that can be cancelled between two
    /// files. About files that were changed elsewhere the user is asked first.
    /// What could not be saved stays changed, and is told of in a message box. True when nothing is left.
    static bool save(TrackTableModel *model, QWidget *window);

private:
    static QList<int> settleForeignChanges(TrackTableModel *model, QWidget *window);
    static Foreign askAbout(const QStringList &names, QWidget *window);
    static QStringList saveTracks(TrackTableModel *model, const QList<int> &trackIds, QWidget *window);
    static void run(FileWriting &writing, QWidget *window);
    static QString shortened(const QStringList &lines);
    static void showProblems(const QStringList &problems, QWidget *window);
};
