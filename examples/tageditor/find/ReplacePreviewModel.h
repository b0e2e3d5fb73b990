// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/text/PreviewModel.h>

#include <ZEVGlobalUtils/FindEngine/ZEVReplacementPreview.h>

#include <QModelIndex>

#include <vector>

class ZEVItemModelFinderClient;

/// What replacements make of the texts that they are in: a row a text, which the user may leave as it is.
class ReplacePreviewModel : public PreviewModel {
    Q_OBJECT

public:
    enum Column { File, Field, Before, After };

    ReplacePreviewModel(const ZEVReplacementPreview &preview, const ZEVItemModelFinderClient &client,
                        QObject *parent = nullptr);

    /// The replacements in the rows that are checked.
    ZEVReplacementPreview chosen() const;
    int numberOfChosen() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void chosenChanged();

private:
    struct Row {
        QPersistentModelIndex cell;
        QString before;
        QString after;
        QList<ZEVRange> marksBefore;
        QList<ZEVRange> marksAfter;
        qsizetype first = 0; ///< of its replacements
        qsizetype count = 0;
        bool isChosen = true;
    };

    void add(const ZEVTextReplacement &replacement, const QModelIndex &cell, const ZEVRange &range);
    QString text(const Row &row, int column) const;

    ZEVReplacementPreview m_preview;
    std::vector<Row> m_rows;
};
