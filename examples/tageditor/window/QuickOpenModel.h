// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>

#include <QAbstractListModel>

#include <optional>

class TrackTableModel;

/// The tracks as lines of text that fit what was typed, the best first; all in the order of the table as long
/// as nothing was typed.
class QuickOpenModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        TrackIdRole = Qt::UserRole, ///< int
    };

    using QAbstractListModel::QAbstractListModel;

    /// Later changes of the table do not show.
    void load(const TrackTableModel &tracks);
    void setTypedText(const QString &text);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    /// What does not depend on the text that is typed.
    struct Candidates {
        QStringList texts;
        QStringList cleaned; ///< what counts of each for the score
        QList<int> trackIds;
    };

    QList<qsizetype> all() const;
    QList<qsizetype> ranked() const;
    QList<qsizetype> containing() const;
    QList<ZEVRange> ranges(const QString &text) const;

    Candidates m_candidates;
    QList<qsizetype> m_shown; ///< indices of candidates
    QString m_typed;
    std::optional<ZEVStringScorer> m_scorer; ///< nil when no letter was typed
};
