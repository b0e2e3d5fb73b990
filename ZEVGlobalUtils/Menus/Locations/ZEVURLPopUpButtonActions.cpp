// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVUTTypeFromExtensionOrIdentifier.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList contentTypes(const QStringList &extensionsOrIdentifiers)
{
    QStringList types;
    for (const QString &entry : extensionsOrIdentifiers) {
        if (const auto type = ZEVUTTypeFromExtensionOrIdentifier(entry))
            types.append(*type);
    }
    return types;
}

/// Nil where there is no such file on this machine.
std::optional<QString> contentType(const QUrl &url)
{
    const QFileInfo file(QFile::decodeName(ZEVFileURL::path(url)));
    if (!url.isLocalFile() || !file.exists())
        return std::nullopt;
    return QMimeDatabase().mimeTypeForFile(file).name();
}

} // namespace

void ZEVURLPopUpButton::selectURL(QAction *sender)
{
    selectByUser(sender ? ZEVMenuItem::representedObject(sender).toUrl() : QUrl());
}

void ZEVURLPopUpButton::selectByUser(const QUrl &url)
{
    const QPointer guard(this);
    setURL(url);
    if (guard)
        notifyDelegateOfURLSelection();
}

void ZEVURLPopUpButton::notifyDelegateOfURLSelection()
{
    if (m_delegate)
        m_delegate->didSelectURL(this, m_url);
}

void ZEVURLPopUpButton::browse(QAction *)
{
    ZEVOpenPanel panel;
    panel.canChooseFiles = true;
    if (m_allowedFileTypes)
        panel.allowedContentTypes = contentTypes(*m_allowedFileTypes);
    panel.prompt = ZEVGlobalHelper::localizedStringForKey(u"Choose"_s);
    if (m_delegate)
        m_delegate->willDisplayOpenPanel(this, panel);
    const QPointer guard(this);
    const int response = panel.runModal();
    if (!guard)
        return;
    if (response != ZEVOpenPanel::OKResponse) {
        QAction *item = itemForURL(m_url);
        selectItem(item ? item : m_noneItem);
        return;
    }
    selectByUser(panel.URL);
}

Qt::DropAction ZEVURLPopUpButton::draggingEntered(const QMimeData *mimeData) const
{
    const QUrl url = ZEVPasteboard(mimeData).URL();
    if (!url.isValid())
        return Qt::IgnoreAction;
    if (!m_allowedFileTypes)
        return Qt::CopyAction; // kept: of whatever machine
    const auto type = contentType(url);
    const auto isAllowed = [&](const QString &allowed) { return ZEVUniformType::conformsTo(*type, allowed); };
    return type && std::ranges::any_of(contentTypes(*m_allowedFileTypes), isAllowed) ? Qt::CopyAction
                                                                                     : Qt::IgnoreAction;
}

bool ZEVURLPopUpButton::performDragOperation(const QMimeData *mimeData)
{
    // A link into the web, say, is no choice of a location, and takes none away.
    const QUrl dropped = ZEVFileReference::fileReferenceURL(ZEVPasteboard(mimeData).URL());
    if (!dropped.isValid())
        return false;
    QMetaObject::invokeMethod(this, &ZEVURLPopUpButton::notifyDelegateOfURLSelection, Qt::QueuedConnection);
    setURL(dropped);
    return true;
}

void ZEVURLPopUpButton::dragEnterEvent(QDragEnterEvent *event)
{
    if (draggingEntered(event->mimeData()) == Qt::IgnoreAction
        || !(event->possibleActions() & Qt::CopyAction))
        return;
    event->setDropAction(Qt::CopyAction); // a move would take the dropped item away
    event->accept();
}

void ZEVURLPopUpButton::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(performDragOperation(event->mimeData())); // after which the button may be gone
}
