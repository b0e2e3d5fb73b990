// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/text/PreviewModel.h>
#include <tageditor/text/TextTransform.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <QTimer>

#include <vector>

/// What a transform makes of texts: a row for each text that it changes, as it was and as it would be. The
/// texts are gone through a little at a time, so that a hundred thousand of them stop nobody from typing.
class TransformPreviewModel : public PreviewModel {
    Q_OBJECT

public:
    enum Column { Before, After };

    /// \a cells holds each cell's present text.
    explicit TransformPreviewModel(QList<TextChange> cells, QObject *parent = nullptr);

    /// Begins anew once the events at hand are done, so that a burst of changes costs one beginning.
    void setTransform(const TextTransform &transform, const ZEVCaseRules &rules);

    /// Goes through what is left, now.
    void finish();
    bool isFinished() const { return !m_timer.isActive(); }

    qsizetype numberOfCells() const { return m_cells.size(); }

    /// As far as the texts were gone through.
    QList<TextChange> changes() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

Q_SIGNALS:
    /// After every little.
    void progressed();

private:
    struct Row {
        qsizetype cell = 0;
        QString after;
    };

    void proceed(qint64 milliseconds);
    std::vector<Row> nextRows(qint64 milliseconds);

    QList<TextChange> m_cells;
    std::vector<Row> m_rows;
    qsizetype m_next = 0; ///< the cell to be looked at next
    bool m_isOutdated = false; ///< the rows are still those of what was set before
    TextTransform m_transform;
    ZEVCaseRules m_rules;
    QTimer m_timer;
};
