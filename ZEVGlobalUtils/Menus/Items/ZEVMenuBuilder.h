// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPoint>

#include <functional>

class QMenu;
class QWidget;

/// Who fills a menu that is filled each time it opens: one at a time.
namespace ZEVMenuBuilder {

using Builder = std::function<void(QMenu *menu)>;

/// Calls \a builder whenever \a menu is about to open, in the place of the one before; an empty one leaves the
/// menu as it is. What it captures must outlive the menu, or take itself away.
ZEV_EXPORT void setMenuBuilder(QMenu *menu, const Builder &builder);

/// Has \a menu built now, for who wants to know its items or its size while it is closed.
ZEV_EXPORT void buildMenu(QMenu *menu);

/// Opens \a menu with its upper leading corner at \a place, which counts from that corner of \a view: the left
/// one, or the right one where the view is read from right to left.
ZEV_EXPORT void popUpMenu(QMenu *menu, const QWidget *view, QPoint place);

} // namespace ZEVMenuBuilder
