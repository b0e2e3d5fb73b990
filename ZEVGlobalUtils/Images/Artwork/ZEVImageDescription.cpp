// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVCopiedArtwork_p.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVImageFile_p.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPanel.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageDecoder_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPrivateFolder_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVDataMD5.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ByteSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ResolutionTransformer.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString previewFolder() { return ZEVImageDescription::quickLookTemporaryDirectoryURL(false).toLocalFile(); }

/// The bare digest where no extension is known.
QString previewFileName(const QByteArray &data)
{
    const QString extension = ZEVImageFile::extension(data);
    return ZEVDataMD5::MD5Hash(data) + (extension.isEmpty() ? QString() : u'.' + extension);
}

/// Makes sure of the file. Nobody else may have put a folder, or a link to one, in the place of ours.
std::optional<ZEVError> writePreview(const QByteArray &data, const QString &path)
{
    const QString folder = ZEVImageDescription::quickLookTemporaryDirectoryURL(true).toLocalFile();
    if (!ZEVPrivateFolder::isPrivate(folder))
        return ZEVImageFile::writeError(ZEVFileErrors::FileWriteNoPermission, path, folder);
    if (QFileInfo(path).isSymLink())
        QFile::remove(path); // written through, it would change a file elsewhere
    if (ZEVImageFile::read(path) == data && QFileInfo::exists(path))
        return std::nullopt;
    return ZEVImageFile::writeAtomically(data, path);
}

/// Kept: that something is already there is swallowed without a word.
void presentOnMainThread(const ZEVError &error)
{
    if (error.code() != ZEVFileErrors::FileWriteFileExists)
        ZEVErrorPresentation::presentErrorLater(error);
}

QString remarkOn(const ZEVImageDecoder::Picture &picture, const QByteArray &data)
{
    using ZEVImageDecoder::Outcome;
    switch (picture.outcome) {
    case Outcome::Shown:
        return picture.isAnimated ? ZEVGlobalHelper::localizedStringForKey(u"animated") : QString();
    case Outcome::NoImage:
        return ZEVGlobalHelper::localizedStringForKey(u"no known image format");
    case Outcome::NoDecoder:
        return ZEVGlobalHelper::localizedStringForKey(u"no decoder for %1")
            .arg(ZEVImageIdentification::identificationWithData(data).formatName());
    case Outcome::Damaged:
        return ZEVGlobalHelper::localizedStringForKey(u"damaged");
    case Outcome::TooLarge:
        break;
    }
    return ZEVGlobalHelper::localizedStringForKey(u"too large to be shown");
}

} // namespace

ZEVImageDescription::ZEVImageDescription(const QByteArray &bitmapData, QSize room)
    : m_bitmapData(bitmapData)
    , m_type(ZEVDataBitmapData::bitmapImageType(bitmapData))
{
    const ZEVImageDecoder::Picture picture = ZEVImageDecoder::pictureWithData(bitmapData, room);
    m_isShown = picture.outcome == ZEVImageDecoder::Outcome::Shown;
    (picture.isForRoom ? m_imageForRoom : m_image) = picture.image;
    m_room = picture.isForRoom ? room : QSize();
    m_size = picture.storedSize;
    m_shownSize = picture.shownSize;
    m_remark = remarkOn(picture, bitmapData);
    m_dimensions = ResolutionTransformer().transformedValue(m_size).toString();
}

const QImage &ZEVImageDescription::image() const
{
    const QMutexLocker lock(&m_imageLock);
    if (m_image.isNull() && m_isShown)
        m_image = ZEVImageDecoder::pictureWithData(m_bitmapData).image;
    return m_image;
}

QImage ZEVImageDescription::imageScaledToFitSize(QSizeF size, qreal devicePixelRatio) const
{
    const QSizeF pixels = size * devicePixelRatio;
    const bool isEnough = pixels.width() <= m_room.width() && pixels.height() <= m_room.height();
    return m_isShown
        ? ZEVImageCrop::imageScaledToFitSize(isEnough ? m_imageForRoom : image(), size, devicePixelRatio)
        : QImage();
}

QUrl ZEVImageDescription::originURL() const
{
    const QMutexLocker lock(&m_originLock);
    return m_originURL;
}

void ZEVImageDescription::setOriginURL(const QUrl &url)
{
    const QMutexLocker lock(&m_originLock);
    m_originURL = url;
}

QString ZEVImageDescription::imageDescription() const
{
    const QString bytes = ByteSizeTransformer().transformedValue(byteSize()).toString();
    return QStringList{m_dimensions, m_type, bytes}.join(u", ");
}

void ZEVImageDescription::placeOnGeneralPasteboard() const
{
    ZEVPasteboard::generalPasteboard().writeObject(std::make_shared<ZEVCopiedArtwork>(m_bitmapData, m_image));
}

QUrl ZEVImageDescription::previewItemURL() const
{
    if (!ZEVPreviewPanel::sharedPreviewPanelIsVisible())
        return {};
    const QString path = QDir(previewFolder()).filePath(previewFileName(m_bitmapData));
    if (const auto error = writePreview(m_bitmapData, path)) {
        presentOnMainThread(*error);
        return {};
    }
    return QUrl::fromLocalFile(path);
}

std::optional<QString> ZEVImageDescription::previewItemTitle() const
{
    return ZEVPreviewPanel::sharedPreviewPanelIsVisible() ? std::optional(imageDescription()) : std::nullopt;
}

/// The runtime directory (XDG Base Directory Specification) is the user's alone, which /tmp is not.
QUrl ZEVImageDescription::quickLookTemporaryDirectoryURL(bool create)
{
    const QString path =
        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u"/artwork_cache";
    if (create)
        ZEVPrivateFolder::make(path);
    return QUrl::fromLocalFile(path);
}

void ZEVImageDescription::cleanupTemporaryDirectory()
{
    if (ZEVPrivateFolder::isPrivate(previewFolder()))
        QDir(previewFolder()).removeRecursively();
}
