// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPasteboardRawBitmapData.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkImporter_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVImageDragging_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVViewAnimation_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFilePromiseReceiver_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QDropEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>
#include <QMouseEvent>
#include <QPropertyAnimation>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal HoveredOpacity = 0.55;

bool isReadableImage(const QMimeType &type)
{
    return QImageReader::supportedMimeTypes().contains(type.name().toLatin1());
}

bool isImageData(const QString &type)
{
    return ZEVUniformType::isEqual(type, ZEVUniformType::Image)
        || isReadableImage(QMimeDatabase().mimeTypeForName(ZEVUniformType::mimeTypes(type).first()));
}

bool isImageFile(const QUrl &url)
{
    const auto path = ZEVLocalFile::path(url);
    return path && QFileInfo(*path).isFile() && isReadableImage(QMimeDatabase().mimeTypeForFile(*path));
}

bool isImageName(const QString &name)
{
    return std::ranges::any_of(QMimeDatabase().mimeTypesForFileName(name), isReadableImage);
}

qsizetype numberOfFiles(const ZEVPasteboard &pasteboard)
{
    return std::ranges::count(pasteboard.URLs(), u"file"_s, [](const QUrl &url) { return url.scheme(); });
}

/// "Generic" is a copy, too.
Qt::DropAction operation(const QDropEvent &event)
{
    return event.possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::IgnoreAction;
}

void answer(QDropEvent *event, Qt::DropAction action)
{
    event->setDropAction(action);
    event->setAccepted(action != Qt::IgnoreAction);
}

} // namespace

bool ZEVDragImageView::canReadDataFromPasteboard(const ZEVPasteboard &pasteboard)
{
    if (std::ranges::any_of(pasteboard.types(), isImageData) || isImageFile(pasteboard.URL()))
        return true;
    const auto promises = ZEVFilePromiseReceiver::receiversFromPasteboard(pasteboard);
    return !promises.isEmpty() && isImageName(promises.first().fileName());
}

void ZEVDragImageView::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = ZEVImageDragging::pressedPoint(*event);
    event->setAccepted(m_pressedAt.has_value());
}

void ZEVDragImageView::mouseMoveEvent(QMouseEvent *event)
{
    const auto start = ZEVImageDragging::takeStart(m_pressedAt, *event);
    if (start && m_imageDescription && !m_imageView->image().isNull())
        ZEVImageDragging::dragOut(this, m_imageView, m_imageView->rect(), *start, pasteboardWriter());
}

std::shared_ptr<ZEVPboardImageWriter> ZEVDragImageView::pasteboardWriter()
{
    const QByteArray &bytes = m_imageDescription->bitmapData();
    const QString given =
        m_delegate ? m_delegate->exportNameForBitmapData(this, bytes).value_or(QString()) : QString();
    const QString name = given.isEmpty() ? ZEVGlobalHelper::localizedStringForKey(u"Image") : given;
    const auto extension = ZEVDataBitmapData::bitmapDataImageFileExtention(bytes);
    auto writer = std::make_shared<ZEVPboardImageWriter>();
    writer->setBitmapData(bytes);
    writer->setFileName(name + u'.' + extension.value_or(u"tiff"_s));
    return writer;
}

/// Without any animation, whatever was going on.
void ZEVDragImageView::setImageOpacity(qreal opacity)
{
    m_alphaAnimation->stop();
    m_alphaAnimationOut->stop();
    m_imageView->setOpacity(opacity);
}

Qt::DropAction ZEVDragImageView::draggingEntered(const QDropEvent &event)
{
    const ZEVPasteboard pasteboard(event.mimeData());
    const Qt::DropAction action = operation(event);
    const bool isWelcome = m_editable && action != Qt::IgnoreAction && canReadDataFromPasteboard(pasteboard);
    if (!isWelcome || numberOfFiles(pasteboard) >= 2)
        return Qt::IgnoreAction;
    m_dashView->setHighlighted(true);
    setImageOpacity(HoveredOpacity);
    return action;
}

void ZEVDragImageView::dragEnterEvent(QDragEnterEvent *event) { answer(event, draggingEntered(*event)); }
void ZEVDragImageView::dragMoveEvent(QDragMoveEvent *event) { answer(event, operation(*event)); }

void ZEVDragImageView::dragLeaveEvent(QDragLeaveEvent *event)
{
    setImageOpacity(1);
    m_dashView->setHighlighted(false);
    QWidget::dragLeaveEvent(event);
}

void ZEVDragImageView::dropEvent(QDropEvent *event)
{
    const bool isTaken = prepareForDragOperation(*event) && performDragOperation(*event);
    answer(event, isTaken ? Qt::CopyAction : Qt::IgnoreAction);
    draggingEnded();
}

void ZEVDragImageView::draggingEnded()
{
    ZEVViewAnimation::animateTo(*m_alphaAnimationOut, 1.0, ZEVViewAnimation::DefaultSeconds,
                                ZEVViewAnimation::defaultCurve());
    m_dashView->setHighlighted(false);
}

bool ZEVDragImageView::prepareForDragOperation(const QDropEvent &event)
{
    m_dashView->setHighlighted(false);
    return m_editable && canReadDataFromPasteboard(ZEVPasteboard(event.mimeData()));
}

/// Everything is taken here and now: on Wayland the data of a drop does not outlive its event.
bool ZEVDragImageView::performDragOperation(const QDropEvent &event)
{
    if (event.source() == this)
        return true;
    const ZEVPasteboard pasteboard(event.mimeData());
    const QUrl source = pasteboard.URL();
    const quint64 import = m_importer->begin();
    const auto apply = [this, source](const QByteArray &accepted) { showImported(accepted, source); };
    QByteArray bytes = pasteboard.dataForType(ZEVUniformType::Image);
    if (bytes.isEmpty() && m_importer->readFile(import, source, apply))
        return true;
    if (bytes.isEmpty())
        bytes = ZEVPasteboardRawBitmapData::rawImageData(pasteboard);
    if (bytes.isEmpty())
        return m_importer->receivePromisedFile(import, pasteboard, apply);
    QMetaObject::invokeMethod(
        m_importer, [=, this] { m_importer->vet(import, bytes, apply); }, Qt::QueuedConnection);
    return true;
}
