// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QKeyEvent;
class QMenu;
class ZEVDragImageView;

/// What can be done with an artwork well, by the names of its slots: one table of titles, keys and conditions.
namespace ZEVArtworkActions {

/// The actions that have a title; their validity is asked whenever it opens.
QMenu *makeMenu(ZEVDragImageView *well);

/// Whether it makes sense now; other slots of the view always do, other names never.
bool isEnabled(const ZEVDragImageView &well, const QByteArray &action);

/// The action of a key; empty for none.
QByteArray actionForKey(const ZEVDragImageView &well, const QKeyEvent &event);

/// Does it if it makes sense. The well may be gone then.
bool perform(ZEVDragImageView *well, const QByteArray &action);

} // namespace ZEVArtworkActions
