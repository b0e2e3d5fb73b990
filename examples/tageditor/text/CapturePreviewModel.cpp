// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/CapturePreviewModel.h>

#include <tageditor/tracks/TagValues.h>

#include <QFont>

using namespace Qt::StringLiterals;

namespace {

qsizetype slashesIn(const QVariantList &pattern)
{
    qsizetype slashes = 0;
    for (const QVariant &part : pattern)
        slashes += part.typeId() == QMetaType::QString ? part.toString().count(u'/') : 0;
    return slashes;
}

QString nameOf(const std::filesystem::path &path, qsizetype folders)
{
    QString name = displayedPath(path.stem());
    for (std::filesystem::path folder = path.parent_path(); folders > 0;
         --folders, folder = folder.parent_path())
        name.prepend(displayedPath(folder.filename()) + u'/');
    return name;
}

QString shown(const TagCapture::Captured &captured)
{
    QStringList texts;
    for (const auto &[field, text] : captured)
        texts.append(CapturePreviewModel::tr("%1: %2", "a tag and its text")
                         .arg(TrackTableModel::titleForField(field), text));
    return texts.join(u"  ·  "_s);
}

} // namespace

CapturePreviewModel::CapturePreviewModel(QList<Track> tracks, QObject *parent)
    : PreviewModel({tr("Text"), tr("Tags")}, parent)
    , m_tracks(std::move(tracks))
    , m_rows(m_tracks.size())
{
}

void CapturePreviewModel::set(TrackField source, const QVariantList &pattern)
{
    TagCapture capture(pattern);
    const qsizetype slashes = slashesIn(pattern);
    m_numberOfMatches = 0;
    for (qsizetype n = 0; n < m_tracks.size(); ++n) {
        const Track &track = m_tracks.at(n);
        const bool isName = source == TrackField::FileName;
        const QString text = isName ? nameOf(track.path, slashes) : TagValues::joined(track.text(source));
        m_rows[n] = {text, capture.captured(text)};
        m_numberOfMatches += m_rows.at(n).captured ? 1 : 0;
    }
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, Before), index(rowCount() - 1, After));
}

QList<TextChange> CapturePreviewModel::changes() const
{
    QList<TextChange> changes;
    for (qsizetype n = 0; n < m_rows.size(); ++n) {
        for (const auto &[field, text] : m_rows.at(n).captured.value_or(TagCapture::Captured()))
            changes.append({m_tracks.at(n).id, field, text});
    }
    return changes;
}

int CapturePreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant CapturePreviewModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    const bool isMissing = index.column() == After && !row.captured;
    if (role == Qt::DisplayRole && index.column() == Before)
        return row.text;
    if (role == Qt::DisplayRole)
        return isMissing ? tr("does not fit the pattern") : shown(*row.captured);
    if (role == Qt::FontRole && isMissing) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    return {};
}
