// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarContainerView.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>

#include <QEvent>
#include <QStyle>

ZEVFindBarContainerView::ZEVFindBarContainerView(QWidget *content, QWidget *parent)
    : QWidget(parent)
    , m_content(content)
{
    const bool isHidden = content->isHidden() && content->testAttribute(Qt::WA_WState_ExplicitShowHide);
    content->setParent(this);
    content->setVisible(!isHidden);
    setFocusProxy(content); // where the focus goes when the bar is hidden
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant &height) {
        m_shownHeight = height.toInt();
        layOut();
    });
    connect(&m_animation, &QVariantAnimation::finished, this, [this] {
        if (!m_findBarVisible && m_findBarView)
            m_findBarView->hide();
        findBarViewDidChangeHeight();
    });
}

ZEVFindBarContainerView::~ZEVFindBarContainerView()
{
    if (m_finder)
        m_finder->setFindBarContainer(nullptr);
}

void ZEVFindBarContainerView::setFinder(ZEVTextFinder *finder) { m_finder = finder; }

void ZEVFindBarContainerView::performTextFinderAction(QObject *sender)
{
    if (m_finder && sender)
        m_finder->performAction(sender->property("tag").toLongLong());
}

void ZEVFindBarContainerView::setFindBarView(QWidget *view)
{
    if (view == m_findBarView)
        return;
    if (m_findBarView) {
        m_findBarView->removeEventFilter(this);
        m_findBarView->setParent(nullptr);
    }
    m_findBarView = view;
    if (!view)
        return;
    view->setParent(this);
    view->setVisible(m_findBarVisible);
    view->installEventFilter(this);
    setTabOrder(view, m_content);
    layOut();
}

void ZEVFindBarContainerView::setFindBarVisible(bool visible)
{
    if (visible == m_findBarVisible)
        return;
    m_findBarVisible = visible;
    if (visible && m_findBarView)
        m_findBarView->show();
    moveTo(visible ? fittingHeight() : 0);
    Q_EMIT findBarVisibleChanged(visible);
}

/// What comes and goes inside the bar does so at once: only the bar as a whole slides.
void ZEVFindBarContainerView::findBarViewDidChangeHeight()
{
    if (!m_findBarVisible || m_animation.state() == QVariantAnimation::Running)
        return;
    m_shownHeight = fittingHeight();
    layOut();
}

int ZEVFindBarContainerView::fittingHeight() const
{
    if (!m_findBarView)
        return 0;
    return m_findBarView->hasHeightForWidth() ? m_findBarView->heightForWidth(width())
                                              : m_findBarView->sizeHint().height();
}

/// A duration of 0, which a style answers where the desktop asks for less motion, ends at once.
void ZEVFindBarContainerView::moveTo(int height)
{
    m_animation.stop();
    m_animation.setStartValue(m_shownHeight);
    m_animation.setEndValue(height);
    m_animation.setDuration(
        isVisible() ? style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) : 0);
    m_animation.start();
}

/// The bar keeps its fitting height and comes in from above.
void ZEVFindBarContainerView::layOut()
{
    const int barHeight = fittingHeight();
    const int shown = qMin(m_shownHeight, barHeight);
    if (m_findBarView)
        m_findBarView->setGeometry(0, shown - barHeight, width(), barHeight);
    m_content->setGeometry(0, shown, width(), qMax(0, height() - shown));
}

QSize ZEVFindBarContainerView::sizeHint() const { return m_content->sizeHint(); }

QSize ZEVFindBarContainerView::minimumSizeHint() const
{
    const QSize content = m_content->minimumSizeHint().expandedTo(m_content->minimumSize());
    if (!m_findBarVisible || !m_findBarView)
        return content;
    return {qMax(m_findBarView->minimumWidth(), content.width()), content.height() + fittingHeight()};
}

bool ZEVFindBarContainerView::eventFilter(QObject *watched, QEvent *event)
{
    // A message in the bar has come or gone.
    if (watched == m_findBarView && event->type() == QEvent::LayoutRequest)
        findBarViewDidChangeHeight();
    return QWidget::eventFilter(watched, event);
}

/// A bar of another width may need another height.
void ZEVFindBarContainerView::resizeEvent(QResizeEvent *)
{
    findBarViewDidChangeHeight();
    layOut();
}
