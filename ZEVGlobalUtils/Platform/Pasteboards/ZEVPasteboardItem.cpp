// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardItem.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDirectSave_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboardWriting.h>

#include <QDrag>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Bytes = u"application/octet-stream"_s;

bool isPromise(QStringView type)
{
    return type == ZEVPasteboardWriting::PromisedFileURLType
        || type == ZEVPasteboardWriting::PromisedFileContentType;
}

/// A folder (0700) of its own for every promise, so that none has to take another name. The receiver copies
/// the file at some time after the drop, so all of them stay until the process ends.
QString newPrivateFolder()
{
    static const QTemporaryDir all;
    QTemporaryDir folder(all.filePath(u"XXXXXX"_s));
    folder.setAutoRemove(false);
    return folder.path();
}

} // namespace

ZEVPasteboardItem::ZEVPasteboardItem(std::shared_ptr<ZEVPasteboardWriting> object,
                                     const QString &pasteboardName)
    : m_object(std::move(object))
    , m_pasteboardName(pasteboardName)
{
}

bool ZEVPasteboardItem::usesDirectSave() const
{
    return m_pasteboardName == ZEVPasteboard::DragName && ZEVDirectSave::isAvailable();
}

/// Kept apart: most file managers that know the protocol prefer an address where they are offered one.
QString ZEVPasteboardItem::promiseMimeType() const
{
    return usesDirectSave() ? ZEVDirectSave::MimeType.toString() : u"text/uri-list"_s;
}

QStringList ZEVPasteboardItem::formats() const
{
    QStringList formats;
    for (const QString &type : m_object->writableTypesForPasteboard()) {
        if (!isPromise(type))
            formats += m_object->mimeTypesForType(type);
        else if (type == ZEVPasteboardWriting::PromisedFileURLType)
            formats += promiseMimeType();
    }
    return formats;
}

/// Plain bytes are not announced, since many receivers would take them and never ask for the file; one that has been
/// answered that it must make the file itself finds them.
bool ZEVPasteboardItem::hasFormat(const QString &mimeType) const
{
    return formats().contains(mimeType) || (mimeType == Bytes && m_mustSaveItself);
}

/// Plain bytes are those of the first type that is no promise.
QString ZEVPasteboardItem::typeForMimeType(const QString &mimeType) const
{
    for (const QString &type : m_object->writableTypesForPasteboard()) {
        if (!isPromise(type) && (mimeType == Bytes || m_object->mimeTypesForType(type).contains(mimeType)))
            return type;
    }
    return {};
}

QVariant ZEVPasteboardItem::retrieveData(const QString &mimeType, QMetaType) const
{
    if (!hasFormat(mimeType))
        return {};
    if (mimeType == ZEVDirectSave::MimeType)
        return answerToDirectSave(ZEVDirectSave::takeAddress());
    if (mimeType == promiseMimeType())
        return fileInPrivateFolder();
    return m_object->pasteboardPropertyListForType(typeForMimeType(mimeType));
}

Qt::DropAction ZEVPasteboardItem::exec(QDrag *drag)
{
    drag->setMimeData(this);
    const QString name = m_object->promisedFileName();
    if (usesDirectSave() && !name.isEmpty())
        QTimer::singleShot(0, this, [name] { ZEVDirectSave::offer(name); }); // runs once the drag has begun
    return drag->exec(Qt::CopyAction);
}

QByteArray ZEVPasteboardItem::answerToDirectSave(const QByteArray &address) const
{
    const auto path = ZEVLocalFile::path(QUrl::fromEncoded(address));
    m_mustSaveItself = !path;
    if (!path)
        return "F"_ba;
    const QFileInfo file(*path);
    if (file.fileName().isEmpty())
        return "E"_ba;
    const ZEVPasteboard::PasteLocation location{QUrl::fromLocalFile(file.path()), file.fileName()};
    return m_object->writePromisedFile(location).isEmpty() ? "E"_ba : "S"_ba;
}

QByteArray ZEVPasteboardItem::fileInPrivateFolder() const
{
    if (m_privateFile.isEmpty())
        m_privateFile = m_object->writePromisedFile({QUrl::fromLocalFile(newPrivateFolder()), {}});
    return m_privateFile.isEmpty() ? QByteArray() : m_privateFile + "\r\n";
}
