// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/TrackTableModel.h>

#include <QDialog>

class QCheckBox;
class QComboBox;
class QSpinBox;

/// Asks how to number tracks or discs. It changes nothing itself.
class NumberingDialog : public QDialog {
    Q_OBJECT

public:
    explicit NumberingDialog(QWidget *parent = nullptr);

    /// In the order of \a tracks. Discs have a number for each folder, tracks count on or begin anew in each.
    QList<TextChange> changes(const QList<Track> &tracks) const;

private:
    void layOut();

    QComboBox *m_field;
    QSpinBox *m_first;
    QCheckBox *m_withTotal;
    QCheckBox *m_byFolder;
};
