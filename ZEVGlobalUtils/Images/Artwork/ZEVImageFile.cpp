// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageFile_p.h>

#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVWholeFile_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 LargestFile = 256LL * 1024 * 1024;

qint64 codeOf(QFileDevice::FileError error, const QString &path)
{
    if (QFileInfo(path).isDir())
        return ZEVFileErrors::FileWriteFileExists;
    const bool isDenied =
        error == QFileDevice::PermissionsError || !QFileInfo(QFileInfo(path).path()).isWritable();
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
    const QByteArray bytes = file.read(LargestFile);
    return bytes.isNull() && file.error() == QFile::NoError ? ""_ba : bytes;
}

QString ZEVImageFile::extension(const QByteArray &data)
{
    const auto byFirstByte = ZEVDataBitmapData::bitmapDataImageFileExtention(data);
    return byFirstByte.value_or(ZEVImageIdentification::identificationWithData(data).fileExtension());
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
    if (const auto failure = ZEVWholeFile::write(path, data))
        return writeError(codeOf(failure->error, path), path, failure->reason);
    return std::nullopt;
}
