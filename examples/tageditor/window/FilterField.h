// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

class QTableView;
class TrackFind;
class TrackTableModel;

/// Shows in the table only those tracks that have the words typed here or, when it is asked for, a match of the
/// find bar. What is selected stays so while it is shown.
class FilterField : public QLineEdit {
    Q_OBJECT

public:
    FilterField(TrackTableModel *model, QTableView *table, TrackFind *find);

    /// Only tracks with matches of the find bar as they are now, or all again.
    void setShowsOnlyMatches(bool shows);

Q_SIGNALS:
    void filtered();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void filter();

    TrackTableModel *m_model;
    QTableView *m_table;
    TrackFind *m_find;
    bool m_showsOnlyMatches = false;
};
