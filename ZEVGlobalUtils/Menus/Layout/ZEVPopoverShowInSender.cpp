// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Layout/ZEVPopoverShowInSender.h>

void ZEVPopoverShowInSender::showPopoverInSender(ZEVPopover *popover, QWidget *sender,
                                                 ZEVPopover::Edge preferredEdge)
{
    if (popover->isShown())
        popover->close();
    else
        popover->showRelativeToRect(sender->rect(), sender, preferredEdge);
}

void ZEVPopoverShowInSender::showPopoverInSenderAtTop(ZEVPopover *popover, QWidget *sender)
{
    showPopoverInSender(popover, sender, ZEVPopover::MinY);
}

void ZEVPopoverShowInSender::showPopoverInSenderAtBottom(ZEVPopover *popover, QWidget *sender)
{
    showPopoverInSender(popover, sender, ZEVPopover::MaxY);
}

void ZEVPopoverShowInSender::showPopoverInSenderAtLeft(ZEVPopover *popover, QWidget *sender)
{
    showPopoverInSender(popover, sender, ZEVPopover::MinX);
}

void ZEVPopoverShowInSender::showPopoverInSenderAtRight(ZEVPopover *popover, QWidget *sender)
{
    showPopoverInSender(popover, sender, ZEVPopover::MaxX);
}
