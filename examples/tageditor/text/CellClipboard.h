// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

class QMenu;
class QTableView;
class TextEditing;
class TrackTableModel;

/// Takes the selected cells of the table to the clipboard and back, as a table that spreadsheets know, too.
class CellClipboard : public QObject {
    Q_OBJECT

public:
    CellClipboard(TrackTableModel *model, QTableView *table, TextEditing *editing);

    /// Their keys belong to the table: elsewhere they keep their meaning.
    void addActions(QMenu *menu);

Q_SIGNALS:
    /// Nothing of the clipboard fits into the selected cells, and why.
    void refused(const QString &message);

private:
    QList<int> columns() const;
    QList<QStringList> selectedTexts() const;
    void copy();
    void paste();
    void empty(const QString &name);
    void fill(const QList<QStringList> &texts);

    TrackTableModel *m_model;
    QTableView *m_table;
    TextEditing *m_editing;
};
