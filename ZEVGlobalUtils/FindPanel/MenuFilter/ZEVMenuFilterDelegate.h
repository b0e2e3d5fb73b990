// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <optional>

class ZEVMenuFilterViewController;

/// What is told of a filter in a menu. All operations are optional.
class ZEV_EXPORT ZEVMenuFilterDelegate {
public:
    virtual ~ZEVMenuFilterDelegate();

    /// What is typed has changed or was cleared.
    virtual void filterDidChange(ZEVMenuFilterViewController *) { }

    /// The more button was pressed. False, which means not implemented, lets the filter be cleared.
    virtual bool showMoreItems(ZEVMenuFilterViewController *) { return false; }

    /// Whether Down in the search field has anything to move into. Nil, which means not implemented, lets the
    /// key pass: it is the field's, and then the menu's.
    virtual std::optional<bool> hasFilteredItems(ZEVMenuFilterViewController *) { return std::nullopt; }

    /// Return in the search field; true when that was all there is to do.
    virtual bool handleReturnKeyEvent(ZEVMenuFilterViewController *) { return false; }
};
