// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDropProgressView_p.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QHBoxLayout>
#include <QProgressBar>
#include <QStyle>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int DelayMilliseconds = 300;

} // namespace

ZEVDropProgressView::ZEVDropProgressView(QWidget *parent)
    : QWidget(parent)
    , m_delay(new QTimer(this))
{
    auto *const bar = new QProgressBar;
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setMinimumWidth(1);
    bar->setAccessibleName(ZEVGlobalHelper::localizedStringForKey(u"Reading the image"));
    auto *const cancel = new QToolButton;
    cancel->setAutoRaise(true);
    cancel->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
    cancel->setToolTip(ZEVGlobalHelper::localizedStringForKey(u"Cancel"));
    cancel->setAccessibleName(cancel->toolTip());
    auto *const row = new QHBoxLayout(this);
    row->addWidget(bar, 1);
    row->addWidget(cancel);
    m_delay->setSingleShot(true);
    m_delay->setInterval(DelayMilliseconds);
    connect(m_delay, &QTimer::timeout, this, &QWidget::show);
    connect(cancel, &QToolButton::clicked, this, &ZEVDropProgressView::cancelled);
    hide();
}

void ZEVDropProgressView::begin()
{
    if (isHidden() && !m_delay->isActive())
        m_delay->start();
}

void ZEVDropProgressView::end()
{
    m_delay->stop();
    hide();
}
