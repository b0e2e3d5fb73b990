// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Drawing/ZEVImageCrop.h>
#include <ZEVGlobalUtils/ImageViews/DragImageViewAccessible_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtworkImporter_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDropProgressView_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVFocusFrame_p.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVViewAnimation_p.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QPainter>
#include <QPropertyAnimation>
#include <QResizeEvent>
#include <QTimer>

namespace {

constexpr qreal DashPadding = 5;
constexpr int LiveResizePause = 150; ///< milliseconds without a further change end a resize

QPropertyAnimation *animation(ZEVInnerImageView *view, const QByteArray &property, qreal from)
{
    auto *const animation = new QPropertyAnimation(view, property, view);
    animation->setStartValue(from);
    animation->setEndValue(1.0);
    return animation;
}

} // namespace

ZEVDragImageViewDelegate::~ZEVDragImageViewDelegate() = default;

bool ZEVDragImageViewDelegate::acceptBitmapData(ZEVDragImageView *, const QByteArray &, const Completion &)
{
    return false;
}

std::optional<QString> ZEVDragImageViewDelegate::exportNameForBitmapData(ZEVDragImageView *,
                                                                         const QByteArray &)
{
    return std::nullopt;
}

ZEVDragImageView::ZEVDragImageView(QWidget *parent)
    : QWidget(parent)
    , m_dashView(new ZEVDashView)
    , m_innerImageViewContainerView(new QWidget)
    , m_imageView(new ZEVInnerImageView)
    , m_focusFrame(new ZEVFocusFrame(this))
    , m_progressView(new ZEVDropProgressView(this))
    , m_alphaAnimation(animation(m_imageView, "opacity", 0.55))
    , m_scaleAnimation(animation(m_imageView, "scale", 0.9))
    , m_alphaAnimationOut(new QPropertyAnimation(m_imageView, "opacity", m_imageView))
    , m_liveResize(new QTimer(this))
    , m_importer(new ZEVArtworkImporter(this))
{
    DragImageViewAccessible::install();
    setAccessibleName(ZEVGlobalHelper::localizedStringForKey(u"Artwork"));
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    m_liveResize->setSingleShot(true);
    m_liveResize->setInterval(LiveResizePause);
    connect(m_liveResize, &QTimer::timeout, this, &ZEVDragImageView::viewDidEndLiveResize);
    connect(m_importer, &ZEVArtworkImporter::readingBegan, m_progressView, &ZEVDropProgressView::begin);
    connect(m_importer, &ZEVArtworkImporter::readingEnded, m_progressView, &ZEVDropProgressView::end);
    connect(m_progressView, &ZEVDropProgressView::cancelled, this, &ZEVDragImageView::cancelImports);
    setUpViews();
    makeMenu();
    updateDashes();
}

void ZEVDragImageView::setUpViews()
{
    m_dashView->setLabel(ZEVGlobalHelper::localizedStringForKey(u"Drop Image Here"));
    ZEVViewEasyConstraints::addFittingSubview(m_innerImageViewContainerView, m_imageView);
    ZEVViewEasyConstraints::addFittingSubview(this, m_dashView, DashPadding);
    ZEVViewEasyConstraints::addFittingSubview(this, m_innerImageViewContainerView);
    m_focusFrame->raise();
    m_progressView->raise();
    connect(m_dashView, &ZEVDashView::highlightedChanged, this, &ZEVDragImageView::updateDashes);
    connect(m_imageView, &ZEVImageView::imageChanged, this, &ZEVDragImageView::updateDashes);
}

QThreadPool *ZEVDragImageView::filePromiseQueue() const { return m_importer->queue(); }
void ZEVDragImageView::cancelImports() { m_importer->cancel(); }

void ZEVDragImageView::setEditable(bool editable)
{
    if (std::exchange(m_editable, editable) == editable)
        return;
    update();
    updateDashes();
    Q_EMIT editableChanged(editable);
}

void ZEVDragImageView::setDashDisplayRule(uint rule)
{
    if (std::exchange(m_dashDisplayRule, rule) == rule)
        return;
    updateDashes();
    Q_EMIT dashDisplayRuleChanged(rule);
}

bool ZEVDragImageView::drawDashes() const
{
    if (!m_editable || m_dashDisplayRule == DashesNever)
        return false;
    return m_dashDisplayRule == DashesAlways || m_dashView->isHighlighted() || m_imageView->image().isNull();
}

void ZEVDragImageView::updateDashes()
{
    const bool draws = drawDashes();
    m_dashView->setDrawLabel(!m_imageDescription && m_editable);
    m_dashView->setDrawDashes(draws);
    if (std::exchange(m_drewDashes, draws) != draws)
        Q_EMIT drawDashesChanged(draws);
}

/// A host's own artwork is newer than any that is still on its way.
void ZEVDragImageView::setBitmapData(const QByteArray &bytes, bool notify, bool animate)
{
    cancelImports();
    showBitmapData(bytes, notify, animate);
}

void ZEVDragImageView::applyImportedImageData(const QByteArray &bytes, const QUrl &source)
{
    if (bytes.isEmpty())
        return;
    cancelImports();
    showImported(bytes, source);
}

void ZEVDragImageView::showImported(const QByteArray &bytes, const QUrl &source)
{
    if (m_imageDescription)
        m_imageDescription->setOriginURL(source); // kept: that of the artwork which goes
    showBitmapData(bytes, false, true);
    Q_EMIT didUpdate({});
}

void ZEVDragImageView::showBitmapData(const QByteArray &bytes, bool notify, bool animate)
{
    const std::shared_ptr<ZEVImageDescription> previous = m_imageDescription;
    m_bitmapData = bytes;
    m_imageDescription = bytes.isNull() ? nullptr : std::make_shared<ZEVImageDescription>(bytes);
    setAccessibleDescription(m_imageDescription ? m_imageDescription->imageDescription() : QString());
    fitImage();
    update();
    if (animate)
        animateImage();
    updatePreviewPanel(previous.get());
    Q_EMIT imageDescriptionChanged();
    if (notify)
        Q_EMIT didUpdate({});
}

void ZEVDragImageView::fitImage()
{
    m_imageView->setImage(m_imageDescription ? ZEVImageCrop::imageScaledToFitSize(m_imageDescription->image(),
                                                                                  size(), devicePixelRatioF())
                                             : QImage());
}

void ZEVDragImageView::animateImage()
{
    m_alphaAnimationOut->stop();
    for (QPropertyAnimation *animation : {m_alphaAnimation, m_scaleAnimation})
        ZEVViewAnimation::run(*animation, ZEVViewAnimation::DefaultSeconds, ZEVViewAnimation::easeOutCurve());
}

QRect ZEVDragImageView::drawingImageRectInBounds() const
{
    const QSizeF own = m_imageDescription ? m_imageDescription->size() : QSizeF();
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
    if (m_imageDescription)
        fitImage();
    m_imageView->setImageScaling(ZEVImageView::ScaleProportionallyDown);
}

bool ZEVDragImageView::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal)
        viewDidEndLiveResize(); // the screens may differ in pixels a point
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate)
        update();
    if (event->type() == QEvent::ShortcutOverride
        && !actionForKey(static_cast<const QKeyEvent &>(*event)).isEmpty())
        event->accept();
    return QWidget::event(event);
}
