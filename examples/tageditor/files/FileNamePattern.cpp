// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/FileNamePattern.h>

#include <tageditor/tracks/TagValues.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestName = 255; ///< bytes

constexpr std::pair<QStringView, TrackField> Fields[]{
    {u"track", TrackField::Number},
    {u"title", TrackField::Title},
    {u"artist", TrackField::Artist},
    {u"album", TrackField::Album},
    {u"year", TrackField::Year},
    {u"genre", TrackField::Genre},
    {u"albumartist", TrackField::AlbumArtist},
    {u"composer", TrackField::Composer},
    {u"tracktotal", TrackField::TrackTotal},
    {u"disc", TrackField::Disc},
    {u"disctotal", TrackField::DiscTotal},
};

QString valueOf(TrackField field, const Track &track)
{
    const QString text = TagValues::joined(track.text(field)).simplified();
    return field == TrackField::Number && !text.isEmpty() ? text.rightJustified(2, u'0') : text;
}

/// Only what a separator begins or ends with, so that "-" in the midst of a name stays.
QString withoutLooseSeparators(const QString &name)
{
    static const QRegularExpression loose(u"^[\\s_-]+|[\\s_-]+$"_s);
    return QString(name).remove(loose);
}

QString filledIn(const QString &pattern, const Track &track)
{
    static const QRegularExpression placeholder(u"%(\\w*)%"_s);
    QString name;
    qsizetype end = 0;
    bool lacksText = false;
    for (auto match = placeholder.globalMatch(pattern); match.hasNext();) {
        const auto found = match.next();
        name += pattern.sliced(end, found.capturedStart() - end);
        end = found.capturedEnd();
        const auto *field =
            std::ranges::find(Fields, found.capturedView(1), &std::pair<QStringView, TrackField>::first);
        if (field != std::end(Fields)) {
            const QString value = valueOf(field->second, track);
            lacksText = lacksText || value.isEmpty();
            name += value;
        } else {
            name += found.capturedView(1).isEmpty() ? u"%"_s : found.captured();
        }
    }
    name += pattern.sliced(end);
    return lacksText ? withoutLooseSeparators(name) : name.trimmed();
}

/// What a file may be called, and what it is not lost to sight by.
QString tamed(QString name)
{
    for (QChar &character : name) {
        if (character == u'/')
            character = u'-';
        else if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    if (name.startsWith(u'.'))
        name.front() = u'_';
    return name;
}

QByteArray shortened(QString name, qsizetype size)
{
    while (name.toUtf8().size() > size)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    return name.toUtf8();
}

} // namespace

QStringList FileNamePattern::placeholders()
{
    QStringList placeholders;
    for (const auto &[name, field] : Fields)
        placeholders.append(u'%' + name.toString() + u'%');
    return placeholders;
}

QByteArray FileNamePattern::fileName(const QString &pattern, const Track &track)
{
    const QString name = tamed(filledIn(pattern, track));
    const QByteArray extension = QByteArray::fromStdString(track.path.extension().native());
    return name.isEmpty() ? QByteArray() : shortened(name, LongestName - extension.size()) + extension;
}
