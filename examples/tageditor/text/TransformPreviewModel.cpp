// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TransformPreviewModel.h>

#include <tageditor/text/TextDifference.h>
#include <tageditor/tracks/TagValues.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <QElapsedTimer>

#include <limits>

namespace {

/// How long the texts are gone through at a time, in milliseconds: less than a frame.
constexpr qint64 Slice = 8;

} // namespace

TransformPreviewModel::TransformPreviewModel(QList<TextChange> cells, QObject *parent)
    : PreviewModel({tr("Before"), tr("After")}, parent)
    , m_cells(std::move(cells))
{
    connect(&m_timer, &QTimer::timeout, this, [this] { proceed(Slice); });
}

void TransformPreviewModel::setTransform(const TextTransform &transform, const ZEVCaseRules &rules)
{
    m_transform = transform;
    m_rules = rules;
    m_next = 0;
    m_isOutdated = true;
    m_timer.start(0);
}

void TransformPreviewModel::finish()
{
    if (!isFinished())
        proceed(std::numeric_limits<qint64>::max());
}

/// The first rows take the place of the old ones at once, so that the table is never seen empty.
void TransformPreviewModel::proceed(qint64 milliseconds)
{
    std::vector<Row> rows = nextRows(milliseconds);
    if (m_next == m_cells.size())
        m_timer.stop();
    if (std::exchange(m_isOutdated, false)) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    } else if (!rows.empty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + int(rows.size()) - 1);
        m_rows.insert(m_rows.end(), rows.begin(), rows.end());
        endInsertRows();
    }
    Q_EMIT progressed();
}

std::vector<TransformPreviewModel::Row> TransformPreviewModel::nextRows(qint64 milliseconds)
{
    std::vector<Row> rows;
    QElapsedTimer elapsed;
    elapsed.start();
    for (; m_next < m_cells.size() && elapsed.elapsed() < milliseconds; ++m_next) {
        const QString &before = m_cells.at(m_next).text;
        QStringList values = TagValues::of(before);
        for (QString &value : values)
            value = m_transform.apply(value, m_rules);
        QString after = TagValues::text(values);
        if (after != before)
            rows.push_back({m_next, std::move(after)});
    }
    return rows;
}

QList<TextChange> TransformPreviewModel::changes() const
{
    QList<TextChange> changes;
    for (const Row &row : m_rows) {
        const TextChange &cell = m_cells.at(row.cell);
        changes.append({cell.trackId, cell.field, row.after});
    }
    return changes;
}

int TransformPreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant TransformPreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(size_t(index.row()));
    const QString &before = m_cells.at(row.cell).text;
    if (role == Qt::DisplayRole)
        return index.column() == Before ? before : row.after;
    if (role != ZEVHighlightDelegate::RangesRole)
        return {};
    const TextDifference difference = TextDifference::between(before, row.after);
    return QVariant::fromValue(index.column() == Before ? difference.before : difference.after);
}
