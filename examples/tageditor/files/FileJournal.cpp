// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/files/FileJournal.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString encoded(const QUrl &url) { return QString::fromLatin1(url.toEncoded()); }

QUrl decoded(const QJsonValue &value) { return QUrl::fromEncoded(value.toString().toLatin1()); }

QByteArray line(const FileChange &change)
{
    return QJsonDocument({{u"source"_s, encoded(change.source)},
                          {u"destination"_s, encoded(change.destination)},
                          {u"replaced"_s, encoded(change.replaced)},
                          {u"isCopy"_s, change.isCopy},
                          {u"isTrashed"_s, change.isTrashed},
                          {u"madeFolder"_s, encoded(change.madeFolder)}})
               .toJson(QJsonDocument::Compact)
        + '\n';
}

/// Nil for a line that was not written to its end.
std::optional<FileChange> change(const QByteArray &line)
{
    const QJsonObject fields = QJsonDocument::fromJson(line).object();
    const FileChange change{decoded(fields[u"source"]),
                            decoded(fields[u"destination"]),
                            decoded(fields[u"replaced"]),
                            fields[u"isCopy"].toBool(),
                            -1,
                            fields[u"isTrashed"].toBool(),
                            decoded(fields[u"madeFolder"])};
    const bool isWhole = change.source.isLocalFile() && change.destination.isLocalFile();
    return isWhole ? std::optional(change) : std::nullopt;
}

} // namespace

FileJournal::FileJournal(const QString &path)
    : m_path(path)
{
}

QString FileJournal::standardPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/file-changes.jsonl"_s;
}

bool FileJournal::isEmpty() const { return QFileInfo(m_path).size() == 0; }

QList<FileChange> FileJournal::changes() const
{
    QList<FileChange> changes;
    QFile file(m_path);
    if (!file.open(QFile::ReadOnly))
        return changes;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (const auto found = change(line))
            changes.append(*found);
    }
    return changes;
}

void FileJournal::begin() const
{
    QDir().mkpath(QFileInfo(m_path).path());
    QFile::remove(m_path);
}

bool FileJournal::append(const FileChange &change) const
{
    QFile file(m_path);
    return file.open(QFile::WriteOnly | QFile::Append) && file.write(line(change)) > 0 && file.flush();
}
