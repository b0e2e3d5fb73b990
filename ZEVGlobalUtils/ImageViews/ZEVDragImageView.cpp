// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVArtworkPreview_p.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkActions_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkMotion_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkOutline_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkTransfer_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageViewAccessible_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDropProgressView_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVFocusFrame_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVImageDragging_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal DashPadding = 5;
constexpr int LiveResizePause = 150; ///< milliseconds without a further change end a resize

void answer(QDropEvent *event, Qt::DropAction action)
{
    event->setDropAction(action);
    event->setAccepted(action != Qt::IgnoreAction);
}

} // namespace

ZEVDragImageView::ZEVDragImageView(QWidget *parent)
    : QWidget(parent)
    , m_dashView(new ZEVDashView)
    , m_innerImageViewContainerView(new QWidget)
    , m_imageView(new ZEVInnerImageView)
    , m_focusFrame(new ZEVFocusFrame(this))
    , m_progressView(new ZEVDropProgressView(this))
    , m_liveResize(new QTimer(this))
    , m_motion(new ZEVArtworkMotion(m_imageView))
    , m_outline(new ZEVArtworkOutline(this))
    , m_transfer(new ZEVArtworkTransfer(this))
    , m_preview(std::make_unique<ZEVArtworkPreview>())
{
    ZEVDragImageViewAccessible::install();
    setAccessibleName(ZEVGlobalHelper::localizedStringForKey(u"Artwork"));
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    m_liveResize->setSingleShot(true);
    m_liveResize->setInterval(LiveResizePause);
    connect(m_liveResize, &QTimer::timeout, this, &ZEVDragImageView::viewDidEndLiveResize);
    setUpViews();
    setUpTransfer();
    m_imageView->setMenu(ZEVArtworkActions::makeMenu(this));
    m_outline->update();
}

ZEVDragImageView::~ZEVDragImageView() = default;

void ZEVDragImageView::setUpTransfer()
{
    const ZEVArtworkImporter *const importer = m_transfer->importer();
    connect(importer, &ZEVArtworkImporter::workBegan, m_progressView, &ZEVDropProgressView::begin);
    connect(importer, &ZEVArtworkImporter::workEnded, m_progressView, &ZEVDropProgressView::end);
    connect(importer, &ZEVArtworkImporter::refused, this, &ZEVDragImageView::importWasRefused);
    connect(m_progressView, &ZEVDropProgressView::cancelled, this, &ZEVDragImageView::cancelImports);
    connect(m_transfer, &ZEVArtworkTransfer::imported, this, &ZEVDragImageView::showImported);
    connect(m_transfer, &ZEVArtworkTransfer::pasted, this,
            [this](const std::shared_ptr<ZEVImageDescription> &artwork) {
                showDescription(artwork, true, true);
            });
}

void ZEVDragImageView::setUpViews()
{
    ZEVViewEasyConstraints::addFittingSubview(m_innerImageViewContainerView, m_imageView);
    ZEVViewEasyConstraints::addFittingSubview(this, m_dashView, DashPadding);
    ZEVViewEasyConstraints::addFittingSubview(this, m_innerImageViewContainerView);
    m_focusFrame->raise();
    m_progressView->raise();
    connect(m_outline, &ZEVArtworkOutline::drawnChanged, this, &ZEVDragImageView::drawDashesChanged);
}

QPropertyAnimation *ZEVDragImageView::alphaAnimation() const { return m_motion->alphaAnimation(); }
QPropertyAnimation *ZEVDragImageView::scaleAnimation() const { return m_motion->scaleAnimation(); }
QThreadPool *ZEVDragImageView::filePromiseQueue() const { return m_transfer->importer()->queue(); }
bool ZEVDragImageView::isImporting() const { return m_transfer->importer()->isWorking(); }
void ZEVDragImageView::cancelImports() { m_transfer->importer()->cancel(); }

void ZEVDragImageView::setEditable(bool editable)
{
    if (std::exchange(m_editable, editable) == editable)
        return;
    const QPointer<ZEVDragImageView> guard = this;
    update();
    m_outline->update();
    if (guard)
        Q_EMIT editableChanged(editable);
}

