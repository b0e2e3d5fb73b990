// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVCopiedArtwork_p.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPasteboardRawBitmapData.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPanel.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkImporter_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVFocusFrame_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

QString applicationIdentifier() { return QGuiApplication::desktopFileName(); }

/// An application without an identifier cannot tell what is its own.
bool isFromThisApplication(const ZEVPasteboard &pasteboard)
{
    const QString source = QString::fromUtf8(pasteboard.dataForType(ZEVCopiedArtwork::SourceType));
    return !source.isEmpty() && source == applicationIdentifier();
}

} // namespace

void ZEVDragImageView::makeMenu()
{
    const std::pair<QString, QByteArray> items[] = {
        {ZEVGlobalHelper::localizedStringForKey(u"Cut"), "cut"},
        {ZEVGlobalHelper::localizedStringForKey(u"Copy"), "copy"},
        {ZEVGlobalHelper::localizedStringForKey(u"Paste"), "paste"},
        {{}, {}},
        {ZEVGlobalHelper::localizedStringForKey(u"Remove"), "clearImage"},
    };
    auto *const menu = new QMenu(this);
    for (const auto &[title, action] : items) {
        QAction *const item = menu->addAction(title);
        item->setSeparator(title.isEmpty());
        item->setData(action);
    }
    connect(menu, &QMenu::aboutToShow, this, &ZEVDragImageView::validateMenu);
    connect(menu, &QMenu::triggered, this,
            [this](const QAction *item) { perform(item->data().toByteArray()); });
    m_imageView->setMenu(menu);
}

QMenu *ZEVDragImageView::menu() const { return m_imageView->menu(); }
void ZEVDragImageView::setMenu(QMenu *menu) { m_imageView->setMenu(menu); }

void ZEVDragImageView::validateMenu()
{
    for (QAction *item : menu() ? menu()->actions() : QList<QAction *>())
        item->setEnabled(item->isSeparator() || validateUserInterfaceItem(item->data().toByteArray()));
}

bool ZEVDragImageView::validateUserInterfaceItem(const QByteArray &action) const
{
    const bool hasImage = !m_imageView->image().isNull();
    if (action == "copy")
        return hasImage;
    if (action == "browse")
        return m_editable;
    if (action == "cut" || action == "clearImage")
        return m_editable && hasImage;
    if (action == "paste")
        return m_editable && canReadDataFromPasteboard(ZEVPasteboard::generalPasteboard());
    return metaObject()->indexOfSlot(QByteArray(action + "()").constData()) >= 0;
}

bool ZEVDragImageView::perform(const QByteArray &action)
{
    return !action.isEmpty() && validateUserInterfaceItem(action)
        && QMetaObject::invokeMethod(this, action.constData());
}

QByteArray ZEVDragImageView::actionForKey(const QKeyEvent &event) const
{
    if (event.matches(QKeySequence::Copy))
        return "copy"_ba;
    if (event.matches(QKeySequence::Cut))
        return "cut"_ba;
    if (event.matches(QKeySequence::Paste))
        return "paste"_ba;
    if (event.modifiers() != Qt::NoModifier)
        return {};
    if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace)
        return "clearImage"_ba;
    if (event.key() == Qt::Key_Space)
        return "togglePreviewPanel"_ba;
    return event.key() == Qt::Key_Escape && m_importer->isReading() ? "cancelImports"_ba : QByteArray();
}

void ZEVDragImageView::keyPressEvent(QKeyEvent *event)
{
    if (!perform(actionForKey(*event)))
        QWidget::keyPressEvent(event);
}

void ZEVDragImageView::focusInEvent(QFocusEvent *event)
{
    m_focusFrame->show();
    QWidget::focusInEvent(event);
}

void ZEVDragImageView::focusOutEvent(QFocusEvent *event)
{
    m_focusFrame->hide();
    QWidget::focusOutEvent(event);
}

/// The menu key comes to the widget with the focus, the mouse to the image view.
void ZEVDragImageView::contextMenuEvent(QContextMenuEvent *event)
{
    if (menu())
        menu()->popup(event->globalPos());
    event->setAccepted(menu());
}

void ZEVDragImageView::copy()
{
    if (m_imageDescription)
        ZEVPasteboard::generalPasteboard().writeObject(std::make_shared<ZEVCopiedArtwork>(
            m_bitmapData, m_imageDescription->image(), applicationIdentifier()));
}

void ZEVDragImageView::cut()
{
    if (!m_imageDescription)
        return;
    copy();
    clearImage();
}

/// What was copied in this application has been vetted before.
void ZEVDragImageView::paste()
{
    const ZEVPasteboard general = ZEVPasteboard::generalPasteboard();
    const QByteArray bytes = ZEVPasteboardRawBitmapData::rawImageData(general);
    if (bytes.isEmpty() || !canReadDataFromPasteboard(general))
        return;
    if (isFromThisApplication(general))
        return setBitmapData(bytes, true, true);
    m_importer->vet(m_importer->begin(), bytes,
                    [this](const QByteArray &accepted) { showBitmapData(accepted, true, true); });
}

void ZEVDragImageView::clearImage()
{
    setBitmapData({});
    Q_EMIT didUpdate({{u"imageCleared"_s, true}});
}

void ZEVDragImageView::browse()
{
    ZEVOpenPanel panel;
    panel.canChooseFiles = true;
    panel.allowedContentTypes = {ZEVUniformType::Image.toString()};
    panel.allowedFilesName = ZEVGlobalHelper::localizedStringForKey(u"Images");
    panel.directoryURL = m_browseURL;
    panel.window = window();
    const QPointer<ZEVDragImageView> view = this;
    if (panel.runModal() == ZEVOpenPanel::OKResponse && view)
        m_importer->readFile(
            m_importer->begin(), panel.URL,
            [this, url = panel.URL](const QByteArray &accepted) { showImported(accepted, url); });
}

void ZEVDragImageView::togglePreviewPanel()
{
    ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
    if (!m_imageDescription && !panel->isVisible())
        return;
    panel->setPreviewItems(m_imageDescription ? ZEVPreviewPanel::Items{m_imageDescription}
                                              : ZEVPreviewPanel::Items());
    panel->toggle();
}

/// A panel that shows this well's artwork goes on doing so.
void ZEVDragImageView::updatePreviewPanel(const ZEVImageDescription *previous)
{
    if (!previous || !ZEVPreviewPanel::sharedPreviewPanelExists())
        return;
    ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
    if (panel->previewItems().size() != 1 || panel->previewItems().front().get() != previous)
        return;
    panel->setPreviewItems(m_imageDescription ? ZEVPreviewPanel::Items{m_imageDescription}
                                              : ZEVPreviewPanel::Items());
}
