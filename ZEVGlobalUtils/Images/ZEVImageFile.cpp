// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/ZEVImageFile_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr qint64 LargestFile = 256LL * 1024 * 1024;

qint64 codeOf(const QFileDevice &file, const QString &path)
{
    if (QFileInfo(path).isDir())
        return ZEVFileErrors::FileWriteFileExists;
    const bool isDenied =
        file.error() == QFileDevice::PermissionsError || !QFileInfo(QFileInfo(path).path()).isWritable();
    return isDenied ? ZEVFileErrors::FileWriteNoPermission : ZEVFileErrors::FileWriteUnknown;
}

} // namespace

QByteArray ZEVImageFile::read(const QString &path)
{
    // A pipe would block, and a device would never end.
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.size() > LargestFile || !file.open(QFile::ReadOnly))
        return {};
    return file.read(LargestFile);
}

ZEVError ZEVImageFile::writeError(qint64 code, const QString &path, const QString &reason)
{
    const QString text = ZEVGlobalHelper::localizedStringForKey(u"The image “%1” could not be written: %2.");
    return {ZEVError::CocoaErrorDomain,
            code,
            {{ZEVError::LocalizedDescriptionKey.toString(), text.arg(QFileInfo(path).fileName(), reason)}}};
}

std::optional<ZEVError> ZEVImageFile::writeAtomically(const QByteArray &data, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QFile::WriteOnly) && file.write(data) == data.size() && file.commit())
        return std::nullopt;
    return writeError(codeOf(file, path), path, file.errorString());
}
