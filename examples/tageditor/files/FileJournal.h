// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QUrl>

#include <optional>

/// One file that was moved or copied.
struct FileChange {
    QUrl source;
    QUrl destination; ///< where it is now; the trash finds one itself
    QUrl replaced; ///< where what was there before is now; invalid when there was nothing
    bool isCopy = false;
    int trackId = -1;
    bool isTrashed = false; ///< its place is one in the trash
    QUrl madeFolder = {}; ///< the topmost of those that were made for it; invalid when there were none
};

/// What the last batch did to files, on the disk as soon as it is done, so that it can be undone even after
/// the program has died.
class FileJournal {
public:
    explicit FileJournal(const QString &path);

    /// In the user's own folder of the application.
    static QString standardPath();

    bool isEmpty() const;
    QList<FileChange> changes() const;

    /// Forgets what came before.
    void begin() const;

    /// False when it could not be written.
    bool append(const FileChange &change) const;

private:
    QString m_path;
};
