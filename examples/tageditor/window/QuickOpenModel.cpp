// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/QuickOpenModel.h>

#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>

#include <numeric>

namespace {

QString textOfTrack(const Track &track)
{
    const QString title = TagValues::joined(track.text(TrackField::Title));
    const QString &name = title.isEmpty() ? track.text(TrackField::FileName) : title;
    const QString artist = TagValues::joined(track.text(TrackField::Artist));
    return artist.isEmpty() ? name : QuickOpenModel::tr("%1 – %2").arg(name, artist);
}

} // namespace

void QuickOpenModel::load(const TrackTableModel &tracks)
{
    beginResetModel();
    m_candidates = {};
    m_typed.clear();
    m_scorer.reset();
    for (int row = 0; row < tracks.rowCount(); ++row) {
        const QString text = textOfTrack(tracks.track(row));
        m_candidates.texts.append(text);
        m_candidates.cleaned.append(ZEVStringScorer::cleanedString(text));
        m_candidates.trackIds.append(tracks.track(row).id);
    }
    m_shown = all();
    endResetModel();
}

/// Only letters count for the score, so a number is looked for as it stands.
void QuickOpenModel::setTypedText(const QString &text)
{
    beginResetModel();
    m_typed = text.trimmed();
    m_scorer.reset();
    if (!ZEVStringScorer::cleanedString(m_typed).isEmpty())
        m_scorer.emplace(m_typed, std::nullopt);
    m_shown = m_typed.isEmpty() ? all() : m_scorer ? ranked() : containing();
    endResetModel();
}

QList<qsizetype> QuickOpenModel::all() const
{
    QList<qsizetype> indices(m_candidates.texts.size());
    std::iota(indices.begin(), indices.end(), 0);
    return indices;
}

QList<qsizetype> QuickOpenModel::ranked() const
{
    QList<qsizetype> indices;
    for (const auto &[index, score] : m_scorer->rankingOfCleaned(m_candidates.cleaned)) {
        if (score <= 0)
            break; // from here on, all lack a character
        indices.append(index);
    }
    return indices;
}

QList<qsizetype> QuickOpenModel::containing() const
{
    QList<qsizetype> indices = all();
    indices.removeIf([this](qsizetype index) {
        return !m_candidates.texts.at(index).contains(m_typed, Qt::CaseInsensitive);
    });
    return indices;
}

int QuickOpenModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

QVariant QuickOpenModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const qsizetype candidate = m_shown.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return m_candidates.texts.at(candidate);
    case TrackIdRole:
        return m_candidates.trackIds.at(candidate);
    case ZEVHighlightDelegate::RangesRole:
        return QVariant::fromValue(ranges(m_candidates.texts.at(candidate)));
    default:
        return {};
    }
}

QList<ZEVRange> QuickOpenModel::ranges(const QString &text) const
{
    if (m_typed.isEmpty())
        return {};
    if (m_scorer)
        return m_scorer->match(text).ranges;
    return {{text.indexOf(m_typed, 0, Qt::CaseInsensitive), m_typed.size()}};
}
