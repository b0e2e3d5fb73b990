// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QUndoStack>

class QMenu;
class QTableView;
class TrackTableModel;
class TransformDialog;

/// Lets the user re-write the selected texts of the table, and take that back.
class TextEditing : public QObject {
    Q_OBJECT

public:
    TextEditing(TrackTableModel *model, QTableView *table);

    void addUndoActions(QMenu *menu);
    void addTransforms(QMenu *menu);

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
