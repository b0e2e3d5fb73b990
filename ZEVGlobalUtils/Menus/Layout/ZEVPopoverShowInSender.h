// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Menus/Layout/ZEVPopover.h>

/// Popovers that their button shows and closes in turns.
namespace ZEVPopoverShowInSender {

/// Closes \a popover when it is shown.
ZEV_EXPORT void showPopoverInSender(ZEVPopover *popover, QWidget *sender, ZEVPopover::Edge preferredEdge);

/// Kept: top is the edge of the least y, bottom that of the largest, as widgets count.
ZEV_EXPORT void showPopoverInSenderAtTop(ZEVPopover *popover, QWidget *sender);
ZEV_EXPORT void showPopoverInSenderAtBottom(ZEVPopover *popover, QWidget *sender);
ZEV_EXPORT void showPopoverInSenderAtLeft(ZEVPopover *popover, QWidget *sender);
ZEV_EXPORT void showPopoverInSenderAtRight(ZEVPopover *popover, QWidget *sender);

} // namespace ZEVPopoverShowInSender
