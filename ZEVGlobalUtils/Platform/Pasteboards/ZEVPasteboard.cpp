// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardItem.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardWriting.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QMimeData>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

QHash<QString, ZEVPasteboard::PasteLocation> &pasteLocations()
{
    static QHash<QString, ZEVPasteboard::PasteLocation> locations;
    return locations;
}

/// Drawings (SVG) are no bitmaps.
bool isEncodedPicture(const QString &format)
{
    return format.startsWith(u"image/") && !format.contains(u"svg");
}

bool hasDescribedIdentifier(const QString &format)
{
    const QString identifier = ZEVUniformType::identifierForMimeType(format);
    return identifier != ZEVUniformType::WebP && identifier != ZEVUniformType::AVIF && identifier != format;
}

QStringList encodedPictures(const QMimeData &data)
{
    QStringList formats = data.formats();
    formats.removeIf([](const QString &format) { return !isEncodedPicture(format); });
    return formats;
}

QByteArray firstData(const QMimeData &data, const QStringList &formats)
{
    for (const QString &format : formats) {
        // A program that offers what it cannot give answers with nothing.
        if (QByteArray bytes = data.data(format); !bytes.isEmpty())
            return bytes;
    }
    return {};
}

/// Pixels that were never encoded: without loss.
QByteArray pngOfPixels(const QMimeData &data)
{
    const QImage image = encodedPictures(data).isEmpty() ? qvariant_cast<QImage>(data.imageData()) : QImage();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.isNull())
        image.save(&buffer, "PNG");
    return bytes;
}

QByteArray otherPicture(const QMimeData &data)
{
    const QStringList pictures = encodedPictures(data);
    return std::ranges::any_of(pictures, hasDescribedIdentifier) ? QByteArray() : firstData(data, pictures);
}

/// How browsers name a dragged link: address and title in lines of UTF-16.
QUrl browserLink(const QMimeData &data)
{
    const QString text = QStringDecoder(QStringDecoder::Utf16LE)(data.data(u"text/x-moz-url"_s));
    return QUrl(text.section(u'\n', 0, 0).trimmed());
}

} // namespace

ZEVPasteboard ZEVPasteboard::generalPasteboard() { return ZEVPasteboard(GeneralName); }

ZEVPasteboard::ZEVPasteboard(QStringView name)
    : m_name(name.toString())
{
}

ZEVPasteboard::ZEVPasteboard(const QMimeData *draggedData)
    : m_name(DragName.toString())
    , m_draggedData(draggedData)
{
}

const QMimeData *ZEVPasteboard::mimeData() const
{
    return m_name == GeneralName ? QGuiApplication::clipboard()->mimeData() : m_draggedData.data();
}

QStringList ZEVPasteboard::types() const
{
    const QMimeData *const data = mimeData();
    QStringList types;
    for (const QString &format : data ? data->formats() : QStringList())
        types.append(ZEVUniformType::identifierForMimeType(format));
    if (data && data->hasImage() && encodedPictures(*data).isEmpty())
        types.append(ZEVUniformType::PNG.toString());
    types.removeDuplicates();
    return types;
}

QByteArray ZEVPasteboard::dataForType(QStringView type) const
{
    const QMimeData *const data = mimeData();
    if (!data)
        return {};
    QByteArray bytes = firstData(*data, ZEVUniformType::mimeTypes(type) + QStringList(type.toString()));
    if (bytes.isEmpty() && ZEVUniformType::isEqual(type, ZEVUniformType::PNG))
        bytes = pngOfPixels(*data);
    if (bytes.isEmpty() && ZEVUniformType::isEqual(type, ZEVUniformType::Image))
        bytes = otherPicture(*data);
    return bytes.isEmpty() ? QByteArray() : bytes;
}

QList<QUrl> ZEVPasteboard::URLs() const
{
    const QMimeData *const data = mimeData();
    if (!data)
        return {};
    QList<QUrl> urls = data->urls();
    if (urls.isEmpty())
        urls.append(browserLink(*data));
    urls.removeIf([](const QUrl &url) { return !url.isValid() || url.isRelative(); });
    return urls;
}

QUrl ZEVPasteboard::URL() const { return URLs().value(0); }

void ZEVPasteboard::clearContents()
{
    if (m_name == GeneralName)
        QGuiApplication::clipboard()->clear();
}

bool ZEVPasteboard::writeObject(const std::shared_ptr<ZEVPasteboardWriting> &object)
{
    if (m_name != GeneralName)
        return false;
    QGuiApplication::clipboard()->setMimeData(new ZEVPasteboardItem(object, m_name));
    return true;
}

std::optional<ZEVPasteboard::PasteLocation> ZEVPasteboard::pasteLocation(const QString &pasteboardName)
{
    const auto found = pasteLocations().constFind(pasteboardName);
    return found == pasteLocations().constEnd() ? std::nullopt : std::optional(*found);
}

void ZEVPasteboard::setPasteLocation(const QString &pasteboardName,
                                     const std::optional<PasteLocation> &location)
{
    if (location)
        pasteLocations().insert(pasteboardName, *location);
    else
        pasteLocations().remove(pasteboardName);
}
