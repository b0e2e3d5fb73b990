// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/files/FileJournal.h>
#include <tageditor/files/FileNamePattern.h>
#include <tageditor/text/PreviewModel.h>
#include <tageditor/tracks/Track.h>

#include <vector>

/// What a pattern makes of files' names: a row for each file.
class RenamePreviewModel : public PreviewModel {
    Q_OBJECT

public:
    enum Column { Before, After };

    /// A pattern with folders makes them in \a folder; another one leaves the files in theirs.
    RenamePreviewModel(const QList<Track> &tracks, const QString &folder, QObject *parent = nullptr);

    void setPattern(const QString &pattern);

    /// Of the files that get another name.
    QList<FileChange> changes() const;

    /// Names that two files would get, or that another file has and keeps: the user will be asked.
    int numberOfConflicts() const { return m_numberOfConflicts; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Row {
        Track track;
        QByteArray name; ///< the new one
        bool isTaken = false;
    };

    std::string newPath(const Row &row) const;
    void findConflicts();

    std::vector<Row> m_rows;
    std::filesystem::path m_folder;
    FileNamePattern::Rules m_rules;
    bool m_makesFolders = false; ///< the pattern does
    int m_numberOfConflicts = 0;
};
