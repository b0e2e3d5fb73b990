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

/// Copies the first \a size bytes of a sample, or all of it.
inline bool copy(const QString &name, const QString &target, qint64 size = -1)
{
    QFile source(folder() + u'/' + name);
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
