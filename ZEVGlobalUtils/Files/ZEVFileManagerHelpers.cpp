// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVFileManagerHelpers.h>

#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr int IconSize = 16; ///< points
constexpr QSize AttachmentSize(20, 16);
constexpr QRectF BoundsFromBaseline(0, -3, 20, 16);

/// Read-only folders that were copied into it, or replaced, go too.
void removeTemporaryFolder(const QUrl &folder)
{
    if (const ZEVFileFailure failure = ZEVFileOperations::removeTemporary(ZEVFileURL::path(folder)))
        qCWarning(zevLog).noquote() << u"Failed to remove temp directory after atomic copy: %1"_s.arg(
            ZEVFileErrors::error(failure, ZEVFileErrors::Operation::Change, folder).localizedDescription());
}

QImage attachmentImage(const QImage &icon)
{
    const qreal ratio = std::max(icon.devicePixelRatio(), qApp->devicePixelRatio());
    QImage image(AttachmentSize * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(0, 0, IconSize, IconSize), icon);
    return image;
}

QImage desktopIcon(const ZEVPlainFileManager &fileManager, const QUrl &url)
{
    const QIcon icon =
        fileManager.fileExistsAtURL(url) ? ZEVWorkspace::iconForFile(url) : ZEVWorkspace::folderIcon();
    return icon.pixmap(QSize(IconSize, IconSize), qApp->devicePixelRatio()).toImage();
}

/// Another one may stand in the application's own tables.
QString separator()
{
    constexpr const char *Separator = " \u2014\u00A0";
    return QCoreApplication::translate("", Separator);
}

} // namespace

bool ZEVFileManagerHelpers::isEmptyDirectoryAtURL(ZEVPlainFileManager &, const QUrl &url)
{
    if (!ZEVURLFileAccess::isAccessibleForReading(url))
        return false;
    std::error_code error;
    const std::filesystem::directory_iterator entries(ZEVFileURL::path(url).toStdString(), error);
    for (auto entry = begin(entries); entry != end(entries) && !error; entry.increment(error)) {
        if (!entry->path().filename().native().starts_with('.'))
            return false;
    }
    return true;
}

QList<QUrl> ZEVFileManagerHelpers::filteredArrayOfExistingURLs(ZEVPlainFileManager &fileManager,
                                                               const QList<QUrl> &urls,
                                                               bool restrictToDirectories)
{
    QList<QUrl> existing;
    for (const QUrl &url : urls) {
        bool isDirectory = false;
        if (fileManager.fileExistsAtURL(url, &isDirectory) && (isDirectory || !restrictToDirectories))
            existing.append(url);
    }
    return existing;
}

bool ZEVFileManagerHelpers::atomicCopyItemAtURL(ZEVPlainFileManager &fileManager, const QUrl &srcURL,
                                                const QUrl &dstURL, ZEVError *error)
{
    // Once the copy is in the destination's place, a source that lay in there would be gone with the rest.
    const ZEVFileFailure obstacle =
        ZEVFileOperations::obstacleToReplacing(ZEVFileURL::path(srcURL), ZEVFileURL::path(dstURL));
    if (obstacle) {
        if (error)
            *error = ZEVFileErrors::error(obstacle, ZEVFileErrors::Operation::Copy, srcURL, dstURL);
        return false;
    }
    const auto folder = fileManager.itemReplacementDirectory(dstURL, error);
    if (!folder)
        return false;
    const QUrl copy = ZEVFileURL::byAppendingPathComponent(*folder, ZEVFileURL::lastPathComponent(dstURL));
    const bool isDone = fileManager.copyItemAtURL(srcURL, copy, error)
        && fileManager.replaceItemAtURL(dstURL, copy, nullptr, error);
    removeTemporaryFolder(*folder);
    return isDone;
}

ZEVAttributedString ZEVFileManagerHelpers::attributedTitleForFileName(const QString &fileName, QImage &icon)
{
    if (!icon.isNull())
        icon.setDevicePixelRatio(qreal(icon.width()) / IconSize);
    QTextImageFormat format;
    format.setWidth(AttachmentSize.width());
    format.setHeight(AttachmentSize.height());
    format.setProperty(AttachmentImage, attachmentImage(icon));
    format.setProperty(AttachmentBounds, BoundsFromBaseline);
    ZEVAttributedString title;
    title.append(QString(QChar::ObjectReplacementCharacter), format);
    title.append(fileName);
    return title;
}

ZEVAttributedString ZEVFileManagerHelpers::uniqueDisplayName(ZEVPlainFileManager &fileManager, bool ambiguous,
                                                             const QUrl &url, QImage icon)
{
    const auto titleOf = [&](const QUrl &item, QImage image) {
        if (image.isNull())
            image = desktopIcon(fileManager, item);
        return attributedTitleForFileName(QString::fromUtf8(ZEVFileURL::lastPathComponent(item)), image);
    };
    ZEVAttributedString title = titleOf(url, std::move(icon));
    if (ambiguous) {
        title.append(separator());
        title.append(titleOf(ZEVFileURL::byDeletingLastPathComponent(url), {}));
    }
    return title;
}