void ZEVDragImageView::setDashDisplayRule(uint rule)
{
    if (std::exchange(m_dashDisplayRule, rule) == rule)
        return;
    const QPointer<ZEVDragImageView> guard = this;
    m_outline->update();
    if (guard)
        Q_EMIT dashDisplayRuleChanged(rule);
}

bool ZEVDragImageView::drawDashes() const { return m_outline->isDrawn(); }

QByteArray ZEVDragImageView::bitmapData() const
{
    return m_imageDescription ? m_imageDescription->bitmapData() : QByteArray();
}

void ZEVDragImageView::setBitmapData(const QByteArray &bytes, bool notify, bool animate)
{
    setImageDescription(bytes.isNull() ? nullptr
                                       : std::make_shared<ZEVImageDescription>(bytes, roomForImage()),
                        notify, animate);
}

/// A host's own artwork is newer than any that is still on its way.
void ZEVDragImageView::setImageDescription(const std::shared_ptr<ZEVImageDescription> &description,
                                           bool notify, bool animate)
{
    cancelImports();
    showDescription(description, notify, animate);
}

void ZEVDragImageView::applyImportedImageData(const QByteArray &bytes, const QUrl &source)
{
    if (bytes.isEmpty())
        return;
    cancelImports();
    showImported(std::make_shared<ZEVImageDescription>(bytes, roomForImage()), source);
}

void ZEVDragImageView::showImported(const std::shared_ptr<ZEVImageDescription> &description,
                                    const QUrl &source)
{
    if (m_imageDescription)
        m_imageDescription->setOriginURL(source); // kept: that of the artwork which goes
    showDescription(description, true, true);
}

/// Whoever hears of one thing may end the well before the next one is said.
void ZEVDragImageView::showDescription(const std::shared_ptr<ZEVImageDescription> &description, bool notifies,
                                       bool animate)
{
    const QPointer<ZEVDragImageView> guard = this;
    const std::shared_ptr<ZEVImageDescription> previous = std::exchange(m_imageDescription, description);
    setAccessibleDescription(m_imageDescription ? m_imageDescription->imageDescription() : QString());
    m_outline->updateLabel();
    update();
    if (animate)
        m_motion->appear();
    fitImage();
    if (guard)
        m_preview->follow(previous.get(), m_imageDescription);
    if (guard)
        Q_EMIT imageDescriptionChanged();
    if (guard && notifies)
        notify({});
}

void ZEVDragImageView::notify(const QVariantMap &userInfo)
{
    const QPointer<ZEVDragImageView> guard = this;
    Q_EMIT didUpdate(userInfo);
    if (guard)
        Q_EMIT artworkDidUpdate(m_imageDescription);
}

void ZEVDragImageView::fitImage()
{
    m_imageView->setImage(m_imageDescription
                              ? m_imageDescription->imageScaledToFitSize(size(), devicePixelRatioF())
                              : QImage());
}

QSize ZEVDragImageView::roomForImage() const { return (QSizeF(size()) * devicePixelRatioF()).toSize(); }

QRect ZEVDragImageView::drawingImageRectInBounds() const
{
    const QSizeF own = m_imageDescription ? m_imageDescription->shownSize() : QSizeF();
    if (own.isEmpty())
        return {};
    QRectF place({}, own.scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    return place.toAlignedRect();
}

void ZEVDragImageView::setBackgroundDrawingBlock(const BackgroundDrawingBlock &block)
{
    m_backgroundDrawingBlock = block;
    update();
}

void ZEVDragImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_backgroundDrawingBlock)
        m_backgroundDrawingBlock(painter, isActiveWindow(), rect());
}

/// Until the size is settled the picture that is there is stretched, which is quick.
void ZEVDragImageView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_focusFrame->setGeometry(rect());
    const int height = m_progressView->sizeHint().height();
    m_progressView->setGeometry(0, rect().height() - height, width(), height);
    if (!isVisible())
        return viewDidEndLiveResize();
    if (!m_liveResize->isActive())
        viewWillStartLiveResize();
    m_liveResize->start();
}

void ZEVDragImageView::viewWillStartLiveResize()
{
    m_imageView->setImageScaling(ZEVImageView::ScaleProportionallyUpOrDown);
}

