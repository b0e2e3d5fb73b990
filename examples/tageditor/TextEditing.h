// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/TrackTableModel.h>

#include <QObject>
#include <QUndoStack>

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

    /// What other parts of the window do is undone by the same keys.
    QUndoStack &undoStack() { return m_stack; }

    /// Forgets every step.
    void clear() { m_stack.clear(); }

Q_SIGNALS:
    /// There was nothing to do, and why.
    void nothingDone(const QString &message);

private:
    void updateActions();
    void askForTransform(int transform);
    void perform(const TransformDialog &dialog);

    TrackTableModel *m_model;
    QTableView *m_table;
    QUndoStack m_stack;
    QList<QAction *> m_transforms;
};
