// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFindPasteboard_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVWholeFile_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

#include <QDateTime>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int LockMilliseconds = 500;
constexpr qint64 LargestFile = 16LL * 1024 * 1024; // what is larger, nobody typed

const QString ChangeCountKey = u"changeCount"_s;
const QString StringKey = u"string"_s;

} // namespace

std::optional<ZEVFindPasteboard> ZEVFindPasteboard::findPasteboard()
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QDir folder(runtime + u"/zevglobalutils"_s);
    if (runtime.isEmpty() || !QDir().mkpath(folder.path()))
        return std::nullopt;
    return ZEVFindPasteboard(folder.filePath(u"find-pasteboard"_s));
}

ZEVFindPasteboard::Contents ZEVFindPasteboard::contents() const
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly) || file.size() > LargestFile)
        return {};
    const auto map = ZEVKeyedUnarchiver::unarchivedObjectOfClass<QVariantMap>(file.readAll());
    if (!map)
        return {};
    const QVariant string = map->value(StringKey);
    return {map->value(ChangeCountKey).toLongLong(),
            string.typeId() == QMetaType::QString ? std::optional(string.toString()) : std::nullopt};
}

bool ZEVFindPasteboard::setString(const std::optional<QString> &string)
{
    QLockFile lock(m_file + u".lock"_s);
    if (!lock.tryLock(LockMilliseconds))
        return false;
    // Also counts on where the last count was lost with the file.
    const qint64 count = qMax(contents().changeCount + 1, QDateTime::currentMSecsSinceEpoch());
    QVariantMap map{{ChangeCountKey, count}};
    if (string)
        map.insert(StringKey, string->isNull() ? u""_s : *string); // nil would be no text
    return !ZEVWholeFile::write(m_file, ZEVKeyedArchiver::archivedDataWithRootObject(map),
                                QFile::ReadOwner | QFile::WriteOwner);
}
