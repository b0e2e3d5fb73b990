// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarLayout_p.h>

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindControls_p.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVWrappingLayout_p.h>

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace {

/// A field that is any narrower shows too little of a pattern beside its count, in points.
constexpr int LeastField = 190;
constexpr int LeastBar = 200;

/// The widgets of a row become those of a layout that can wrap them.
void letWrap(QWidget *row)
{
    const QLayout *old = row->layout();
    QWidgetList widgets;
    for (int n = 0; n < old->count(); ++n)
        if (QWidget *widget = old->itemAt(n)->widget())
            widgets.append(widget);
    const int spacing = old->spacing();
    delete old;
    auto *wrapping = new ZEVWrappingLayout(row);
    wrapping->setSpacing(spacing);
    for (QWidget *widget : std::as_const(widgets))
        wrapping->addWidget(widget);
}

} // namespace

ZEVFindBarLayout::ZEVFindBarLayout(QWidget *view, const ZEVFindControls &controls)
    : m_view(view)
    , m_rows(qobject_cast<QGridLayout *>(view->layout()))
    , m_mode(controls.interfaceModePopupButton)
    , m_findBackdrop(view->findChild<QWidget *>(u"findBackdrop"_s))
    , m_findControls(view->findChild<QWidget *>(u"findControls"_s))
    , m_replaceContainer(controls.replaceContainerView)
    , m_replaceBackdrop(view->findChild<QWidget *>(u"replaceBackdrop"_s))
    , m_replaceControls(view->findChild<QWidget *>(u"replaceControls"_s))
    , m_message(controls.messageLabel)
{
    if (m_replaceContainer)
        m_replaceRows = qobject_cast<QGridLayout *>(m_replaceContainer->layout());
    if (!isLibrarysOwn())
        return;
    for (QWidget *row : {m_findControls.data(), m_replaceControls.data()})
        letWrap(row);
    view->setMinimumWidth(LeastBar);
    arrangeWide();
}

bool ZEVFindBarLayout::isLibrarysOwn() const
{
    return m_view && m_rows && m_replaceRows && m_mode && m_findBackdrop && m_findControls
        && m_findControls->layout() && m_replaceBackdrop && m_replaceControls && m_replaceControls->layout()
        && m_message;
}

void ZEVFindBarLayout::arrange()
{
    if (!isLibrarysOwn())
        return;
    const bool isWide = isWideEnough();
    if (isWide != m_isWide)
        isWide ? arrangeWide() : arrangeNarrow();
    alignFields();
}

int ZEVFindBarLayout::controlsWidth() const
{
    const int find = m_findControls->layout()->sizeHint().width();
    const int replace = m_replaceControls->layout()->sizeHint().width();
    return m_replaceContainer->isHidden() ? find : qMax(find, replace);
}

bool ZEVFindBarLayout::isWideEnough() const
{
    const QMargins margins = m_rows->contentsMargins();
    const int spacing = m_rows->horizontalSpacing();
    return m_view->width() >= margins.left() + m_mode->sizeHint().width() + spacing + LeastField + spacing
        + controlsWidth() + margins.right();
}

void ZEVFindBarLayout::arrangeWide()
{
    m_isWide = true;
    m_rows->addWidget(m_mode, 0, 0);
    m_rows->addWidget(m_findBackdrop, 0, 1);
    m_rows->addWidget(m_findControls, 0, 2);
    m_rows->addWidget(m_replaceContainer, 2, 0, 1, 3);
    m_rows->addWidget(m_message, 3, 0, 1, 3);
    m_replaceRows->addWidget(m_replaceBackdrop, 0, 0);
    m_replaceRows->addWidget(m_replaceControls, 0, 1);
}

void ZEVFindBarLayout::arrangeNarrow()
{
    m_isWide = false;
    m_rows->addWidget(m_findBackdrop, 0, 0, 1, 3);
    static_cast<ZEVWrappingLayout *>(m_findControls->layout())->prependWidget(m_mode);
    m_rows->addWidget(m_findControls, 1, 0, 1, 3);
    m_replaceRows->addWidget(m_replaceBackdrop, 0, 0, 1, 2);
    m_replaceRows->addWidget(m_replaceControls, 1, 0, 1, 2);
}

/// Both fields begin behind the mode and end before the wider of the two rows of buttons.
void ZEVFindBarLayout::alignFields()
{
    const int controls = m_isWide ? controlsWidth() : 0;
    m_findControls->setMinimumWidth(controls);
    m_replaceControls->setMinimumWidth(controls);
    QMargins margins = m_replaceRows->contentsMargins();
    margins.setLeft(m_isWide ? m_mode->sizeHint().width() + m_rows->horizontalSpacing() : 0);
    m_replaceRows->setContentsMargins(margins);
}
