// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/SizeLabel.h>

#include <tageditor/tracks/TableSelection.h>

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

#include <QItemSelectionModel>

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

QList<int> allRows(const TrackTableModel &model)
{
    QList<int> rows(model.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// A file that could not be read has no size that would say anything of a track: the null marker.
QVariantList fileSizes(const TrackTableModel &model, const QList<int> &rows)
{
    QVariantList sizes;
    for (const int row : rows) {
        const Track &track = model.track(row);
        sizes.append(track.isReadable() ? QVariant(track.fileSize) : QVariant::fromValue(nullptr));
    }
    return sizes;
}

} // namespace

SizeLabel::SizeLabel(const TrackTableModel *model, const QItemSelectionModel *selection, QWidget *parent)
    : QLabel(parent)
    , m_model(model)
    , m_selection(selection)
{
    setTextFormat(Qt::PlainText);
    connect(selection, &QItemSelectionModel::selectionChanged, this, &SizeLabel::showSizes);
    connect(model, &TrackTableModel::rowsInserted, this, &SizeLabel::showSizes);
    connect(model, &TrackTableModel::modelReset, this, &SizeLabel::showSizes);
}

void SizeLabel::showSizes()
{
    const QList<int> selected = TableSelection::rows(*m_selection);
    const auto transformer = ZEVValueTransformer::valueTransformerForName(u"FileSizeTransformer"_s);
    const QVariantList sizes = fileSizes(*m_model, selected.isEmpty() ? allRows(*m_model) : selected);
    const QString text = transformer->transformedValue(sizes).toString();
    setText(selected.isEmpty() ? text : tr("%Ln selected: %1", nullptr, int(selected.size())).arg(text));
}
