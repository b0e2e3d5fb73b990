// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/FileNamePattern.h>

#include <tageditor/tracks/TagValues.h>

#include <QRegularExpression>
#include <QSet>
#include <QStorageInfo>

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

/// A doubled percent sign, too.
QRegularExpression placeholders()
{
    QStringList names;
    for (const auto &field : Fields) {
        QString name;
        for (const QChar character : field.first)
            name += character + u" *"_s;
        names.append(name);
    }
    return QRegularExpression(u"%("_s + names.join(u'|') + u"|)%"_s,
                              QRegularExpression::CaseInsensitiveOption);
}

QString filledIn(const QString &pattern, const Track &track)
{
    static const QRegularExpression placeholder = placeholders();
    QString name;
    qsizetype end = 0;
    bool lacksText = false;
    for (auto match = placeholder.globalMatch(pattern); match.hasNext();) {
        const auto found = match.next();
        name += pattern.sliced(end, found.capturedStart() - end);
        end = found.capturedEnd();
        const QString key = found.captured(1).toLower().remove(u' ');
        const auto *field = std::ranges::find(Fields, key, &std::pair<QStringView, TrackField>::first);
        if (field != std::end(Fields)) {
            const QString value = valueOf(field->second, track);
            lacksText = lacksText || value.isEmpty();
            name += value;
        } else {
            name += u'%';
        }
    }
    name += pattern.sliced(end);
    return lacksText ? withoutLooseSeparators(name) : name.trimmed();
}

/// What a file may be called, and what it is not lost to sight by.
QString tamed(QString name, FileNamePattern::Rules rules)
{
    const bool isWindows = rules == FileNamePattern::Rules::Windows;
    for (QChar &character : name) {
        if (character == u'/' || (isWindows && u"<>:\"\\|?*"_s.contains(character)))
            character = u'-';
        else if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    while (isWindows && (name.endsWith(u'.') || name.endsWith(u' ')))
        name.chop(1);
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

FileNamePattern::Rules FileNamePattern::rulesIn(const QString &folder)
{
    static const QSet<QByteArray> windows{"vfat",  "msdos",   "exfat", "ntfs",
                                          "ntfs3", "fuseblk", "cifs",  "smb3"};
    return windows.contains(QStorageInfo(folder).fileSystemType()) ? Rules::Windows : Rules::Unix;
}

QByteArray FileNamePattern::fileName(const QString &pattern, const Track &track, Rules rules)
{
    const QByteArray extension = QByteArray::fromStdString(track.path.extension().native());
    QStringList parts = pattern.split(u'/');
    const QString name = tamed(filledIn(parts.takeLast(), track), rules);
    if (name.isEmpty())
        return {};
    QByteArray path;
    for (const QString &part : std::as_const(parts)) {
        if (const QString folder = tamed(filledIn(part, track), rules); !folder.isEmpty())
            path += shortened(folder, LongestName) + '/';
    }
    return path + shortened(name, LongestName - extension.size()) + extension;
}
