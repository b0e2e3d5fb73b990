// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TrackInfo.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <QFont>
#include <QTextDocument>

namespace {

QString toolTip(const Track &track, TrackField field)
{
    const QString path = displayedPath(track.path);
    if (!track.isReadable())
        return path + u'\n' + track.error;
    return field == TrackField::FileName ? path : track.text(field);
}

/// Tool tips guess at rich text, and what stands in a file's name or tags must never be taken for that.
QString plainToolTip(const QString &text)
{
    const QString lines = QString(text).replace(TagValues::Separator, u'\n');
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(lines, Qt::WhiteSpaceNormal);
}

QVariant factData(const Track &track, TrackFact fact, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case Qt::ToolTipRole: {
        const QString text = TrackInfo::text(track, fact);
        return role == Qt::ToolTipRole ? plainToolTip(text) : text;
    }
    case Qt::TextAlignmentRole:
        return TrackInfo::number(track, fact) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case TrackTableModel::IsUnreadableRole:
        return !track.isReadable();
    default:
        return {};
    }
}

QFont boldFont()
{
    QFont font;
    font.setBold(true);
    return font;
}

} // namespace

QString TrackTableModel::titleForField(TrackField field)
{
    switch (field) {
    case TrackField::FileName:
        return tr("File Name");
    case TrackField::Title:
        return tr("Title");
    case TrackField::Artist:
        return tr("Artist");
    case TrackField::Album:
        return tr("Album");
    case TrackField::Year:
        return tr("Year");
    case TrackField::Number:
        return tr("Track");
    case TrackField::Genre:
        return tr("Genre");
    case TrackField::Comment:
        return tr("Comment");
    case TrackField::AlbumArtist:
        return tr("Album Artist");
    case TrackField::Composer:
        return tr("Composer");
    case TrackField::TrackTotal:
        return tr("Tracks");
    case TrackField::Disc:
        return tr("Disc");
    case TrackField::DiscTotal:
        return tr("Discs");
    }
    return {};
}

QVariant TrackTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Track &track = this->track(index.row());
    if (!isField(index.column()))
        return factData(track, TrackFact(index.column() - TrackFieldCount), role);
    const TrackField field{index.column()};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return track.text(field);
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(track, field));
    case Qt::FontRole:
        return isChanged(index.row(), field) ? boldFont() : QVariant();
    case Qt::AccessibleDescriptionRole:
        return track.isReadable() ? isChanged(index.row(), field) ? tr("Changed, not saved") : QVariant()
                                  : QVariant(track.error);
    case ErrorRole:
        return track.error;
    case IsUnreadableRole:
        return !track.isReadable();
    default:
        return {};
    }
}

QVariant TrackTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return isField(section) ? titleForField(TrackField(section))
                            : TrackInfo::title(TrackFact(section - TrackFieldCount));
}

Qt::ItemFlags TrackTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isEditable =
        index.isValid() && this->isEditable(track(index.row()), TrackField(index.column()));
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

bool TrackTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    Q_EMIT textEntered({track(index.row()).id, TrackField(index.column()), value.toString()});
    return true;
}
