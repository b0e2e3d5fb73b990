// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

class QItemSelectionModel;
class TrackTableModel;

/// Tells how many tracks are selected and how large their files are; without a selection, how large all are.
class SizeLabel : public QLabel {
    Q_OBJECT

public:
    SizeLabel(const TrackTableModel *model, const QItemSelectionModel *selection, QWidget *parent = nullptr);

private:
    void showSizes();

    const TrackTableModel *m_model;
    const QItemSelectionModel *m_selection;
};
