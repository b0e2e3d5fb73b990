// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <QStringList>

/// A table that shows what would become of things, with a title for each of its columns.
class PreviewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit PreviewModel(QStringList titles, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList m_titles;
};
