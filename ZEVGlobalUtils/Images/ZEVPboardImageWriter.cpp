// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/ZEVPboardImageWriter.h>

#include <ZEVGlobalUtils/Images/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/Images/ZEVImageFile_p.h>
#include <ZEVGlobalUtils/Images/ZEVImageIdentification.h>
#include <ZEVGlobalUtils/Platform/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/ZEVUniformType.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// What stands behind the last dot, unless it is more of the title ("Mr. Blue"), or all of the name.
bool hasExtension(const QString &name)
{
    const QString suffix = QFileInfo(name).suffix();
    return !suffix.isEmpty() && !suffix.contains(u' ') && !QFileInfo(name).completeBaseName().isEmpty();
}

/// Kept: the dot is written even where there is no extension.
QString numberedPath(const QString &path, int number)
{
    const QFileInfo file(path);
    const QString name = file.completeBaseName() + u' ' + QString::number(number) + u'.' + file.suffix();
    return QDir(file.path()).filePath(name);
}

/// Takes the first free name of those from 2 to 999; \a path becomes that of the file.
std::optional<ZEVError> writeUnderFreeName(const QByteArray &data, QString &path)
{
    const QString wanted = path;
    auto error = ZEVImageFile::writeWithoutOverwriting(data, path);
    for (int number = 2; number <= 999 && error && error->code() == ZEVImageFile::WriteFileExistsError;
         ++number) {
        path = numberedPath(wanted, number);
        error = ZEVImageFile::writeWithoutOverwriting(data, path);
    }
    return error;
}

void presentLater(const ZEVError &error)
{
    if (QCoreApplication *const application = QCoreApplication::instance())
        QMetaObject::invokeMethod(
            application, [error] { ZEVErrorPresentation::presentError(error); }, Qt::QueuedConnection);
}

} // namespace

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
    return type == PromisedFileURLType ? writePromisedFile() : QByteArray();
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

QString ZEVPboardImageWriter::promisedFileName() const { return withExtension(m_fileName); }

QString ZEVPboardImageWriter::withExtension(const QString &name) const
{
    if (hasExtension(name) || m_bitmapData.isNull())
        return name;
    const auto extension = ZEVDataBitmapData::bitmapDataImageFileExtention(m_bitmapData);
    return extension ? name + u'.' + *extension : name;
}

QByteArray ZEVPboardImageWriter::writePromisedFile() const
{
    const auto location = ZEVPasteboard::pasteLocation(m_pasteboardName);
    if (!location)
        return {};
    const QString name = location->fileName.isEmpty() ? promisedFileName() : location->fileName;
    QString path = QDir(location->folder.toLocalFile()).filePath(name);
    if (const auto error = writeUnderFreeName(m_bitmapData, path)) {
        presentLater(*error);
        return {};
    }
    return QUrl::fromLocalFile(path).toEncoded();
}
