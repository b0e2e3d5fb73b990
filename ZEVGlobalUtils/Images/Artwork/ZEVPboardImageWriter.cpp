// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileOperationAttempter.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVImageFile_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

using namespace Qt::StringLiterals;

void ZEVPboardImageWriter::setFileName(const QString &name)
{
    m_fileName = QString(name).replace(u'/', u':');
}

QStringList ZEVPboardImageWriter::writableTypesForPasteboard() const
{
    return {PromisedFileContentType.toString(), PromisedFileURLType.toString(),
            ZEVUniformType::Image.toString()};
}

QByteArray ZEVPboardImageWriter::pasteboardPropertyListForType(QStringView type) const
{
    if (ZEVUniformType::isEqual(type, ZEVUniformType::Image))
        return m_bitmapData;
    if (type == PromisedFileContentType)
        return ZEVUniformType::Image.toUtf8(); // kept: the generic type, whatever the artwork is
    const auto location = type == PromisedFileURLType ? ZEVPasteboard::pasteLocation(m_pasteboardName)
                                                      : std::optional<ZEVPasteboard::PasteLocation>();
    return location ? writePromisedFile(*location) : QByteArray();
}

/// Strictly identified, so that no program is told of a JPEG which is none.
QStringList ZEVPboardImageWriter::mimeTypesForType(QStringView type) const
{
    QStringList types = ZEVUniformType::mimeTypes(type);
    const QString own = ZEVImageIdentification::identificationWithData(m_bitmapData).mimeType();
    if (ZEVUniformType::isEqual(type, ZEVUniformType::Image) && !own.isEmpty())
        types.prepend(own);
    return types;
}

/// No longer than a file system takes, so that the receiver finds it under the name that it was promised.
QString ZEVPboardImageWriter::promisedFileName() const
{
    return QString::fromUtf8(ZEVFileName(withExtension(m_fileName).toUtf8()).fitting());
}

QString ZEVPboardImageWriter::withExtension(const QString &name) const
{
    if (!ZEVFileName(name.toUtf8()).extension.isEmpty() || m_bitmapData.isNull())
        return name;
    const QString extension = ZEVImageFile::extension(m_bitmapData);
    return extension.isEmpty() ? name : name + u'.' + extension;
}

QByteArray ZEVPboardImageWriter::writePromisedFile(const ZEVPasteboard::PasteLocation &location) const
{
    if (m_bitmapData.isNull())
        return {};
    const QString name = location.fileName.isEmpty() ? promisedFileName() : location.fileName;
    const QUrl target = ZEVFileURL::byAppendingPathComponent(location.folder, name.toUtf8());
    const auto write = [this](const QUrl &, const QUrl &candidate, ZEVError *error) {
        return ZEVPlainFileManager::defaultManager()->createFileAtURL(candidate, m_bitmapData, error);
    };
    ZEVError error;
    QUrl written = target;
    if (write(target, target, &error)
        || (ZEVErrorFileErrorHelpers::ZEV_isFileWriteFileExistsError(error)
            && ZEVURLFileOperationAttempter::attemptFWFERecoveryWithError(target, &written, write, &error)))
        return written.toEncoded();
    ZEVErrorPresentation::presentErrorLater(error);
    return {};
}
