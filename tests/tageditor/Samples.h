// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/tracks/Track.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// The shipped sample files, and copies of them to spoil.
namespace Samples {

inline QString folder() { return QStringLiteral(ZEV_SOURCE_DIR "/examples/tageditor/sample"); }

inline std::filesystem::path path(const QString &name)
{
    return QString(folder() + u'/' + name).toStdString();
}

/// One file of each kind that the editor writes: samples, and the bare ones beside this header.
inline QStringList ofAllKinds()
{
    QStringList names{QStringLiteral("Harbour/01 Track 12.mp3"), QStringLiteral("Nordwind/06 Gruesse.flac"),
                      QStringLiteral("Minato/11 Yoru.ogg"), QStringLiteral("Track 7.m4a")};
    for (const char *kind : {"opus", "wav", "aiff", "wv", "ape", "mpc", "wma"})
        names.append(QStringLiteral("formats/a.") + QLatin1StringView(kind));
    return names;
}

/// Copies the first \a size bytes of a sample, or all of it.
inline bool copy(const QString &name, const QString &target, qint64 size = -1)
{
    const bool isBare = name.startsWith(u"formats/");
    QFile source((isBare ? QStringLiteral(ZEV_SOURCE_DIR "/tests/tageditor") : folder()) + u'/' + name);
    QFile copy(target);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return false;
    const QByteArray bytes = size < 0 ? source.readAll() : source.read(size);
    return copy.write(bytes) == bytes.size();
}

/// A track that no file stands behind.
inline Track track(const QStringList &fields)
{
    Track track;
    for (qsizetype n = 0; n < fields.size(); ++n)
        track.fields.at(size_t(n)) = fields.at(n);
    return track;
}

} // namespace Samples
