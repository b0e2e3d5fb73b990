// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtFocusView.h>

#include <ZEVGlobalUtils/Menus/Layout/ZEVViewAnimation_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplicationActivity_p.h>

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>

namespace {

constexpr qreal FadeSeconds = 0.15;

} // namespace

ZEVArtFocusView::ZEVArtFocusView(QWidget *parent)
    : QWidget(parent)
    , m_alphaAnimation(new QPropertyAnimation(this, "toolbarAlpha", this))
{
    connect(qApp, &QApplication::focusChanged, this, &ZEVArtFocusView::followFocus);
    connect(ZEVApplicationActivity::shared(), &ZEVApplicationActivity::didBecomeActive, this,
            &ZEVArtFocusView::updateTrackingAreas);
}

void ZEVArtFocusView::setToolbarView(QWidget *toolbar)
{
    setToolbarAlpha(1);
    m_toolbarView = toolbar;
    m_effect = toolbar ? new QGraphicsOpacityEffect(toolbar) : nullptr;
    if (toolbar)
        toolbar->setGraphicsEffect(m_effect);
    setToolbarAlpha(1);
    updateTrackingAreas();
}

void ZEVArtFocusView::setHidesToolbarView(bool hides)
{
    m_hidesToolbarView = hides;
    if (hides)
        updateTrackingAreas();
    else
        setAlphaWithAnimation(1);
}

qreal ZEVArtFocusView::toolbarAlpha() const { return m_effect ? m_effect->opacity() : 1; }

/// Without a need for it, the effect would only cost time.
void ZEVArtFocusView::setToolbarAlpha(qreal alpha)
{
    if (!m_effect)
        return;
    m_effect->setOpacity(alpha);
    m_effect->setEnabled(alpha < 1);
}

void ZEVArtFocusView::setAlphaWithAnimation(qreal alpha)
{
    ZEVViewAnimation::animateTo(*m_alphaAnimation, alpha, FadeSeconds,
                                alpha == 0 ? ZEVViewAnimation::easeOutCurve()
                                           : ZEVViewAnimation::defaultCurve());
}

bool ZEVArtFocusView::isMouseInsideForCurrentEvent(bool isCurrent) const
{
    // Wayland tells no program where the mouse is outside its windows; that it came and went is told.
    static const bool isPositionKnown =
        !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    return isCurrent && isPositionKnown ? rect().contains(mapFromGlobal(QCursor::pos())) : underMouse();
}

bool ZEVArtFocusView::isFocusInToolbar() const
{
    const QWidget *const focus = QApplication::focusWidget();
    return m_toolbarView && focus && (m_toolbarView == focus || m_toolbarView->isAncestorOf(focus));
}

void ZEVArtFocusView::updateTrackingAreas()
{
    if (!m_hidesToolbarView)
        return;
    m_alphaAnimation->stop();
    setToolbarAlpha(isMouseInsideForCurrentEvent(true) || isFocusInToolbar() ? 1 : 0);
}

/// The mouse counts only while the application is active.
void ZEVArtFocusView::enterEvent(QEnterEvent *event)
{
    if (m_hidesToolbarView && QGuiApplication::applicationState() == Qt::ApplicationActive)
        setAlphaWithAnimation(1);
    QWidget::enterEvent(event);
}

void ZEVArtFocusView::leaveEvent(QEvent *event)
{
    if (m_hidesToolbarView && !isMouseInsideForCurrentEvent(true) && !isFocusInToolbar())
        setAlphaWithAnimation(0);
    QWidget::leaveEvent(event);
}

void ZEVArtFocusView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateTrackingAreas();
}

void ZEVArtFocusView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateTrackingAreas();
}

void ZEVArtFocusView::followFocus(QWidget *old, QWidget *now)
{
    const auto isInToolbar = [this](const QWidget *widget) {
        return m_toolbarView && widget && (m_toolbarView == widget || m_toolbarView->isAncestorOf(widget));
    };
    if (m_hidesToolbarView && isInToolbar(old) != isInToolbar(now))
        setAlphaWithAnimation(isInToolbar(now) || isMouseInsideForCurrentEvent(true) ? 1 : 0);
}
