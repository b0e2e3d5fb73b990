// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Layout/ZEVPopover.h>

#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>

#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace {

constexpr int ContentPadding = 8;

QRect globalRect(const QWidget *view, const QRect &rect)
{
    return {view->mapToGlobal(rect.topLeft()), rect.size()};
}

ZEVPopover::Edge opposite(ZEVPopover::Edge edge) { return static_cast<ZEVPopover::Edge>((edge + 2) % 4); }

QRect besideEdge(const QRect &anchor, QSize size, ZEVPopover::Edge edge)
{
    QRect frame(QPoint(), size);
    frame.moveCenter(anchor.center());
    switch (edge) {
    case ZEVPopover::MinX:
        frame.moveRight(anchor.left() - 1);
        break;
    case ZEVPopover::MinY:
        frame.moveBottom(anchor.top() - 1);
        break;
    case ZEVPopover::MaxX:
        frame.moveLeft(anchor.right() + 1);
        break;
    case ZEVPopover::MaxY:
        frame.moveTop(anchor.bottom() + 1);
        break;
    }
    return frame;
}

bool fits(const QRect &frame, const QRect &screen, ZEVPopover::Edge edge)
{
    const bool isBeside = edge == ZEVPopover::MinX || edge == ZEVPopover::MaxX;
    return isBeside ? frame.left() >= screen.left() && frame.right() <= screen.right()
                    : frame.top() >= screen.top() && frame.bottom() <= screen.bottom();
}

QRect movedInto(QRect frame, const QRect &screen)
{
    frame.moveRight(qMin(frame.right(), screen.right()));
    frame.moveBottom(qMin(frame.bottom(), screen.bottom()));
    frame.moveLeft(qMax(frame.left(), screen.left()));
    frame.moveTop(qMax(frame.top(), screen.top()));
    return frame;
}

} // namespace

ZEVPopover::ZEVPopover(QWidget *parent)
    : QFrame(parent, Qt::Popup)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
}

void ZEVPopover::setContent(QWidget *content)
{
    if (content == m_content)
        return;
    delete std::exchange(m_content, content).data();
    if (!content)
        return;
    ZEVViewEasyConstraints::addFittingSubview(this, content, ContentPadding);
    setFocusProxy(content);
}

void ZEVPopover::showRelativeToRect(const QRect &rect, QWidget *view, Edge preferredEdge)
{
    m_view = view;
    ensurePolished();
    winId(); // from here on there is a window that can have an owner, which Wayland asks for
    windowHandle()->setTransientParent(view->window()->windowHandle());
    const QRect anchor = globalRect(view, rect), screen = view->screen()->availableGeometry();
    const QSize size = sizeHint().expandedTo(minimumSize());
    QRect frame = besideEdge(anchor, size, preferredEdge);
    const QRect other = besideEdge(anchor, size, opposite(preferredEdge));
    if (!fits(frame, screen, preferredEdge) && fits(other, screen, preferredEdge))
        frame = other;
    setGeometry(movedInto(frame, screen));
    show();
    setFocus(Qt::PopupFocusReason);
}

/// The press that closes the popover also reaches what lies beneath it; the popover's own button would show
/// it at once again.
void ZEVPopover::mousePressEvent(QMouseEvent *event)
{
    const bool isOnView =
        m_view && globalRect(m_view, m_view->rect()).contains(event->globalPosition().toPoint());
    setAttribute(Qt::WA_NoMouseReplay, isOnView);
    QFrame::mousePressEvent(event);
}
