// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QTimer>
#include <QVariantList>
#include <QWidget>

#include <vector>

class QPlainTextEdit;
class QGridLayout;
class QLabel;
class QItemSelectionModel;
class TagField;
class TextEditing;
class TrackTableModel;
class ZEVFindPlace;
class ZEVPatternTokens;

/// The tags of the selected tracks, each to be edited for all of them at once. A tag in which they differ
/// shows no text and stays as it is unless one is typed.
class Inspector : public QWidget {
    Q_OBJECT

public:
    Inspector(TrackTableModel *model, const QItemSelectionModel *selection, TextEditing *editing,
              QWidget *parent = nullptr);
    ~Inspector() override;

    /// Takes over what is still being typed.
    void commit();

    ZEVFindPlace &commentFind() { return *m_commentFind; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Row {
        TrackField field;
        TagField *editor;
        QVariantList shown; ///< what the tracks hold
    };

    static QString label(TrackField field);
    void addFields(QGridLayout *grid);
    TagField *addField(TrackField field);
    void layOut();
    void showTracks();
    std::optional<QString> commonText(TrackField field) const;
    void showField(Row &row);
    void putBack(Row &row);
    void showComment();
    bool putCommentBack();
    void emptyMixed(TrackField field);
    void showFiles();
    void commitField(Row &row);
    void commitComment();
    void change(TrackField field, const QVariantList &pattern);

    TrackTableModel *m_model;
    const QItemSelectionModel *m_selection;
    TextEditing *m_editing;
    ZEVPatternTokens *m_tokens;
    std::vector<Row> m_fields;
    QPlainTextEdit *m_comment;
    ZEVFindPlace *m_commentFind;
    QString m_shownComment;
    QLabel *m_files; ///< their sizes, and when the last one was changed
    QList<int> m_trackIds; ///< those that are shown
    QTimer m_timer; ///< shows the tracks once the events at hand are done
};
