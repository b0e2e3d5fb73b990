// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/RenamePreviewModel.h>

#include <tageditor/files/FileNamePattern.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QFont>
#include <QSet>

namespace {

QUrl urlOf(const std::string &path) { return ZEVFileURL::withPath(QByteArray::fromStdString(path)); }

} // namespace

RenamePreviewModel::RenamePreviewModel(const QList<Track> &tracks, const QString &folder, QObject *parent)
    : PreviewModel({tr("Before"), tr("After")}, parent)
    , m_folder(folder.toStdString())
    , m_rules(FileNamePattern::rulesIn(folder))
{
    for (const Track &track : tracks)
        m_rows.push_back({track, {}});
}

void RenamePreviewModel::setPattern(const QString &pattern)
{
    m_makesFolders = pattern.contains(u'/');
    for (Row &row : m_rows)
        row.name = FileNamePattern::fileName(pattern, row.track, m_rules);
    findConflicts();
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, After), index(rowCount() - 1, After));
}

/// Where the tags say nothing, the file keeps its name and place.
std::string RenamePreviewModel::newPath(const Row &row) const
{
    if (row.name.isEmpty())
        return row.track.path.native();
    return ((m_makesFolders ? m_folder : row.track.path.parent_path()) / row.name.toStdString()).native();
}

void RenamePreviewModel::findConflicts()
{
    std::unordered_map<std::string, int> wanted;
    std::unordered_map<std::string, int> given;
    for (const Row &row : m_rows) {
        ++wanted[newPath(row)];
        ++given[row.track.path.native()];
    }
    m_numberOfConflicts = 0;
    for (Row &row : m_rows) {
        const std::string path = newPath(row);
        std::error_code ignored;
        const bool isForeign =
            !given.contains(path) && std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
        row.isTaken = wanted[path] > 1 || isForeign;
        m_numberOfConflicts += row.isTaken;
    }
}

QList<FileChange> RenamePreviewModel::changes() const
{
    QList<FileChange> changes;
    for (const Row &row : m_rows) {
        const std::string path = newPath(row);
        if (path != row.track.path.native())
            changes.append({urlOf(row.track.path.native()), urlOf(path), {}, false, row.track.id});
    }
    return changes;
}

int RenamePreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant RenamePreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(size_t(index.row()));
    const bool marksConflict = index.column() == After && row.isTaken;
    switch (role) {
    case Qt::DisplayRole: {
        const std::filesystem::path path(index.column() == Before ? row.track.path.native() : newPath(row));
        return displayedPath(m_makesFolders ? path.lexically_relative(m_folder) : path.filename());
    }
    case Qt::FontRole: {
        QFont font;
        font.setItalic(true);
        return marksConflict ? font : QVariant();
    }
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return marksConflict ? tr("This name is taken; you will be asked what to do.") : QVariant();
    default:
        return {};
    }
}
