// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkTransfer_p.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVCopiedArtwork_p.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPasteboardRawBitmapData.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageDecoder_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVFilePromiseReceiver_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeDatabase>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QString applicationIdentifier() { return QGuiApplication::desktopFileName(); }

/// An application without an identifier cannot tell what is its own.
bool isFromThisApplication(const ZEVPasteboard &pasteboard)
{
    const QString source = QString::fromUtf8(pasteboard.dataForType(ZEVCopiedArtwork::SourceType));
    return !source.isEmpty() && source == applicationIdentifier();
}

bool isShown(const QMimeType &type) { return ZEVImageDecoder::isDecodedMimeType(type.name()); }

bool isImageData(const QString &type)
{
    return ZEVUniformType::isEqual(type, ZEVUniformType::Image)
        || isShown(QMimeDatabase().mimeTypeForName(ZEVUniformType::mimeTypes(type).first()));
}

bool isImageFile(const QUrl &url)
{
    const auto path = ZEVLocalFile::path(url);
    return path && QFileInfo(*path).isFile() && isShown(QMimeDatabase().mimeTypeForFile(*path));
}

bool isImageName(const QString &name)
{
    return std::ranges::any_of(QMimeDatabase().mimeTypesForFileName(name), isShown);
}

/// A page of the size of the view, a point for a point.
QByteArray pdfOf(QWidget *view)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter page(&buffer);
    page.setPageSize(QPageSize(QSizeF(view->size()), QPageSize::Point, {}, QPageSize::ExactMatch));
    page.setPageMargins({});
    page.setResolution(72);
    QPainter painter(&page);
    view->render(&painter, {}, {}, QWidget::DrawChildren);
    painter.end();
    return buffer.data();
}

qsizetype numberOfFiles(const ZEVPasteboard &pasteboard)
{
    return std::ranges::count(pasteboard.URLs(), u"file"_s, [](const QUrl &url) { return url.scheme(); });
}

} // namespace

ZEVArtworkTransfer::ZEVArtworkTransfer(ZEVDragImageView *well)
    : QObject(well)
    , m_well(well)
    , m_importer(well)
{
}

bool ZEVArtworkTransfer::canRead(const ZEVPasteboard &pasteboard)
{
    if (std::ranges::any_of(pasteboard.types(), isImageData) || isImageFile(pasteboard.URL()))
        return true;
    const auto promises = ZEVFilePromiseReceiver::receiversFromPasteboard(pasteboard);
    return !promises.isEmpty() && isImageName(promises.first().fileName());
}

Qt::DropAction ZEVArtworkTransfer::operation(const QDropEvent &event)
{
    return event.possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::IgnoreAction;
}

Qt::DropAction ZEVArtworkTransfer::entered(const QDropEvent &event) const
{
    const ZEVPasteboard pasteboard(event.mimeData());
    const bool isWelcome = m_well->isEditable() && canRead(pasteboard) && numberOfFiles(pasteboard) < 2;
    return isWelcome ? operation(event) : Qt::IgnoreAction;
}

ZEVArtworkImporter::Apply ZEVArtworkTransfer::importedFrom(const QUrl &source)
{
    return [this, source](const auto &accepted) { Q_EMIT imported(accepted, source); };
}

bool ZEVArtworkTransfer::perform(const QDropEvent &event)
{
    const ZEVPasteboard pasteboard(event.mimeData());
    const QUrl source = pasteboard.URL();
    const quint64 import = m_importer.begin();
    QByteArray bytes = pasteboard.dataForType(ZEVUniformType::Image);
    if (bytes.isEmpty() && m_importer.readFile(import, source, importedFrom(source)))
        return true;
    if (bytes.isEmpty())
        bytes = ZEVPasteboardRawBitmapData::rawImageData(pasteboard);
    if (bytes.isEmpty())
        return m_importer.receivePromisedFile(import, pasteboard, importedFrom(source));
    m_importer.vet(import, bytes, importedFrom(source));
    return true;
}

QByteArray ZEVArtworkTransfer::dataForType(QStringView type) const
{
    if (m_well->imageView()->image().isNull())
        return {};
    if (ZEVUniformType::isEqual(type, ZEVUniformType::TIFF))
        return ZEVCopiedArtwork({}, m_well->imageDescription()->image()).pasteboardPropertyListForType(type);
    return ZEVUniformType::isEqual(type, u"com.adobe.pdf") ? pdfOf(m_well->imageView()) : QByteArray();
}

void ZEVArtworkTransfer::copy() const
{
    if (const auto artwork = m_well->imageDescription())
        ZEVPasteboard::generalPasteboard().writeObject(std::make_shared<ZEVCopiedArtwork>(
            artwork->bitmapData(), artwork->image(), applicationIdentifier()));
}

/// What was copied in this application has been vetted before.
void ZEVArtworkTransfer::paste()
{
    const ZEVPasteboard general = ZEVPasteboard::generalPasteboard();
    const QByteArray bytes = ZEVPasteboardRawBitmapData::rawImageData(general);
    if (bytes.isEmpty() || !canRead(general))
        return;
    const auto apply = [this](const auto &accepted) { Q_EMIT pasted(accepted); };
    if (isFromThisApplication(general))
        m_importer.take(m_importer.begin(), bytes, apply);
    else
        m_importer.vet(m_importer.begin(), bytes, apply);
}

void ZEVArtworkTransfer::browse()
{
    ZEVOpenPanel panel;
    panel.canChooseFiles = true;
    panel.allowedContentTypes = {ZEVUniformType::Image.toString()};
    panel.allowedFilesName = ZEVGlobalHelper::localizedStringForKey(u"Images");
    panel.directoryURL = m_well->browseURL();
    panel.window = m_well->window();
    const QPointer<ZEVArtworkTransfer> guard = this;
    if (panel.runModal() == ZEVOpenPanel::OKResponse && guard)
        m_importer.readFile(m_importer.begin(), panel.URL, importedFrom(panel.URL));
}

std::shared_ptr<ZEVPboardImageWriter> ZEVArtworkTransfer::writer() const
{
    const QByteArray bytes = m_well->imageDescription()->bitmapData();
    const auto delegate = m_well->delegate();
    const QString given =
        delegate ? delegate->exportNameForBitmapData(m_well, bytes).value_or(QString()) : QString();
    const QString name = given.isEmpty() ? ZEVGlobalHelper::localizedStringForKey(u"Image") : given;
    // Kept: "tiff" whatever it is, where the first byte says nothing.
    const auto extension = ZEVDataBitmapData::bitmapDataImageFileExtention(bytes);
    auto writer = std::make_shared<ZEVPboardImageWriter>();
    writer->setBitmapData(bytes);
    writer->setFileName(name + u'.' + extension.value_or(u"tiff"_s));
    return writer;
}