void ZEVDragImageView::viewDidEndLiveResize()
{
    m_imageView->setImageScaling(ZEVImageView::ScaleProportionallyDown);
    if (m_imageDescription)
        fitImage();
}

bool ZEVDragImageView::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal)
        viewDidEndLiveResize(); // the screens may differ in pixels a point
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate)
        update();
    if (event->type() == QEvent::ShortcutOverride
        && !ZEVArtworkActions::actionForKey(*this, static_cast<const QKeyEvent &>(*event)).isEmpty())
        event->accept();
    return QWidget::event(event);
}

void ZEVDragImageView::keyPressEvent(QKeyEvent *event)
{
    if (!ZEVArtworkActions::perform(this, ZEVArtworkActions::actionForKey(*this, *event)))
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

QMenu *ZEVDragImageView::menu() const { return m_imageView->menu(); }
void ZEVDragImageView::setMenu(QMenu *menu) { m_imageView->setMenu(menu); }

/// The menu key comes to the widget with the focus, the mouse to the image view.
void ZEVDragImageView::contextMenuEvent(QContextMenuEvent *event)
{
    if (menu())
        menu()->popup(event->globalPos());
    event->setAccepted(menu());
}

bool ZEVDragImageView::validateUserInterfaceItem(const QByteArray &action) const
{
    return ZEVArtworkActions::isEnabled(*this, action);
}

void ZEVDragImageView::copy() { m_transfer->copy(); }
void ZEVDragImageView::paste() { m_transfer->paste(); }
void ZEVDragImageView::browse() { m_transfer->browse(); }

void ZEVDragImageView::cut()
{
    if (!m_imageDescription)
        return;
    const QPointer<ZEVDragImageView> guard = this;
    copy();
    if (guard)
        clearImage();
}

void ZEVDragImageView::clearImage()
{
    const QPointer<ZEVDragImageView> guard = this;
    setBitmapData({});
    if (guard)
        notify({{u"imageCleared"_s, true}});
}

void ZEVDragImageView::togglePreviewPanel() { ZEVArtworkPreview::toggle(m_imageDescription); }

bool ZEVDragImageView::canReadDataFromPasteboard(const ZEVPasteboard &pasteboard)
{
    return ZEVArtworkTransfer::canRead(pasteboard);
}

QByteArray ZEVDragImageView::provideDataForType(const ZEVPasteboard &, const ZEVPasteboardItem *,
                                                QStringView type) const
{
    return m_transfer->dataForType(type);
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

std::shared_ptr<ZEVPboardImageWriter> ZEVDragImageView::pasteboardWriter() { return m_transfer->writer(); }

void ZEVDragImageView::dragEnterEvent(QDragEnterEvent *event)
{
    const Qt::DropAction action = m_transfer->entered(*event);
    if (action != Qt::IgnoreAction) {
        m_motion->beginHovering();
        m_dashView->setHighlighted(true);
    }
    answer(event, action);
}

void ZEVDragImageView::dragMoveEvent(QDragMoveEvent *event)
{
    answer(event, ZEVArtworkTransfer::operation(*event));
}

void ZEVDragImageView::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_motion->endHovering();
    QWidget::dragLeaveEvent(event);
    m_dashView->setHighlighted(false);
}

void ZEVDragImageView::dropEvent(QDropEvent *event)
{
    const QPointer<ZEVDragImageView> guard = this;
    const bool isTaken = prepareForDragOperation(*event) && guard && performDragOperation(*event);
    answer(event, isTaken ? Qt::CopyAction : Qt::IgnoreAction);
    if (guard)
        draggingEnded();
}

void ZEVDragImageView::draggingEnded()
{
    m_motion->settle();
    m_dashView->setHighlighted(false);
}

bool ZEVDragImageView::prepareForDragOperation(const QDropEvent &event)
{
    const bool isWelcome = m_editable && canReadDataFromPasteboard(ZEVPasteboard(event.mimeData()));
    m_dashView->setHighlighted(false);
    return isWelcome;
}

/// The well's own artwork changes nothing.
bool ZEVDragImageView::performDragOperation(const QDropEvent &event)
{
    return event.source() == this || m_transfer->perform(event);
}
