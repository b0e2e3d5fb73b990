// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

#include <QDialog>

#include <vector>

class QPushButton;
class QTableWidget;

/// All tags of some tracks, each with the text that they share, to be changed, removed or added to. It changes
/// nothing itself.
class AllTagsDialog : public QDialog {
    Q_OBJECT

public:
    /// \a others has the tags of each of \a tracks that no field shows.
    AllTagsDialog(QList<Track> tracks, QList<OtherTags> others, QWidget *parent = nullptr);

    QList<TextChange> textChanges() const;
    QList<OtherTagsChange> otherChanges() const;

    /// A row with a name and no text; an existing one of that name is shown instead.
    void addTag(const QString &name);

private:
    struct Row {
        QString name; ///< of a tag that is no field
        std::optional<TrackField> field;
        QString shown; ///< the text before the user has changed it
    };

    void layOut();
    void fill();
    void addRow(const Row &row, const QString &title);
    void askForName();
    void removeSelected();
    QString shownText(const QStringList &texts) const;
    std::optional<QString> changedText(size_t row) const;

    QList<Track> m_tracks;
    QList<OtherTags> m_others;
    std::vector<Row> m_rows;
    QTableWidget *m_table;
};
