// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

#include <QObject>
#include <QUndoStack>

class AllTagsDialog;
class QAction;
class QMenu;
class QTableView;
class TransformDialog;

/// Lets the user re-write the selected texts of the table, and take that back.
class TextEditing : public QObject {
    Q_OBJECT

public:
    TextEditing(TrackTableModel *model, QTableView *table);

    void addUndoActions(QMenu *menu);
    void addTransforms(QMenu *menu);

    /// In one step, which undo calls \a name. Texts that a field cannot take are left out. False when nothing
    /// was to be changed.
    bool change(const QString &name, const QList<TextChange> &changes);

    /// For steps of other kinds.
    QUndoStack *undoStack() { return &m_stack; }

    /// While a step is under way that takes its time.
    void setUndoBlocked(bool isBlocked);

    /// Forgets every step.
    void clear() { m_stack.clear(); }

Q_SIGNALS:
    /// There was nothing to do, and why.
    void nothingDone(const QString &message);

private:
    void updateActions();
    void updateUndoActions();
    QList<Track> selectedTracks() const;
    void askForTransform(int transform);
    void askForPattern();
    void askForNumbers();
    void askForAllTags();
    void changeTags(const AllTagsDialog &dialog);
    void perform(const TransformDialog &dialog);

    TrackTableModel *m_model;
    QTableView *m_table;
    QUndoStack m_stack;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    bool m_isUndoBlocked = false;
    QList<QAction *> m_forCells; ///< need a selected one that may be changed
};
